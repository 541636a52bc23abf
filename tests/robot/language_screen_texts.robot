# The language screen: eight languages, each with its flag, and the one in use is marked.
start
expect E_ComPort 4
click C_LinguaSel
screen FrmLanguage
expect-title "Language selection"
expect Opt_Lang(0) "English"
expect Opt_Lang(1) "Spanish"
expect Opt_Lang(2) "French"
expect Opt_Lang(3) "German"
expect Opt_Lang(4) "Dutch"
expect Opt_Lang(5) "Portuguese"
expect Opt_Lang(6) "Danish"
expect Opt_Lang(7) "Norwegian"
expect-checked Opt_Lang(0) on
expect-checked Opt_Lang(7) off
expect C_Save "Save"
expect C_Annulla "Back"
expect-visible I_Lang(7) yes

# The language screen by keyboard: the arrows walk through the languages, Enter on Save takes the one that is marked.
start
expect E_ComPort 4
focus C_LinguaSel
key Enter
screen FrmLanguage
expect-focus Opt_Lang(0)
key Down
expect-checked Opt_Lang(1) on
expect-focus Opt_Lang(1)
key Down 2
expect-checked Opt_Lang(3) on
key Tab
expect-focus C_Save
key Enter
screen FrmPres
expect C_Exit "Beenden"
expect-bytes Setup/Language.ini 0 03

# A language is marked and the screen left with Back: nothing is changed, and nothing written.
start
expect E_ComPort 4
expect-bytes Setup/Language.ini 0 00
click C_LinguaSel
click Opt_Lang(5)
expect-checked Opt_Lang(5) on
click C_Annulla
screen FrmPres
expect C_Exit "Exit"
expect-bytes Setup/Language.ini 0 00
click C_LinguaSel
expect-checked Opt_Lang(0) on
click Opt_Lang(5)
close
screen FrmPres
expect C_Exit "Exit"
expect-bytes Setup/Language.ini 0 00

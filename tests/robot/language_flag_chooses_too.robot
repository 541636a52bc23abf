# A click on a flag marks its language as the button beside it does.
start
expect E_ComPort 4
click C_LinguaSel
click I_Lang(2)
expect-checked Opt_Lang(2) on
expect-checked Opt_Lang(0) off
click C_Save
screen FrmPres
expect C_Exit "Quitter"
expect-bytes Setup/Language.ini 0 02

# One language after the other is chosen: each brings its own words and its own number.
start
expect E_ComPort 4
click C_LinguaSel
click Opt_Lang(1)
click C_Save
expect C_Exit "Salir"
expect-bytes Setup/Language.ini 0 01
click C_LinguaSel
expect-title "Selección de idioma"
click Opt_Lang(2)
click C_Save
expect C_Exit "Quitter"
expect-bytes Setup/Language.ini 0 02
click C_LinguaSel
click Opt_Lang(3)
click C_Save
expect C_Exit "Beenden"
expect-bytes Setup/Language.ini 0 03
click C_LinguaSel
click Opt_Lang(4)
click C_Save
expect C_Exit "Afsluiten"
expect-bytes Setup/Language.ini 0 04
click C_LinguaSel
click Opt_Lang(5)
click C_Save
expect C_Exit "Sair"
expect-bytes Setup/Language.ini 0 05
click C_LinguaSel
click Opt_Lang(6)
click C_Save
expect C_Exit "Afslut"
expect-bytes Setup/Language.ini 0 06
click C_LinguaSel
click Opt_Lang(7)
click C_Save
expect C_Exit "Avslutt"
expect-bytes Setup/Language.ini 0 07
click C_LinguaSel
click Opt_Lang(0)
click C_Save
expect C_Exit "Exit"
expect-bytes Setup/Language.ini 0 00

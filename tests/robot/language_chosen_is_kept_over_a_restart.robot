# German is chosen: the start screen speaks German at once, the choice is written down, and the next start speaks it too.
start
expect E_ComPort 4
click C_LinguaSel
click Opt_Lang(3)
click C_Save
screen FrmPres
expect L_Titolo2 "Kassenprogrammierung"
expect L_ComPort "Anschluss"
expect C_Exit "Beenden"
expect-bytes Setup/Language.ini 0 03
expect-file Setup/Language.ini size 1
restart
screen FrmPres
expect L_Titolo2 "Kassenprogrammierung"
expect E_ComPort 4
click C_LinguaSel
expect-title "Sprache wählen"
expect-checked Opt_Lang(3) on
expect Opt_Lang(0) "Englisch"

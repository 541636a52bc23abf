# The abbreviation lines are trimmed and filled like the others, but the switch puts no mark and backspace takes one character.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup

check Chk_Double on
tab Tab_Invoice 4
focus E_Abr(0)
expect E_Abr(0) "ABBREVIATIONS"
expect-cursor E_Abr(0) 13
keys "x"
expect E_Abr(0) "ABBREVIATIONSx"
paste E_Abr(0) "A·B"
expect T_Abr1 "ABB                     "
key Backspace
expect E_Abr(0) "A·"
focus E_Abr(1)
expect E_Abr(0) "A·                      "

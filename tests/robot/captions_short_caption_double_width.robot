# The field of a short caption has a switch of its own, is trimmed on entering and filled to 10 on leaving.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup

tab Tab_Print 1
row FG_Caption 2
focus E_Valore
expect E_Valore "SUBTOTAL"
expect-cursor E_Valore 8
keys "123"
expect E_Valore "SUBTOTAL123"
click ChK_Double2
expect E_Valore "SUBTOTAL12"
focus E_Valore
key Backspace 10
keys "S"
expect E_Valore "·S"
expect-cursor E_Valore 2
keys "um"
expect E_Valore "·S·u·m"
expect-cursor E_Valore 6
key Backspace
expect E_Valore "·S·u"
expect-cursor E_Valore 4
expect E_ValorePrev "SSuu      "
expect-checked Chk_Double off
click C_Apply
expect-cell FG_Caption 2 1 "·S·u      "
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 4245 FF53FF75202020202020

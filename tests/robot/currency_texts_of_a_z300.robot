# The four currencies of a Z300 with the English texts; a save without a change writes the same bytes.
register model Z300
start
expect E_ComPort 4
click C_Z300
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_ForeignCurrencyProgram
expect-title "Foreign currencies"
expect F_FC(0) "Foreign currency 1"
expect F_FC(3) "Foreign currency 4"
expect L_DecimalPositionForExchangedRate(3) "Decimal position for exchanged rate"
expect-items Cmb_DecimalPositionForRate(0) "0" "1" "2" "3" "4" "5" "6" "7" "8"
expect-items Cmb_DecimalPositionForExchangedRate(0) "0" "1" "2" "3"
click C_Salva
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN

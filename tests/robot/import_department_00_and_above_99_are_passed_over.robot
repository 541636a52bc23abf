# A department line with the number 00 or above 99 is passed over.
write odd.txt "VAR:00:No:1:1:1\r\nVAR:100:No:1:1:1\r\nVAR:999:No:1:1:1\r\nVAR:xx:No:1:1:1\r\nVAR:\r\n"
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode

click C_Custom_Import
file odd.txt
nobox
click C_SetVatRate
click C_Salva
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN

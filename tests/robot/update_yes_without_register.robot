# No register answers: the communication error with an X at its end, and a log line. The main menu stays.
start
expect E_ComPort 4
click C_Z320
register off
click C_ModificaProgrammazione
box plain * Yes
box plain "Communication with the cash register failed.\nCheck the cable and the port.\nX" Ok
screen FrmPrincipale
expect-log "Receive_ReportEcr error. File 12 Code: 401 Desc: The USB-COM port cannot be opened."
expect-log "C_ModificaProgrammazione: registratore non collegato e richiesta lettura dati"
expect-file Dati/PRG_MODE.BIN missing

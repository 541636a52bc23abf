# The default image is not there: the box tells of it, and the send fails, since there is no file to send.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
delete Dati/ECRZ320/ECRZ320_PRG_MODE.BIN
click C_Reset
box plain * Yes
box plain "The default settings (PRG_MODE.BIN) could not be copied.\nCheck the Dati folder and the free space on the disk." Ok
box critical "Sending to the cash register failed.\nCheck that it is switched on, connected and not busy, then send again." Ok
screen FrmSetup
expect-log "copia_def_file: 53 File not found"
expect-log "Send_PrgModeToEcr error. Code: 801 Desc: The specified file cannot be opened."
expect-same register/PRG_MODE.BIN register/samples/Z320/PRG_MODE.BIN

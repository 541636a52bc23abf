# A port that does not fit is not taken: the main menu uses port 1, and the log says why.
start
expect E_ComPort 4
paste E_ComPort 256
click C_Z320
screen FrmPrincipale
expect-log "FrmPrincipale Form_load: Overflow"
expect-bytes port.ini 0 01
expect-file port.ini size 1

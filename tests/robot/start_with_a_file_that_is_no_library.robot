# What stands in the link library's place is no library: the same as none.
write libtilbridge2.so "This is no library."
start
screen FrmPres
expect-log-like "Link library libtilbridge2.so not loaded: *"
expect-log "Receive_ReportEcr error using regwire"
expect-colour E_ComPort red
click C_Z320
screen FrmPrincipale
click C_ModificaProgrammazione
box plain * Yes
box plain "Communication with the cash register failed.\nCheck the cable and the port.\nX" Ok
screen FrmPrincipale

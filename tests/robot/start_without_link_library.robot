# The link library is missing: one log line says so, nothing answers, and the program works on from its local files.
delete libtilbridge2.so
start
screen FrmPres
expect-log-like "Link library libtilbridge2.so not loaded: *"
expect-log "Receive_ReportEcr error using regwire"
expect-colour E_ComPort red
click C_Z320
screen FrmPrincipale
expect L_Release_Fw ""
click C_NuovaProgrammazione
box plain * Yes
screen FrmSetup

# The exchange program does not run: the main menu opens, and both log lines read alike, since the release borrows the
# words of the reports.
start
expect E_ComPort 4
mark-log
register fails
click C_Z320
screen FrmPrincipale
expect-log "Receive_ReportEcr error using regwire"
expect L_Release_Fw ""
register works
click C_ModificaProgrammazione
box plain * Yes
screen FrmSetup

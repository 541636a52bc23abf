# The register is busy when the image is asked for: the box joins the error text and the reason, the log has the code. The
# items are not asked for, and the main menu stays with the pointer at rest.
start
expect E_ComPort 4
click C_Z320
register answer 4097 0
forget-calls
click C_ModificaProgrammazione
box plain * Yes
box critical "Communication with the cash register failed.\nCheck the cable and the port.\nThe ECR side is in the state of BUSY." Ok
screen FrmPrincipale
expect-log "REGWIRE return error: 1001 . File 0"
expect-calls 2
expect-file Dati/PRG_MODE.BIN missing
register answer 0
click C_ModificaProgrammazione
box plain * Yes
screen FrmSetup

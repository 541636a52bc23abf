# The exchange program hangs over the release: it is ended, and the main menu opens as with a very old register, since
# the ping behind it was answered.
start
expect E_ComPort 4
register hang 22
click C_Z320
screen FrmPrincipale
expect-log "Get_Release error. Code: 270F Desc: Timeout Error"
expect-process regwire.exe no
click C_NuovaProgrammazione
box plain * Yes
expect-log "Selected new ecr with very old fw release"
box plain * Ok

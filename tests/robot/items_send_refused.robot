# The register refuses the items: the failure box, the buttons work again, and the flags stay.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
type E_Name "Ristretto"
click C_Salva
register answer 1026 1
click C_Invia_Ecr
expect-enabled C_Annulla no
expect-enabled C_Salva no
expect-enabled C_Invia_Ecr no
box critical "Sending to the cash register failed.\nCheck that it is switched on, connected and not busy, then send again." Ok
expect-enabled C_Annulla yes
expect-enabled C_Salva yes
expect-enabled C_Invia_Ecr yes
expect-bytes Dati/PRG_PLU.BIN 839 01

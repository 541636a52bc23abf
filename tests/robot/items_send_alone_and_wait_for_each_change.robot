# The items are sent alone. Behind the send the program waits for the register to take the changed items, and then the
# flags are gone.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
type E_Name "Ristretto"
click C_Salva
type E_Name "Cappuccio"
click C_Salva
type E_Name "not saved"
forget-calls
click C_Invia_Ecr
screen FrmPrgPlu
expect-calls 2
expect-call 2 "send_cmd folder=. direction=1 file=1 timeout=180 port=4"
expect-bytes register/PRG_PLU.BIN 839 01
expect-bytes register/PRG_PLU.BIN 883 01
expect-bytes Dati/PRG_PLU.BIN 839 00
expect-bytes Dati/PRG_PLU.BIN 883 00
expect-bytes Dati/PRG_PLU.BIN 810 52697374726574746F
expect-enabled C_Salva yes
expect E_Name "not saved       "

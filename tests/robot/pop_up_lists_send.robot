# The send of the lists is that of the items; the buttons stay enabled meanwhile.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PopUpPluList
paste E_Plu1(5) 77
click C_Salva
forget-calls
click C_Invia_Ecr
screen FrmPopUpPluList
expect-calls 2
expect-same register/PRG_PLU.BIN Dati/PRG_PLU.BIN
register answer 1026 1
click C_Invia_Ecr
expect-enabled C_Salva yes
expect-enabled C_Annulla yes
expect-enabled C_Invia_Ecr yes
box critical "Sending to the cash register failed.\nCheck that it is switched on, connected and not busy, then send again." Ok

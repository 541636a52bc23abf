# The six choices of the no-sale key change their own bits; the two bits above them stay as they are.
start
expect E_ComPort 4
poke register/PRG_MODE.BIN 69 c0
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_NSProgram
screen FrmNSMenuSetting
choose Cmb_DrawerOpen #1
choose Cmb_ConsecutiveIncrement #1
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 69 e1
choose Cmb_DrawerOpen #0
choose Cmb_EJInput #1
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 69 f0
click C_Annulla
click C_NSProgram
expect Cmb_EJInput "1. Not stored"

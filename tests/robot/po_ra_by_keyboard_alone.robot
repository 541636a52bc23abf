# The PO and RA keys by keyboard: arrows in the lists, letters do nothing, Tab on to the save.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PO_RA_M_P_Key_Program
screen FrmPORAMPKeyMenu
expect-focus Cmb_RAKeyHDLOSetting
expect Cmb_RAKeyHDLOSetting "4. Up to 999.99"
keys "0N"
expect Cmb_RAKeyHDLOSetting "4. Up to 999.99"
key Up 2
expect Cmb_RAKeyHDLOSetting "2. Up to 9.99"
key Tab 8
expect-focus C_Salva
key Enter
expect-bytes Dati/PRG_MODE.BIN 62 02
key Tab
expect-focus C_Invia_Ecr
key Enter
expect-same register/PRG_MODE.BIN Dati/PRG_MODE.BIN

# A name loses its blanks when it is entered and gets them back when it is left; that alone is no change.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
focus E_Name
expect E_Name "Espresso"
key Enter
expect-focus E_Name
focus Cmb_Tax
expect E_Name "Espresso        "
click C_Salva
expect-same Dati/PRG_PLU.BIN register/PRG_PLU.BIN
type E_Name "Crème brûlée"
click C_Salva
expect-cell Fg_Plu 2 2 "Crème brûlée    "
expect-bytes Dati/PRG_PLU.BIN 883 01

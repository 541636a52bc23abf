# A price beyond the maximum that came from elsewhere: shown with its decimals it passes, as a bare number of digits it
# does not, and entering the field cuts it.
poke register/PRG_MODE.BIN 347 99999999
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
nobox
expect E_Price "999999.99"
focus E_Price
box critical "The value is too high. The last digit was removed." Ok
expect E_Price "9999999"

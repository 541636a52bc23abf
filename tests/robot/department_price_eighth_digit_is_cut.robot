# One digit more than fits: a critical box, and the digit is gone. The box is no leaving of the field: the bare digits
# stay until it is left.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
focus E_Price
keys "12345678"
box critical "The value is too high. The last digit was removed." Ok
expect-focus E_Price
expect E_Price "1234567"
keys "8"
box critical "The value is too high. The last digit was removed." Ok
expect E_Price "1234567"
focus Cmb_Tax
expect E_Price "12345.67"

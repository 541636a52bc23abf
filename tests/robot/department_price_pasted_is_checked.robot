# In a price the limit acts on every change, also on a pasted one: a digit is cut each time until it fits.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
paste E_Price 123456789
box critical "The value is too high. The last digit was removed." Ok
box critical "The value is too high. The last digit was removed." Ok
expect E_Price "1234567"

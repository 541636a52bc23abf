# A code takes thirteen digits and nothing else.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
expect-maxlength E_FreeCode 13
expect-maxlength E_Name 16
type E_FreeCode "x"
key Ctrl+a
keys "12.3a456789012345"
nobox
expect E_FreeCode "1234567890123"

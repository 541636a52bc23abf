# The largest code is taken without a word, one more digit is not.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluPageProgram
paste E_PluPage(2) 9999999999999
nobox
key End
keys "9"
box critical "The value is too high. The last digit was removed." Ok
expect E_PluPage(2) "9999999999999"

# The port field takes digits only. Letters, signs and blanks do nothing.
start
expect E_ComPort 4
type E_ComPort "aB-, .x"
expect E_ComPort 4
key End
keys "1c2"
expect E_ComPort 412
key Backspace
expect E_ComPort 41
key Enter
expect E_ComPort 41
screen FrmPres

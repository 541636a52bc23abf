# The log's folder cannot be made, since a file has its name: the program runs and ends all the same.
write Log "a file where the folder should be"
start
screen FrmPres
expect E_ComPort 4
click C_Exit
expect-ended
expect-text Log "a file where the folder should be"

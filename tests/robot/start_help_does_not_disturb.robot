# F1 opens the manual beside the start screen; the screen goes on as it was.
start
expect E_ComPort 4
type E_ComPort 2
expect E_ComPort 42
key F1
screen FrmPres
expect E_ComPort 42
click I_Help
screen FrmPres
expect E_ComPort 42
expect-lines Log/memo_log.txt 1

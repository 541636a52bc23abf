# Who has no script writes a line into the register's text file: the next call brings the days that it names, and the
# line says 0 again.
write register/register.txt "# my register\nport = 4\ntrade = 3\nseed = 7\n"
start
expect E_ComPort 4
expect-bytes register/PRG_MODE.BIN 3125 05072600
expect-line register/register.txt 1 "# my register"
expect-line register/register.txt 3 "trade = 0"
expect-line register/register.txt 4 "seed = 7"
expect-lines register/register.txt 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
screen FrmSetup
expect-bytes register/PRG_MODE.BIN 3125 05072600

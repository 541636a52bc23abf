# Each command edits the files by which the emulated register is told what to do.
expect-text register/devices.txt "only\nUSB Serial Port (COM4)\n"
expect-line register/register.txt 1 "# how the practice register stands"
register on 7
expect-line register/register.txt 3 "port = 7"
expect-text register/devices.txt "only\nUSB Serial Port (COM7)\n"
register on
expect-line register/register.txt 3 "port = 4"
expect-text register/devices.txt "only\nUSB Serial Port (COM4)\n"
register off
expect-line register/register.txt 3 "port = 0"
expect-text register/devices.txt "only\nUSB Serial Port (COM4)\n"
register ports 3 12
expect-text register/devices.txt "only\nUSB Serial Port (COM3)\nUSB Serial Port (COM12)\n"
# Which devices there are is settled now.
register on 12
expect-text register/devices.txt "only\nUSB Serial Port (COM3)\nUSB Serial Port (COM12)\n"
register devices "Modem (COM2)" "Stra\xDFe (COMx)"
expect-text register/devices.txt "only\nModem (COM2)\nStra\xDFe (COMx)\n"
register ports
expect-text register/devices.txt "only\n"

expect-text register/PRG_MODE.BIN "held mode\n"
register model Z300
expect-line register/register.txt 2 "model = Z300"
expect-text register/PRG_MODE.BIN "mode of a Z300\n"
expect-same register/PRG_PLU.BIN register/samples/Z300/PRG_PLU.BIN
register model Z320
expect-line register/register.txt 2 "model = Z320"
expect-text register/PRG_PLU.BIN "plu of a Z320\n"

register banner "  ECRX  FW rel.0.80"
expect-line register/register.txt 7 "banner =   ECRX  FW rel.0.80                 "
register release RELEA.BIN
expect-line register/register.txt 8 "release = RELEA.BIN"
register release none
expect-line register/register.txt 8 "release = none"
register answer 4097
expect-line register/register.txt 4 "answer = 4097"
register answer 9999 12
expect-line register/register.txt 9 "answer.12 = 9999"
register answer 0
expect-line register/register.txt 4 "answer = 0"
expect-lines register/register.txt 8
register logo 16777215
expect-line register/register.txt 9 "logo = 16777215"
register logo normal
expect-line register/register.txt 9 "logo = normal"
register fails
expect-line register/register.txt 10 "fails = yes"
register fails 1
expect-line register/register.txt 11 "fails.1 = yes"
register works
expect-line register/register.txt 10 "fails = no"
expect-lines register/register.txt 10
register delay 0.5
expect-line register/register.txt 11 "delay = 0.5"
register hang
expect-line register/register.txt 5 "hang = next"
register hang 1
expect-line register/register.txt 5 "hang = 1"
expect-line register/register.txt 6 "seed = 1"
register report 12 Setup/words.txt
expect-same register/reports/12.bin Setup/words.txt
register trade
expect-text register/traded.txt "one day"

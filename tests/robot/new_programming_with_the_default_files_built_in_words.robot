# The two copy messages as they are without a language file.
write Setup/FrmDescEng.txt ""
delete Dati/ECRZ320/ECRZ320_PRG_PLU.BIN
start
expect E_ComPort 4
click C_Z320
click C_NuovaProgrammazione
box plain * Yes
box plain "Error During copy PRG_MODE_PLUE" Ok
screen FrmSetup
click C_Exit
delete Dati/ECRZ320/ECRZ320_PRG_MODE.BIN
click C_NuovaProgrammazione
box plain * Yes
box plain "Error During copy PRG_MODE_FILE" Ok

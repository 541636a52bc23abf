# A changed language without its file shows both messages in turn; the language is saved all the same, the texts stay.
write Setup/FrmDescEng.txt ";"
delete Setup/danish.txt
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Initial_Setup
copy Dati/PRG_MODE.BIN before.bin
choose Cmb_Lingua #6
click C_Salva
box information "Changing the language resets all ECR parameters" Ok
box warning "Warning! The Language file definition is not present" Ok
screen FrmInitialMenu
expect-log "The file language 6 is not present"
poke before.bin 0 06
expect-same Dati/PRG_MODE.BIN before.bin

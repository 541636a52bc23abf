# A flag code may be 9999; a fifth digit is refused and cut. A zero empties its field and comes back.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_InstoreBarcodeSetting
row FG_InstoreBarcode 5
expect E_FlagCode "0"
focus E_FlagCode
expect E_FlagCode ""
focus Cmb_DigitsOfFlag
expect E_FlagCode "0"
type E_FlagCode "99x99"
nobox
keys "1"
box critical "The value is too high. The last digit was removed." Ok
expect E_FlagCode "9999"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 126 9999
expect Cmb_InstoreBarcodeSettingNumber "6"

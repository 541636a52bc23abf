# Tagged lines fill headers, footers and departments; lines of any other beginning are passed over without a word.
write bakery.txt "RHE:01:2:·Oven\r\nRHE:10:2:a line of more than 24 characters\r\nsomething else\r\nRFO:01:3:Thank you: see you\r\nRFO:10:3:Bye\r\nVAR:01:Café crème:320:2:1\r\nVAR:99:A name of more than 12:5:4:3\r\nrhe:02:2:no\r\nRHE:11:2:no"
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode

click C_Custom_Import
file bakery.txt
nobox
click C_DepartmentProgram
expect E_DeptName "Café crème  "
expect E_Price "3.20"
row Fg_Department 99
expect E_DeptName "A name of mo"
click C_Annulla
click C_Exit
click C_MessageSetup
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 3257 FF4F76656E20202020202020202020202020202020202020
expect-bytes Dati/PRG_MODE.BIN 3281 4368656573652C2077696E652C206C756E63682020202020
expect-bytes Dati/PRG_MODE.BIN 3473 61206C696E65206F66206D6F7265207468616E2032342063
expect-bytes Dati/PRG_MODE.BIN 3497 5468616E6B20796F753A2073656520796F75202020202020
expect-bytes Dati/PRG_MODE.BIN 3713 427965202020202020202020202020202020202020202020
expect-bytes Dati/PRG_MODE.BIN 329 436166F0206372EF6D652020
expect-bytes Dati/PRG_MODE.BIN 345 020120030000
expect-bytes Dati/PRG_MODE.BIN 2485 41206E616D65206F66206D6F
expect-bytes Dati/PRG_MODE.BIN 2501 040305000000

# What the start screen says in English.
start
screen FrmPres
expect L_Titolo2 "ECR Programming Utility"
expect L_ComPort "Communication port"
expect C_Z300 "ECRZ300S"
expect C_Z320 "ECRZ320"
expect C_LinguaSel "Language Selection"
expect C_Exit "Exit"
expect-visible C_Z300 yes
expect-visible C_Z320 yes
expect-visible I_lingua yes
expect L_Emulated "An emulated register, a Z320, came with the program. F1 tells how to link a real one."

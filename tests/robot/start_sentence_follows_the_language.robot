# The sentence about the emulated register changes with the language that is chosen below it.
start
expect E_ComPort 4
expect L_Emulated "An emulated register, a Z320, came with the program. F1 tells how to link a real one."
click C_LinguaSel
click Opt_Lang(4)
click C_Save
expect L_Emulated "Bij het programma hoort een nagebootste kassa, een Z320. F1 vertelt hoe u een echte aansluit."
click C_LinguaSel
click Opt_Lang(0)
click C_Save
expect L_Emulated "An emulated register, a Z320, came with the program. F1 tells how to link a real one."

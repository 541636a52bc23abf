# The start screen names the model of the register that came with the program.
register model Z300
start
expect L_Emulated "An emulated register, a Z300, came with the program. F1 tells how to link a real one."

# The numbers 6 and 7 at a start: Danish, and Norwegian.
poke Setup/Language.ini 0 06
start
expect L_ComPort "Kommunikationsport"
restart
click C_LinguaSel
expect-checked Opt_Lang(6) on
click C_Annulla
click C_Exit
expect-ended
poke Setup/Language.ini 0 07
start
expect L_ComPort "Kommunikasjonsport"
click C_LinguaSel
expect-checked Opt_Lang(7) on

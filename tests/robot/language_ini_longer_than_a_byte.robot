# Only the first byte of the language file counts; a change overwrites it and leaves the rest.
poke Setup/Language.ini 0 034142
start
screen FrmPres
expect C_Exit "Beenden"
click C_LinguaSel
click Opt_Lang(6)
click C_Save
expect-bytes Setup/Language.ini 0 064142
expect-file Setup/Language.ini size 3

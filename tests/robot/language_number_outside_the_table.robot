# The language file says 9, which no language has: the message comes, and English follows.
poke Setup/Language.ini 0 09
start
box information "The file of the languagge specificated doesn't exist. The program work in english" Ok
screen FrmPres
expect C_Exit "Exit"
click C_LinguaSel
expect-checked Opt_Lang(0) on

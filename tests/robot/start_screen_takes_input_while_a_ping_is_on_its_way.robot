# The ping takes two seconds, and the start screen is not held up by it: the language screen opens and closes, and the
# port field takes digits.
register delay 2
start
screen FrmPres
click C_LinguaSel
screen FrmLanguage
click C_Annulla
screen FrmPres
type E_ComPort 3
expect-like E_ComPort "*3*"
wait 2.2
expect E_ComPort 4
expect-colour E_ComPort green

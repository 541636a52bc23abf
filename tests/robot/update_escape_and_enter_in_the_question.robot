# In the question Escape is Cancel and Enter is Yes.
start
expect E_ComPort 4
click C_Z320
expect-focus C_ModificaProgrammazione
key Enter
key Escape
screen FrmPrincipale
expect-file Dati/PRG_MODE.BIN missing
key Enter
key Enter
screen FrmSetup
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN

# A Z320 shows the extra invoice, in its list and its column.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_ClerkSystemProgram
expect-visible Cmb_ExtraInvoice yes
expect-cell Fg_Clerk 0 7 "E.Invoice"
expect-cell Fg_Clerk 6 7 "Disabled"
row Fg_Clerk 6
expect Cmb_ExtraInvoice "1. Disabled"
expect-like L_NegativeDeptPlu "Negative dept.*PLU"

# The screen of the captions has the same texts and lines on both models.
register model Z300
start
expect E_ComPort 4
click C_Z300
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup

expect-title "Caption setup"
expect-count Tab_Print 3
expect-count Tab_Invoice 5
expect-tab Tab_Print 0 "On receipt"
expect-tab Tab_Invoice 0 "Header"
expect L_ReceiptHeader(0) "Header #1"
expect L_ReceiptHeader(9) "Header #10"
expect L_ReceiptFooter(9) "Footer #10"
expect L_ExtraInvoice(4) "Extra invoice #5"
expect L_Abr(6) "ABR #7"
expect Chk_Double "Double width"
expect L_Preview "Preview"
expect L_Desc "Description"
expect C_Apply "Apply"
expect C_Cancel "Cancel"
expect T_Hraw1 "CCOORRNNEERR OOVVEENN   "
close
screen FrmSetup
click C_Exit
click C_Back
screen FrmPres
register model Z320
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup
expect-title "Caption setup"
expect-count Tab_Print 3
expect-count Tab_Invoice 5
expect T_Hraw1 "DDEELLII & CCAAFFÉÉ     "
expect T_Fraw1 "Grazie! Danke! Gracias! "
expect T_Eraw1 "Guest:                  "
expect T_Abr1 "ABBREVIATIONS           "

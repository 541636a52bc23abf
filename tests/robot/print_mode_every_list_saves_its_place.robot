# All 47 lists of the print mode are turned over, tab by tab; the sixteen bytes hold just that.
poke register/PRG_MODE.BIN 0 0001010001010001000040E8010601070FA0C02100
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Print_Out_Mode
expect-title "Print mode"
expect-tab Tab_Print 0 "On receipt"
expect-tab Tab_PrintReceipt 0 "Tax details"
expect-count Tab_Print 3
expect-count Tab_PrintReceipt 4
tab Tab_PrintReceipt 0
choose Cmb_TaxRatePrint #1
choose Cmb_TotalTaxAmountPrint #1
choose Cmb_TaxAmountPerRatePrint #1
choose Cmb_TaxableAmountPerRatePrint #1
choose Cmb_TotalTaxableAmountPrint #0
choose Cmb_TaxSymbolPrint #1
choose Cmb_TotalTaxableAmountOutOfVatPrint #0
choose Cmb_TaxableAmtOutOfVatPerRatePrint #0
choose Cmb_VoidTotalPrint #1
choose Cmb_AutomaticAbr #0
choose Cmb_MultipleInvoice #1
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 5 010001000040E8010602070FA03C3240
tab Tab_PrintReceipt 1
choose Cmb_GraphicHeaderPrintOnReceipt #0
choose Cmb_HeaderPrintWithoutTableTrackingPrint #1
choose Cmb_FooterPrintWithoutTableTrackingPrint #1
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 5 010001000040E8010602070EA03C3E40
tab Tab_PrintReceipt 2
choose Cmb_MultipleReceipt #1
choose Cmb_ClerkNamePrint #1
choose Cmb_SubtotalPrint #1
choose Cmb_PluNumberPrint #0
choose Cmb_ConsecutivePrint #1
choose Cmb_MachinePrint #1
choose Cmb_TimePrint #1
choose Cmb_DatePrint #1
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 5 010001000040EC010602070EDF3C3E40
tab Tab_PrintReceipt 3
choose Cmb_TaxDetailsPrintPosition #1
choose Cmb_ReceiptwithoutTableTrackingPrint #1
choose Cmb_LineDistanceSel #2
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 5 0201010000C0EC010602070EDF3C3E40
tab Tab_Print 1
choose Cmb_InvoicePrint #1
choose Cmb_HeaderPrintOnInvoice #1
choose Cmb_FooterPrintOnInvoice #1
choose Cmb_GraphicHeaderOnInvoice #0
choose Cmb_ReviewProformaPrint #1
choose Cmb_HeaderPrintOnReview_Proforma #1
choose Cmb_FooterPrintOnReview_Proforma #1
choose Cmb_GraphicHeaderOnReview #0
choose Cmb_VatAmountTaxableAmountAmountOutOfVatPrintOnProforma #1
choose Cmb_NewBalanceReceiptPrint #2
choose Cmb_HeaderPrintOnNewBalance #1
choose Cmb_FooterPrintOnNewBalance #1
choose Cmb_GraphicHeaderOnNewBalance #0
choose Cmb_VatAmountTaxableAmountAmountOutOfVatPrintOnNewBalance #1
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 5 0201020000C0EC0106021F00DF3CFE7F
tab Tab_Print 2
choose Cmb_X_ZReportCompressed #0
choose Cmb_PrgModeCompressed #0
choose Cmb_EJReportCompressed #0
choose Cmb_Z1_Z2CounterPrint #0
choose Cmb_RefoundTotalPrint #1
choose Cmb_X_ZReportHeaderPrint #0
choose Cmb_GTPrint #1
choose Cmb_RatioPerInDeptAndPluReportPrint #0
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 5 0201020000C0EC01060218005F3FCE7F

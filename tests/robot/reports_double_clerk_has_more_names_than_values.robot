# The report on normal and training clerks has 64 values under 73 names; only a tick in the file asks for it.
fill Setup/ExportOption.ini 0 24 00
poke Setup/ExportOption.ini 11 01
write report.bin ""
poke report.bin 0 03
poke report.bin 501 0105
truncate report.bin 1089
register report 11 report.bin
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_Report
screen FrmReportExport
click C_Export
expect-lines Report/NT-CLERK.csv 2
expect-line Report/NT-CLERK.csv 1 "ClerkNumber;AllDepartmentSalesTotal;Tax0TotalSales;Tax1Amount;Tax1SalesWithoutTax;Tax1SalesWithTax;Tax2Amount;Tax2SalesWithoutTax;Tax2SalesWithTax;Tax3Amount;Tax3SalesWithoutTax;Tax3SalesWithTax;Tax4Amount;Tax4SalesWithoutTax;Tax4SalesWithTax;AllTaxAmount;AllTaxSalesWithoutTax;AllTaxSalesWithTax;ItemPMTotal;SubtotalPMTotal;ItemP1Total;SubtotalP1Total;ItemP2Total;SubtotalP2Total;RefoundCounter;RefoundTotal;VoidTotal;FullVoidCounter;FullVoidTotaler;NetSalesTotal;GrossSalesTotal;AdjustTotal;CashPaymentCounter;CashTotal;CheckPaymentCounter;CheckTotal;ChargePaymentCounter;ChargeTotal;Credit1PaymentCounter;Credit1Total;Credit2PaymentCounter;Credit2Total;RaCounter;RaTotal;PoCounter;PoTotal;NoSaleCounter;CashInDrawerTotal;CheckInDrawerTotal;ChargeInDrawerTotal;Credit1InDrawerTotal;Credit2InDrawerTotal;Fc1InDrawerTotal;Fc2InDrawerTotal;Fc3InDrawerTotal;Fc4InDrawerTotal;NewBalanceCounter;NewBalanceTotal;CloseBalanceCounter;CloseBalanceTotal;OpenTableCounter;OpenTableTotal;GuestCounter;InvoiceCounterInvoiceCounter;OpeningPettyCash;PriceChangeCounter;DrawerOpenCounter;TrainingReceiptCounter;TrainingSalesTotale;CopyReceiptCounter;CopyReceiptTotal;ProformaReceiptCounter;ProfotmaReceiptTotal"
expect-line Report/NT-CLERK.csv 2 "3;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0;0.00;0.00;0;0.00;0.00;0.00;0.00;0;0.00;0;0.00;0;0.00;0;0.00;0;0.00;0;0.00;0;0.00;0;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0;0.00;0;0.00;0;0.00;0;501"

# The guided tour: the main job from the first screen to the register holding the new bytes, with a picture of each screen
# on both models. The pictures lie in pictures/ below the application folder.

# The start screen finds the emulated register on its port.
start
screen FrmPres
expect E_ComPort 4
expect-colour E_ComPort green
picture pictures/z320/01-start.png
click C_LinguaSel
screen FrmLanguage
picture pictures/z320/02-language.png
click C_Annulla

# The model, and the register's programming.
click C_Z320
screen FrmPrincipale
expect-like L_Release_Fw "ECRZ300/ECRZ320F*"
picture pictures/z320/03-main-menu.png
click C_ModificaProgrammazione
picture pictures/z320/04-question.png
box plain * Yes
screen FrmSetup
expect-same register/PRG_MODE.BIN Dati/PRG_MODE.BIN
expect-same register/PRG_PLU.BIN Dati/PRG_PLU.BIN
copy Dati/PRG_MODE.BIN before.bin
picture pictures/z320/05-setup.png
click C_SettingMode
screen FrmSettingMode
picture pictures/z320/06-setting-mode.png
click C_Exit
click C_ProgramMode
screen FrmProgramMode
picture pictures/z320/07-program-mode.png

# A VAT rate is corrected: 22.5 %.
click C_SetVatRate
screen FrmSetVatRate
picture pictures/z320/08-vat-rates.png
paste E_VatRate(1) 22500
picture pictures/z320/09-vat-rate-typed.png
key Enter
expect-focus C_Salva
expect E_VatRate(1) "22.5 %"
key Enter
expect-bytes Dati/PRG_MODE.BIN 38 00250200
expect-different register/PRG_MODE.BIN Dati/PRG_MODE.BIN
click C_Annulla

# A walk through the departments, by Enter and typing.
click C_DepartmentProgram
screen FrmDepartmentProgram
expect Cmb_DepartmentNumber 1
picture pictures/z320/10-departments.png
type E_DeptName "Coffee & tea"
focus E_Price
type E_Price 250
choose Cmb_PriceType "2. Preset"
picture pictures/z320/11-department-changed.png
click C_Salva
expect Cmb_DepartmentNumber 2
expect-cell Fg_Department 1 1 "Coffee & tea"
expect-cell Fg_Department 1 8 2.50
row Fg_Department 7
expect Cmb_DepartmentNumber 7
click C_Salva
expect Cmb_DepartmentNumber 8
picture pictures/z320/12-next-department.png

# What was saved goes to the register, and the register holds exactly that.
click C_Invia_Ecr
nobox
expect-same register/PRG_MODE.BIN Dati/PRG_MODE.BIN
expect-same register/PRG_PLU.BIN Dati/PRG_PLU.BIN
expect-different register/PRG_MODE.BIN before.bin
expect-bytes register/PRG_MODE.BIN 38 00250200
expect-bytes register/PRG_MODE.BIN 329 436F6666656520262074656108020101
expect-enabled C_Salva yes
click C_Annulla
screen FrmProgramMode

# An item gets another price, the items go into a file for a spreadsheet, and the register takes them.
click C_PluProgram
screen FrmPrgPlu
row Fg_Plu 3
picture pictures/z320/18-items.png
paste E_Price1 360
focus C_Salva
expect E_Price1 3.60
click C_Salva
expect Cmb_PluNumber 4
click C_Export
file items.csv
expect-file items.csv exists
click C_Invia_Ecr
nobox
click C_Annulla
click C_PopUpPluList
picture pictures/z320/19-pop-up-lists.png
click C_Annulla
click C_TenderProgram
picture pictures/z320/20-payment-media.png
click C_Annulla
click C_ClerkSystemProgram
picture pictures/z320/21-clerks.png
click C_Annulla
click C_Exit

# What the register prints, and how its keys lie.
click C_SettingMode
click C_Print_Out_Mode
picture pictures/z320/22-print-mode.png
click C_Annulla
click C_Exit
click C_MessageSetup
screen FrmCaptionSetting
tab Tab_Invoice 1
paste E_ReceiptFooter(0) "See you soon!"
picture pictures/z320/23-captions.png
click C_Salva
click C_Invia_Ecr
nobox
click C_Annulla
click C_AdvancedSetting
tab Tab_AdvancedOption 1
choose Cmb_KeyList "24. SUBTOTAL"
picture pictures/z320/24-keyboard.png
click C_Annulla

# A day of sales, its reports as CSV files in Report/, and what the viewer makes of them.
register trade
click C_Report
screen FrmReportExport
check Chk_Report(3) on
check Chk_Report(4) on
check Chk_Report(5) on
check Chk_Report(7) on
check Chk_Report(9) on
check Chk_Report(12) on
check Chk_Report(16) on
picture pictures/z320/25-reports.png
click C_Export
nobox
expect-file Report/TIME.csv exists
expect-file "Report/FULL EJ.csv" exists
click C_View
screen FrmReportView
choose Cmb_File "TIME"
picture pictures/z320/26-sales-by-hour.png
tab Tabs 1
picture pictures/z320/27-sales-by-hour-drawn.png
choose Cmb_File "FULL EJ"
click C_Next
picture pictures/z320/28-receipt.png
click C_Annulla
click C_Annulla
screen FrmSetup
click C_Exit

# A logo for the receipts, and what a receipt of the register looks like then.
click C_Logo
screen FrmSetLogo
picture pictures/z320/13-logo.png
click C_Sfoglia
picture pictures/z320/14-logo-chooser.png
file Logo/sample_logo.bmp
expect-like L_percorso "*sample_logo.bmp"
picture pictures/z320/15-logo-chosen.png
click C_Invia_Ecr
picture pictures/z320/16-logo-sent.png
box plain * Ok
expect-same Dati/GRAPHIC.BIN register/GRAPHIC.BIN
copy register/receipt.bmp pictures/z320/17-receipt.bmp
click C_Annulla

click C_Back
screen FrmPres
click C_Exit
expect-ended

# The same screens with the other model.
register model Z300
start
expect E_ComPort 4
picture pictures/z300/01-start.png
click C_Z300
screen FrmPrincipale
picture pictures/z300/03-main-menu.png
click C_Logo
screen FrmSetLogo
picture pictures/z300/13-logo.png
click C_Annulla
click C_ModificaProgrammazione
box plain * Yes
screen FrmSetup
picture pictures/z300/05-setup.png
click C_SettingMode
picture pictures/z300/06-setting-mode.png
expect-visible C_Hospitality_Setup no
click C_Exit
click C_ProgramMode
picture pictures/z300/07-program-mode.png
expect-visible C_PluPageProgram no
click C_SetVatRate
picture pictures/z300/08-vat-rates.png
click C_Annulla
click C_DepartmentProgram
picture pictures/z300/10-departments.png
close
screen FrmProgramMode
click C_PluProgram
picture pictures/z300/18-items.png
click C_Annulla
click C_ClerkSystemProgram
picture pictures/z300/21-clerks.png
click C_Annulla
click C_Exit
click C_SettingMode
click C_EJ_Setup
expect-visible Cmb_InvoiceReceipttoEJ no
picture pictures/z300/22-journal.png
click C_Annulla
click C_Exit
click C_MessageSetup
tab Tab_Invoice 2
picture pictures/z300/23-captions.png
click C_Annulla
click C_AdvancedSetting
tab Tab_AdvancedOption 1
picture pictures/z300/24-keyboard.png
click C_Annulla
screen FrmSetup

# The Z300 has no open tables: a tick stored for them is dropped when the screen opens, nothing is fetched, and the next
# save writes it as clear.
register model Z300
write Setup/ExportOption.ini ""
fill Setup/ExportOption.ini 0 24 00
poke Setup/ExportOption.ini 15 01
start
expect E_ComPort 4
click C_Z300
click C_ModificaProgrammazione
box plain * Yes
click C_Report
screen FrmReportExport
expect-checked Chk_Report(15) off
expect-enabled Chk_Report(15) no
expect-bytes Setup/ExportOption.ini 15 01
forget-calls
click C_Export
expect-calls 1
click C_Salva
expect-bytes Setup/ExportOption.ini 15 00

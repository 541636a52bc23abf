# Each ping brings a report. The one before is moved to the report folder, replacing the one there.
write Dati/time_old.bin "older"
start
expect E_ComPort 4
expect-file Dati/time_old.bin missing
expect-text Dati/Report/time_old.bin "older"
expect-file Dati/TIME.bin exists
expect-file Dati/Report/TIME.bin missing
write script_report.bin "a report with other bytes"
register report 12 script_report.bin
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
screen FrmSetup
expect-file Dati/Report/TIME.bin exists
expect-text Dati/TIME.bin "a report with other bytes"

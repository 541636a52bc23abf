# A German user reads the report viewer in German: its fields, its tabs, its counts, the words beside the numbers of a
# file. The file itself, and the headings that it has, stay as they are.
poke Setup/Language.ini 0 03
write hours.bin ""
poke hours.bin 90 0400501200000000000011000003000000000000
register report 12 hours.bin
write journal.bin ""
poke journal.bin 0 434F464645452020202020202020202020202020322E35300102544F54414C202020202020202020202020202020322E3530010220202020202020202020202020202020202020202020202001025445412020202020202020202020202020202020312E38300102544F54414C202020202020202020202020202020312E383001022020202020202020202020202020202020202020202020200102
register report 16 journal.bin
start
expect E_ComPort 4
expect L_Emulated "Mit dem Programm kam eine nachgebildete Kasse, eine Z320. F1 sagt, wie man eine echte anschließt."
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_Report
expect C_View "Ansehen"
check Chk_Report(12) on
check Chk_Report(16) on
click C_View
expect-title "Berichtsansicht"
expect L_Rows "Es wurde noch kein Bericht exportiert."
click C_Annulla
click C_Export
click C_View
expect L_Titolo "Berichtsansicht"
expect L_File "Bericht"
expect L_Export "Export"
expect L_Filter "Suchen"
expect Chk_Figures "Nur Zeilen mit Zahlen"
expect C_Previous "Voriger"
expect C_Next "Nächster"
expect C_Print "Drucken..."
expect Cmb_File "FULL EJ"
expect Cmb_Export "1 von 1"
expect-tab Tabs 2 "Bons"
expect L_Receipt "Bon 1 von 2"
choose Cmb_File "TIME"
expect-tab Tabs 0 "Tabelle"
expect-cell Fg_Report 0 0 "Stunde"
expect-cell Fg_Report 0 2 "SalesTotal"
expect L_Rows "2 von 24 Zeilen"
expect-cell Fg_Sums 1 0 "Summe"
tab Tabs 1
expect-tab Tabs 1 "Diagramme"
click C_Pdf
expect-chooser "Als PDF speichern" "PDF (*.pdf)"
file cancel
choose Cmb_File "FULL EJ"
type E_Filter "x"
expect L_Receipt "Nicht gefunden"
nobox

# A second export adds to the first, and its texts have gone through the conversion twice.
start DEBUG
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes

click C_ExportCaption
close
click C_ExportCaption
expect-lines Setup/caption.txt 296
expect-line Setup/caption.txt 12 "Cheese, wine, lunch     "
expect-line Setup/caption.txt 160 "Cheese, wine, lunch     "
expect-line Setup/caption.txt 11 "·D·E·L·I & ·C·A·F·É     "
expect-line Setup/caption.txt 159 "×D×E×L×I & ×C×A×F××     "

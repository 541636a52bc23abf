# The export writes all texts at their full width and opens the screen of the captions.
start DEBUG
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes

click C_ExportCaption
screen FrmCaptionSetting
expect-lines Setup/caption.txt 148
expect-line Setup/caption.txt 11 "·D·E·L·I & ·C·A·F·É     "
expect-line Setup/caption.txt 12 "Cheese, wine, lunch     "
expect-line Setup/caption.txt 21 "Grazie! Danke! Gracias! "
expect-line Setup/caption.txt 31 "CLOSED - SEE YOU TOMORROW AT 8            "
expect-line Setup/caption.txt 33 "BUON APPETITO                             "
expect-line Setup/caption.txt 36 "ABBREVIATIONS           "
expect-line Setup/caption.txt 43 "Guest:                  "
expect-line Setup/caption.txt 48 "TOTAL     "
expect-line Setup/caption.txt 125 "END       "
expect-line Setup/caption.txt 126 "ENTER CLERK PASSWORD    "
expect-line Setup/caption.txt 148 "END OF REPORT           "
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN
close
screen FrmSetup

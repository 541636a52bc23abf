# The installation carries the meanings of all captions and of the first 18 other lines.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup

nobox
expect-file Setup/DescCaption.ini exists
expect-lines Setup/DescCaption.ini 96
expect-no-log "Number of caption description to High"
expect-cell FG_Caption 20 0 "Number: typed with the key #NS"
expect L_Other(0) "Clerk password wanted"
expect L_Other(17) "Please wait"
expect L_Other(18) "Other #19"

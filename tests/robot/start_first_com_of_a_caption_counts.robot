# The number stands behind the first COM of a caption. Where that is part of the maker's name, it is no number, and the
# search ends.
register devices "COMTRON adapter (COM4)"
start
screen FrmPres
expect-log "Test_Com: Type mismatch"
expect E_ComPort 0
expect-calls 0

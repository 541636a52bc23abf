# The last key of the list is known and leaves no trace: no log line, no text.
write Setup/FrmDescEng.txt "FRM_FW_UPGRADE_TITLE=An update\nFRM_PRINCIPALE_FW_UPGRADE_MSG=Old\n"
start
screen FrmPres
expect E_ComPort 4
expect-lines Log/memo_log.txt 1

# Unknown keys go to the log: other writing, a blank before the "=" or at the beginning, and keys that are none.
write Setup/FrmDescEng.txt "FRM_PRES_C_EXIT =blank\n FRM_PRES_TITLE2=blank\nfrm_pres_c_exit=small\nNO_SUCH_KEY=text\nFRM_PRES_L_COM_PORT=Port\n"
start
screen FrmPres
expect C_Exit "EXIT"
expect L_Titolo2 "ECR Programming Utility"
expect L_ComPort "Port"
expect-log "Voce FRM_PRES_C_EXIT  Non presente"
expect-log "Voce  FRM_PRES_TITLE2 Non presente"
expect-log "Voce frm_pres_c_exit Non presente"
expect-log "Voce NO_SUCH_KEY Non presente"
expect E_ComPort 4
expect-lines Log/memo_log.txt 5

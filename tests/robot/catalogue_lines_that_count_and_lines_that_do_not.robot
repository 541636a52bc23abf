# Comments, heads, lines without a "=" or with one at their very beginning are passed over in silence, also where a good
# entry seems to stand in them.
write Setup/FrmDescEng.txt "; FRM_PRES_C_EXIT=comment\n;FRM_PRES_C_EXIT=comment\n[FRM_PRES_C_EXIT=head]\n=FRM_PRES_C_EXIT=first\nFRM_PRES_C_EXIT\n\nFRM_PRES_TITLE2=Title\n"
start
screen FrmPres
expect E_ComPort 4
expect C_Exit "EXIT"
expect L_Titolo2 "Title"
expect-lines Log/memo_log.txt 1

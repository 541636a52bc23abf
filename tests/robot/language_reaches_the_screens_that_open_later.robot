# A screen that opens after the change speaks the new language; its choices and its messages too.
start
expect E_ComPort 4
click C_LinguaSel
click Opt_Lang(3)
click C_Save
click C_Z320
screen FrmPrincipale
click C_ModificaProgrammazione
box plain * Yes
screen FrmSetup
click C_ProgramMode
expect C_SetVatRate "MwSt-Sätze"
click C_SetVatRate
expect-title "MwSt-Sätze"
expect C_Salva "Speichern"
expect L_VatRate(1) "MwSt-Satz 1"
register answer 4097 0
click C_Invia_Ecr
box critical "Das Senden an die Kasse ist fehlgeschlagen.\nPrüfen Sie, ob sie eingeschaltet, angeschlossen und frei ist, und senden Sie erneut." Ok
click C_Annulla
click C_DepartmentProgram
expect-items Cmb_Status1 "0. Positiv" "1. Negativ"

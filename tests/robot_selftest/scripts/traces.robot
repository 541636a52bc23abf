# What the program leaves behind: log lines, calls, processes, pictures.
write Log/memo_log.txt "01-01-24 10:00:00 of old\n"
start
expect-no-log "of old"
expect-log-like Start*
click C_Log
expect-log "café one"
expect-log "a line\nand its second half"
expect-log-like "*second*"
expect-no-log "café"
mark-log
expect-no-log "café one"
click C_Log
expect-log "caf\xE9 one"
# A log that somebody removed begins anew.
delete Log/memo_log.txt
click C_Log
expect-log "café one"

expect-calls 0
click C_Calls
expect-calls 3
expect-call 1 "send_cmd folder=. direction=1 file=0 timeout=120 port=4"
expect-call 2 "range_report folder=Dati file=5 timeout=120 from=1 to=99 port=4"
expect-call 3 "send_logo source=. target1=My pictures target2=a b.bmp timeout=60"
click C_Calls
click C_Calls
expect-calls 6
expect-call 4 "send_cmd folder=. direction=1 file=0 timeout=120 port=4"
click C_Calls
forget-calls
expect-calls 0
# A restart is none of the things from which the count begins.
click C_Calls
restart
expect-calls 3
expect-log-like "End*"

expect-process regwire.exe no
expect-process vermanto yes
click C_Process
expect-process REGWIRE.EXE yes
expect-process wire.exe yes

picture pictures/plain.png
picture pictures/again.png
expect-same pictures/plain.png pictures/again.png
click C_Box(3)
picture pictures/box.png
expect-different pictures/plain.png pictures/box.png
expect-bytes pictures/box.png 0 89504E470D0A1A0A
box critical * Ok

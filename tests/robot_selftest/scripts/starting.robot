# How the program starts, ends and is started again.
start
screen FrmPracticeStart
expect-title "Practice é"
expect-title "Practice \xE9"
expect-title-like Prac*
close
expect-ended
expect-log End

start STOP
expect-log "Start STOP"
expect-no-log "Start "
expect-ended

# A box may come before any screen, and the end before either.
start BOX
expect-box-title Before
box warning "No screen" Ok
screen FrmPracticeStart

# From anywhere, and with a box up.
click C_Fields
screen FrmPracticeFields
restart
screen FrmPracticeStart
click C_Ask
restart STOP
expect-log Cancel
expect-ended
restart END
expect-ended
restart
screen FrmPracticeStart
click C_HardExit
expect-ended

# Message boxes of every kind and with every button, and boxes behind boxes.
start
nobox
click C_Box(0)
box plain "One\rTwo" Ok
nobox
screen FrmPracticeStart
click C_Box(1)
expect-box-title "Box title"
box information "One\r\nTwo" Ok
click C_Box(2)
box warning "One\nTwo" Ok
click C_Box(3)
box critical * Ok
click C_Box(3)
box any "One\nTwo" Ok

click C_Ask
# What stands behind a box can be read.
expect C_Ask Ask
expect-title "Practice é"
box question Sure? Yes
expect-log Yes
mark-log
click C_Ask
box question Sure? No
expect-log No
expect-no-log Yes
click C_Ask
box question * Cancel
expect-log Cancel
# Keys go to the box as well.
click C_Ask
key Escape
nobox

# The line is over when the second box is up, a moment behind the first one's answer.
click C_Two
box information First Ok
box critical Second Ok
expect-log "Both answered"

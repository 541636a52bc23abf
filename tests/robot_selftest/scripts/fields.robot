# Fields, captions, keys, the focus, and what can be read off them.
start
click C_Fields
expect L_Raw "This & that"
expect L_Buddy "Name & more:"
expect L_Rich "Bold text"
expect L_Lines "one\r\ntwo"
expect-like L_Lines "o*w*"
expect C_Count "Count & see"
expect Chk_Option Option
expect F_Frame Frame
expect E_Memo "first\nsecond"
expect E_Rich rich
expect-colour L_Red red
expect-colour L_Green green
expect-colour L_Raw black
expect-colour E_Styled red
expect-maxlength E_Name 10

# Typing goes to the cursor, behind what is there, until the field is full.
expect-cursor E_Name 4
type E_Name " & Bo€rge"
expect E_Name "Anna & Bo\x80"
expect-focus E_Name
expect-cursor E_Name 10
key Left 2
expect-cursor E_Name 8
keys X
key Home
key Delete
key Shift+Right 2
key Delete
expect E_Name "a & Bo€"
key Ctrl+A
key Delete
expect E_Name ""
type E_Name ab
key Backspace
expect E_Name a

# Modifiers are keys of their own.
focus E_Keys
keys aB
expect L_Keys "[A](A)[Shift][Shift+B](Shift+B)(Shift)"
expect E_Keys aB
key Shift+Tab
expect-focus E_Keys
expect-like L_Keys "*[Shift+Backtab](Shift+Backtab)(Shift)"
key Tab
expect-focus E_Selecting

# What a program does when the focus comes and goes.
type E_Name .
type E_Selecting new
expect E_Selecting new
type E_Selecting er
expect E_Selecting newer
type E_Rate 0
expect E_Rate 50
focus E_Name
expect E_Rate "50 %"
key F1

# A box in the middle of typing gets the keys that follow.
type E_Limited 99999
box critical "Too high" Ok
expect E_Limited 999
expect-focus E_Limited
type E_Limited 1
expect-focus E_Limited
box critical * Ok

# Pasting is one change and no key stroke.
paste E_Counted "x\xFCy"
expect E_Counted xüy
expect L_Changes 1
paste E_Counted ""
expect E_Counted ""
expect L_Changes 2
paste E_Memo "a\nb"
expect E_Memo "a\nb"
paste E_Memo ""
expect E_Memo ""
type E_Memo "c\r\nd"
expect E_Memo "c\nd"
expect-cursor E_Memo 3
paste E_Rich new
expect E_Rich new

# Boxes to check, however wide they are.
expect-checked Chk_Option off
check Chk_Option on
expect-checked Chk_Option on
check Chk_Option on
expect-checked Chk_Option on
click Chk_Option
expect-checked Chk_Option off
check Opt_Kind(1) on
expect-checked Opt_Kind(1) on
expect-checked Opt_Kind(0) off
click Opt_Kind(0)
expect-checked Opt_Kind(1) off
expect-checked F_Frame on
check F_Frame off
expect-checked F_Frame off
expect-enabled E_Inside no
check F_Frame on
expect-enabled E_Inside yes

# Clicks, double clicks and shortcuts. Two clicks one behind the other are no double click.
click C_Count
click L_key(1)
click L_key(1)
expect L_Clicks 3
doubleclick L_key(1)
expect L_Clicks double
click L_key(1)
key Alt+c
expect L_Clicks 2

# What cannot be used can be read.
expect-enabled C_Disabled no
expect-enabled E_Off no
expect-enabled C_Count yes
expect-visible C_Hidden no
expect-visible C_Disabled yes
expect C_Hidden Hidden
expect C_Disabled Disabled
expect E_Off ""

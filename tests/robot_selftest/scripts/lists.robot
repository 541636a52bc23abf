# Lists, grids and tabs.
start
click C_Lists
mark-log
expect Cmb_Choice "0. NO LIMIT"
choose Cmb_Choice "1. NORMAL"
expect Cmb_Choice "1. NORMAL"
expect-log "picked 1. NORMAL"
choose Cmb_Choice #0
expect Cmb_Choice "0. NO LIMIT"
choose Cmb_Choice #3
expect Cmb_Choice "#1"
choose Cmb_Choice #1
choose Cmb_Choice "#1"
expect Cmb_Choice "#1"
# Picking what is picked already is picking too.
mark-log
choose Cmb_Choice #3
expect-log "picked #1"
focus Cmb_Choice
key Up
expect Cmb_Choice "2. HIGH"
expect-items Cmb_Choice "0. NO LIMIT" "1. NORMAL" "2. HIGH" "#1"
expect-count Cmb_Choice 4
expect-items Cmb_Empty
expect-count Cmb_Empty 0

expect Cmb_Foreign 12
choose Cmb_Foreign "0. A"
expect Cmb_Foreign "0. A"

type Cmb_Number 2
expect Cmb_Number 12
expect-cursor Cmb_Number 2
expect-focus Cmb_Number
paste Cmb_Number 3
expect Cmb_Number 3
choose Cmb_Number 2
expect Cmb_Number 2

choose Cmb_Many 1
expect Cmb_Many 1
choose Cmb_Many 300
expect Cmb_Many 300
choose Cmb_Many 299
expect Cmb_Many 299
choose Cmb_Many #150
expect Cmb_Many 151

expect Lst_View ""
choose Lst_View "entry 40"
expect Lst_View "entry 40"
choose Lst_View #1
expect Lst_View "entry 1"
expect-count Lst_View 50

expect-count Fg_Grid 100
expect-cell Fg_Grid 0 1 Name
expect-cell Fg_Grid 99 1 "name 99"
expect-cell Fg_Grid 5 2 ""
row Fg_Grid 1
expect L_Row 1
row Fg_Grid 99
expect L_Row 99
row Fg_Grid 50
expect L_Row 50
doubleclick Fg_Grid
expect L_Row "opened 50"
row Fg_Grid 0
expect L_Row heading

expect-tab Tab_Few 0
expect-tab Tab_Few 0 One
expect-tab Tab_Few 1 "Two & three"
expect-count Tab_Few 3
expect E_OnTwo "on two"
expect-visible E_OnTwo yes
expect-visible E_HiddenOnTwo no
tab Tab_Few 1
expect-tab Tab_Few 1 "Two & three"
expect-visible E_OnOne yes
type E_OnTwo !
expect E_OnTwo "on two!"
tab Tab_Few 0
expect-tab Tab_Few 0
tab Tab_Many 19
expect-tab Tab_Many 19 "tab 19"
tab Tab_Many 0
expect-tab Tab_Many 0
tab Tab_Many 8
expect-tab Tab_Many 8

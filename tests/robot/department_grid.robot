# The grid: its headings, a row for each of the 99 departments, labels without their digits, group 16 as 10, the price
# with its decimals.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
expect-count Fg_Department 100
expect-cell Fg_Department 0 0 "Dept."
expect-cell Fg_Department 0 1 "Name"
expect-cell Fg_Department 0 2 "Sign"
expect-cell Fg_Department 0 3 "Sale type"
expect-cell Fg_Department 0 4 "Group"
expect-cell Fg_Department 0 5 "Tax"
expect-cell Fg_Department 0 6 "Take-out tax"
expect-cell Fg_Department 0 7 "HDLO"
expect-cell Fg_Department 0 8 "Price"
expect-cell Fg_Department 1 0 "1"
expect-cell Fg_Department 1 1 "Hot drinks  "
expect-cell Fg_Department 15 7 "Up to 999.99"
expect-cell Fg_Department 15 5 "Not taxable"
expect-cell Fg_Department 18 5 "VAT rate 2"
expect-cell Fg_Department 18 6 "Not taxable"
expect-cell Fg_Department 18 8 "1.50"
expect-cell Fg_Department 19 1 "Plate back  "
expect-cell Fg_Department 19 2 "Negative"
expect-cell Fg_Department 19 3 "Normal"
expect-cell Fg_Department 19 4 "10"
expect-cell Fg_Department 20 1 "Crêpes      "
expect-cell Fg_Department 99 0 "99"
expect-cell Fg_Department 99 1 "DEPT 99     "
expect-cell Fg_Department 99 7 "No limit"
expect-cell Fg_Department 99 8 "0.00"

# A first start makes the folders that are missing, and a language file that says English. The folders that have to come
# with the installation are not made.
expect-file Log missing
expect-file Report missing
expect-file Setup/Language.ini missing
start
screen FrmPres
expect-file Log folder
expect-file Report folder
expect-file Dati/Report folder
expect-file Driver missing
expect-file FW missing
expect-file Setup/Language.ini size 1
expect-bytes Setup/Language.ini 0 00

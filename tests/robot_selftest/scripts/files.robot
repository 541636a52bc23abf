# Files can be set up before the program starts, and looked at whenever.
expect-file Setup/words.txt exists
expect-file Setup exists
expect-file Setup folder
expect-file Setup/none.txt missing
expect-file Setup/words.txt size 15
expect-text Setup/words.txt "one\r\ntwo\r\nthree"
expect-line Setup/words.txt 1 one
expect-line Setup/words.txt 3 three
expect-lines Setup/words.txt 3
expect-lines Setup/plain.txt 1
expect-bytes Setup/words.txt 3 0D0A74
expect-bytes Setup/words.txt 12 726565

write Dati/deep/new.txt "caf\xE9 €\n"
expect-bytes Dati/deep/new.txt 0 636166e920800a
expect-text Dati/deep/new.txt "café \x80\n"
expect-file Dati/deep folder
copy Dati/deep/new.txt Dati/other.txt
expect-same Dati/deep/new.txt Dati/other.txt
poke Dati/other.txt 1 00FF
expect-bytes Dati/other.txt 0 6300FFe9
expect-different Dati/deep/new.txt Dati/other.txt
poke Dati/other.txt 9 01
expect-bytes Dati/other.txt 5 800A000001
poke Dati/made.bin 2 AB
expect-bytes Dati/made.bin 0 0000AB
fill Dati/made.bin 1 4 5a
expect-bytes Dati/made.bin 0 005A5A5A5A
fill Dati/made.bin 0 0 00
expect-file Dati/made.bin size 5
truncate Dati/made.bin 2
expect-bytes Dati/made.bin 0 005A
truncate Dati/made.bin 4
expect-bytes Dati/made.bin 0 005A0000
expect-file Dati/made.bin size 4
write Dati/empty.txt ""
expect-lines Dati/empty.txt 0
expect-text Dati/empty.txt ""
make-folder Dati/folder/inside
expect-file Dati/folder/inside folder
copy Dati/deep Dati/folder/copied
expect-same Dati/folder/copied/new.txt Dati/deep/new.txt
delete Dati/folder
expect-file Dati/folder missing
delete Dati/made.bin
expect-file Dati/made.bin missing
copy script/files.robot Dati/script.txt
expect-same Dati/script.txt script/files.robot
expect-line Dati/script.txt 1 "# Files can be set up before the program starts, and looked at whenever."

# The program's own file is a link to the untouched one, which must not change with it.
poke vermanto 0 00000000
expect-bytes vermanto 0 00000000

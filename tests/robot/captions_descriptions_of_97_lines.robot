# Lines 79 to 96 label the first 18 of the other lines; line 97 stops the reading with a line in the log.
write Setup/DescCaption.ini "meaning 1\r\nmeaning 2\r\nmeaning 3\r\nmeaning 4\r\nmeaning 5\r\nmeaning 6\r\nmeaning 7\r\nmeaning 8\r\nmeaning 9\r\nmeaning 10\r\nmeaning 11\r\nmeaning 12\r\nmeaning 13\r\nmeaning 14\r\nmeaning 15\r\nmeaning 16\r\nmeaning 17\r\nmeaning 18\r\nmeaning 19\r\nmeaning 20\r\nmeaning 21\r\nmeaning 22\r\nmeaning 23\r\nmeaning 24\r\nmeaning 25\r\nmeaning 26\r\nmeaning 27\r\nmeaning 28\r\nmeaning 29\r\nmeaning 30\r\nmeaning 31\r\nmeaning 32\r\nmeaning 33\r\nmeaning 34\r\nmeaning 35\r\nmeaning 36\r\nmeaning 37\r\nmeaning 38\r\nmeaning 39\r\nmeaning 40\r\nmeaning 41\r\nmeaning 42\r\nmeaning 43\r\nmeaning 44\r\nmeaning 45\r\nmeaning 46\r\nmeaning 47\r\nmeaning 48\r\nmeaning 49\r\nmeaning 50\r\nmeaning 51\r\nmeaning 52\r\nmeaning 53\r\nmeaning 54\r\nmeaning 55\r\nmeaning 56\r\nmeaning 57\r\nmeaning 58\r\nmeaning 59\r\nmeaning 60\r\nmeaning 61\r\nmeaning 62\r\nmeaning 63\r\nmeaning 64\r\nmeaning 65\r\nmeaning 66\r\nmeaning 67\r\nmeaning 68\r\nmeaning 69\r\nmeaning 70\r\nmeaning 71\r\nmeaning 72\r\nmeaning 73\r\nmeaning 74\r\nmeaning 75\r\nmeaning 76\r\nmeaning 77\r\nmeaning 78\r\nmeaning 79\r\nmeaning 80\r\nmeaning 81\r\nmeaning 82\r\nmeaning 83\r\nmeaning 84\r\nmeaning 85\r\nmeaning 86\r\nmeaning 87\r\nmeaning 88\r\nmeaning 89\r\nmeaning 90\r\nmeaning 91\r\nmeaning 92\r\nmeaning 93\r\nmeaning 94\r\nmeaning 95\r\nmeaning 96\r\nmeaning 97"
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup

nobox
expect L_Other(0) "meaning 79"
expect L_Other(17) "meaning 96"
expect L_Other(18) "Other #19"
expect-log "Number of caption description to High"

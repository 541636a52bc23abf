# A port that was found is not asked again and again.
start
expect E_ComPort 4
expect-calls 1
wait 3.5
expect-calls 0
expect E_ComPort 4

' Names that begin with a keyword are ordinary variables.
' expect: Result=15
Format = 1
Nextone = 2
Doit = 3
Endless = 4
Calls = 5
Return Format + Nextone + Doit + Endless + Calls
End

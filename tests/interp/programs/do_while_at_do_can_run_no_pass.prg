' Do While tests before the first pass.
' expect: Result=0
n = 5
passes = 0
Do While n < 3
  passes = passes + 1
Loop
Return passes
End

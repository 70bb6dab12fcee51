' expect: Result=4
n = 0
Do Until n = 4
  n = n + 1
Loop
Return n
End

' expect: Result=5
n = 0
Do
  n = n + 1
Loop While n < 5
Return n
End

' For i = 1 To 0 runs no pass; the loop variable still takes the start value.
' expect: Result=0
' expect-value: i = 1
n = 0
For i = 1 To 0
  n = n + 1
Next
Return n
End

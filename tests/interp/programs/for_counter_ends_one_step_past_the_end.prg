' After For i = 1 To 3 the loop variable holds 4.
' expect: Result=3
' expect-value: i = 4
n = 0
For i = 1 To 3
  n = n + 1
Next
Return n
End

' A step of 0 counts as downward: with start < end the body never runs.
' expect: Result=0
n = 0
For i = 0 To 1 Step 0
  n = n + 1
Next
Return n
End

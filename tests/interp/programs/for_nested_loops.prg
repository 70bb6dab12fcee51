' Nested loops each match their own Next.
' expect: Result=12
n = 0
For a = 1 To 3
  For b = 1 To 4
    n = n + 1
  Next
Next
Return n
End

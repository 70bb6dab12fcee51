' The counter lives in the loop: assigning the loop variable inside the body
' changes neither the number of passes nor the value after Next.
' expect: Result=3
' expect-value: i = 4
n = 0
For i = 1 To 3
  n = n + 1
  i = 100
Next
Return n
End

' expect: Result=4
n = 0
Do
  n = n + 1
  Select Case n
    Case 4
      Exit Do
  End Select
Loop
Return n
End

' A Do ... Loop without condition words ends by Return.
' expect: Result=3
n = 0
Do
  n = n + 1
  If n = 3 Then
    Return n
  End If
Loop
End

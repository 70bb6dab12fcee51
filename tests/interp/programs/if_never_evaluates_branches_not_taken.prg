' A division by zero in a later condition or branch is never reached.
' expect: Result=1
If 1 = 1 Then
  r = 1
ElseIf 1/0 > 0 Then
  r = 2
Else
  r = 1/0
End If
Return r
End

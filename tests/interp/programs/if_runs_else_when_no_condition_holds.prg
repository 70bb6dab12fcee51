' expect: Result=1000
r = 0
x = 0
If x > 10 Then
  r = r + 1
ElseIf x > 3 Then
  r = r + 10
Else
  r = r + 1000
End If
Return r
End

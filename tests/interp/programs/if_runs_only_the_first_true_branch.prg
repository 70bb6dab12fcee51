' Two conditions hold; only the first of them runs.
' expect: Result=10
r = 0
x = 5
If x > 10 Then
  r = r + 1
ElseIf x > 3 Then
  r = r + 10
ElseIf x > 1 Then
  r = r + 100
Else
  r = r + 1000
End If
Return r
End

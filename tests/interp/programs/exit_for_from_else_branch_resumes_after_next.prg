' Exit For inside an Else branch leaves the loop with the variable as it was.
' expect: Result=2203
hits = 0
For i = 1 To 5
  If i < 3 Then
    hits = hits + 1
  Else
    Exit For
  End If
  hits = hits + 10
Next
Return hits * 100 + i
End

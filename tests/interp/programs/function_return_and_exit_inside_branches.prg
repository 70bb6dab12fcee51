' expect: Result=-99
Return Sign(-3) * 100 + Sign(0) * 10 + Sign(4)
End
Function Sign(v)
  If v < 0 Then
    Return -1
  End If
  If v = 0 Then
    Sign = 0
    Exit Function
  End If
  Sign = 1
End Function

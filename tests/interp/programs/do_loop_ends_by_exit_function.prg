' A Do ... Loop without condition words in a function ends by Exit Function.
' expect: Result=4
Return Spin()
End
Function Spin()
  n = 0
  Do
    n = n + 1
    Spin = n
    If n >= 4 Then
      Exit Function
    End If
  Loop
End Function

' F(n - 1, n) passes the caller's n as second argument, although the first
' argument rebinds n of the same page before the call runs.
' expect: Result=1
Return Pass(3, 0)
End
Function Pass(n, m)
  If n = 0 Then
    Pass = m
  Else
    Pass = Pass(n - 1, n)
  End If
End Function

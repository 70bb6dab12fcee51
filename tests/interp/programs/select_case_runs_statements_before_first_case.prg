' Statements between Select Case and its first Case run unconditionally.
' expect: Result=12
pre = 0
x = 2
Select Case x
  pre = pre + 1
  Case 1
    r = 1
  Case 2
    r = 2
End Select
Return pre * 10 + r
End

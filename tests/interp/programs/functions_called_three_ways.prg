' Call, a bare call statement and a call inside an expression all run the
' page; the parameter refers to the caller's variable.
' expect: Result=7
' expect-value: v = 3
' expect-value: calls = 2
Global calls
v = 1
Call Bump(v)
Bump(v)
w = Twice(v) + 1
Return w
End
Function Bump(x)
  x = x + 1
  calls = calls + 1
End Function
Function Twice(y)
  Twice = y * 2
End Function

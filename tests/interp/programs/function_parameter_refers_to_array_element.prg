' An element argument A(2) is bound by reference: the function changes it.
' expect: Result=61
' expect-value: A(3) = 0
Dim A(3)
A(2) = 5
Call Bump(A(2))
Bump(A(1))
Return A(2) * 10 + A(1)
End
Function Bump(x)
  x = x + 1
End Function

' A parameter bound to a whole array receives the whole result.
' expect: Result=25.5
' expect-value: R(0,1) = 0
Dim A(1,1)
Dim R(1,1)
A(0,0) = 2
A(1,1) = 4
Call Invert(A, R)
Return R(1,1) * 100 + R(0,0)
End
Function Invert(M, X)
  X = INVMAT(M)
End Function

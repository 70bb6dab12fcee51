' A parameter bound to one element receives the first value of the result.
' expect: Result=0.5
' expect-value: R(1) = 0
Dim A(1,1)
Dim R(2)
A(0,0) = 2
A(1,1) = 4
Call Invert(A, R(2))
Return R(2)
End
Function Invert(M, X)
  X = INVMAT(M)
End Function

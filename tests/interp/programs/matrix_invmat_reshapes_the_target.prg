' The inverse replaces a vector of six by a 2 x 2 matrix.
' expect: Result=0.4
' expect-value: Inv(0,0) = 0.6
' expect-value: Inv(0,1) = -0.7
' expect-value: Inv(1,0) = -0.2
Dim A(1,1)
Dim Inv(5)
A(0,0) = 4
A(0,1) = 7
A(1,0) = 2
A(1,1) = 6
Inv = INVMAT(A)
Return Inv(1,1)
End

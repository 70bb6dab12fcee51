' For [[1,2],[3,4]]: the sum of squares is 30, the trace 5, the determinant -2.
' expect: Result=30
' expect-value: tr = 5
' expect-value: det = -2
Dim M(1,1)
M(0,0) = 1
M(0,1) = 2
M(1,0) = 3
M(1,1) = 4
tr = MatI1(M)
det = MatI3(M)
Return MatJ2(M)
End

' X = Gauss(A,B) solves A X = B; X, a scalar before, becomes the vector.
' expect: Result=1.4
' expect-value: X(0) = 0.8
Dim A(1,1)
Dim B(1)
A(0,0) = 2
A(0,1) = 1
A(1,0) = 1
A(1,1) = 3
B(0) = 3
B(1) = 5
X = 0
X = Gauss(A,B)
Return X(1)
End

' expect: Result=7
Dim A(2)
A(0) = 1
A(1) = 2
A(2) = 4
Return Total(A)
End
Function Total(V)
  s = 0
  For k = 0 To 2
    s = s + V(k)
  Next
  Total = s
End Function

' The end value of the loop calls a function that turns the loop variable
' into a matrix; the loop still counts in element 0 of it.
' expect: Result=3
' expect-value: i(1,1) = 1
Global M(1,1)
M(0,0) = 1
M(1,1) = 1
For i = 1 To F(i)
Next
Return i
End
Function F(p)
  p = INVMAT(M)
  F = 2
End Function

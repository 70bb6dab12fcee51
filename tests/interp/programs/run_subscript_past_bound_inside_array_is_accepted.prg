' Only the flat index is checked: M(2,0) of a 2 x 2 matrix is M(0,1).
' expect: Result=7
Dim M(1,1)
M(2,0) = 7
Return M(0,1)
End

' With the case switch off, A is the variable a.
' option: case-insensitive
' expect: Result=3
a = 1
A = A + 2
Return a
End

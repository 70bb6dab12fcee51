' expect: Result=12
a = 1
A = 2
Return a * 10 + A
End

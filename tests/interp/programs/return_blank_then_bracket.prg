' expect: Result=10
x = 4
Return (x + 1) * 2
End

' Case >3 becomes selector "=" >3, which reads as =>3: 3 itself is taken.
' expect: Result=2
' expect-value: c2 = 0
' expect-value: c3 = 1
' expect-value: c4 = 1
c2 = AtLeast(2)
c3 = AtLeast(3)
c4 = AtLeast(4)
Return c2 + c3 + c4
End
Function AtLeast(v)
  AtLeast = 0
  Select Case v
    Case >3
      AtLeast = 1
  End Select
End Function

' Global in Main declares a global; a function reads and assigns it.
' expect: Result=10
' expect-value: g = 10
Global g
g = 5
Call Double()
Return g
End
Function Double()
  g = g * 2
End Function

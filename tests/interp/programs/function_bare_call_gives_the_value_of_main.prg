' A call statement without Call puts the function's value into the page's
' value, as an assignment to the page's own name does.
' expect: Result=42
Answer()
End
Function Answer()
  Answer = 42
End Function

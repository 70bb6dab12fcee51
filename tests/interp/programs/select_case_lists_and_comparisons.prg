' Case 1, 3 tests either value; Case >=5 compares; Case Else takes the rest.
' expect: Result=1
' expect-value: c1 = 1
' expect-value: c2 = 9
' expect-value: c3 = 1
' expect-value: c4 = 9
' expect-value: c5 = 5
' expect-value: c7 = 5
c1 = Classify(1)
c2 = Classify(2)
c3 = Classify(3)
c4 = Classify(4)
c5 = Classify(5)
c7 = Classify(7)
Return c1
End
Function Classify(v)
  Select Case v
    Case 1, 3
      Classify = 1
    Case >=5
      Classify = 5
    Case Else
      Classify = 9
  End Select
End Function

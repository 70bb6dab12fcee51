' A negative step counts down; a fractional step lands on the end exactly.
' expect: Result=321
' expect-value: i = 0
' expect-value: quarters = 5
s = 0
For i = 3 To 1 Step -1
  s = s * 10 + i
Next
quarters = 0
For x = 0 To 1 Step 0.25
  quarters = quarters + 1
Next
Return s
End

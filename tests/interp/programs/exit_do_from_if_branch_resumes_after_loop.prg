' Exit Do inside an If branch leaves the loop; the line after Loop runs next
' and the rest of the pass does not.
' expect: Result=32
n = 0
tail = 0
Do
  n = n + 1
  If n >= 3 Then
    Exit Do
  End If
  tail = tail + 1
Loop
after = n * 10 + tail
Return after
End

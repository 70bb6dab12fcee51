' expect: Result=306
count = 0
For a = 1 To 3
  For b = 1 To 10
    If b > 2 Then
      Exit For
    End If
    count = count + 1
  Next
  count = count + 100
Next
Return count
End

' expect: Result=0
r = 0
Select Case 7
  Case 1
    r = 1
  Case 2, 3
    r = 2
End Select
Return r
End

' expect: Code Error1
' expect-message: Main: 5行目解析エラー\nCase 2,:Case文値
x = 1
Select Case x
Case 1
a = 1
Case 2,
a = 2
End Select
End

' expect: Code Error1
' expect-message: Main: 2行目解析エラー\nSelect Case x:EndSelectが無い
x = 1
Select Case x
Case 1
a = 1
End

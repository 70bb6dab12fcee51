' expect: Code Error1
' expect-message: Main: 2行目解析エラー\nDo While a < 3:Loopが無い
a = 1
Do While a < 3
a = a + 1
End

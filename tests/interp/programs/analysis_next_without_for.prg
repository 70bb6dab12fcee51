' expect: Code Error1
' expect-message: Main: 2行目解析エラー\nNext:Forが無い
a = 1
Next
End

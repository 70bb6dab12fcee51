' expect: Code Error1
' expect-message: Main: 2行目解析エラー\na + 1:無効なコード
a = 1
a + 1
End

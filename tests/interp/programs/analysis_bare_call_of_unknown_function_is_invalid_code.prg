' expect: Code Error1
' expect-message: Main: 1行目解析エラー\nF(2):無効なコード
F(2)
End

' expect: Code Error1
' expect-message: Main: 1行目解析エラー\nCall G(1):Call文 G が無い
Call G(1)
End

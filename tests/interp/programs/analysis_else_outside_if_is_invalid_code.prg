' expect: Code Error1
' expect-message: Main: 1行目解析エラー\nElse:無効なコード
Else
End

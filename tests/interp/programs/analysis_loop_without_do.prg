' expect: Code Error1
' expect-message: Main: 1行目解析エラー\nLoop:Doが無い
Loop
End

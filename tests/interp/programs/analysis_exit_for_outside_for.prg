' expect: Code Error1
' expect-message: Main: 1行目解析エラー\nExit For:Forが無い
Exit For
End

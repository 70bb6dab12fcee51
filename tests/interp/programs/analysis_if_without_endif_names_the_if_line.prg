' expect: Code Error1
' expect-message: Main: 1行目解析エラー\nIf 1 = 1 Then:Endifが無い
If 1 = 1 Then
a = 1
End

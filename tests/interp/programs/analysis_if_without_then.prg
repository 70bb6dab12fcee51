' expect: Code Error1
' expect-message: Main: 1行目解析エラー\nIf a > 1:IF文判別式
If a > 1
a = 1
End If
End

' expect: Code Error1
' expect-message: Main: 2行目解析エラー\nFor i = 1 To 3:Nextが無い
a = 1
For i = 1 To 3
a = i
End

' expect: Code Error1
' expect-message: Main: 1行目解析エラー\nA(2) = 3:代入先が不正
A(2) = 3
End

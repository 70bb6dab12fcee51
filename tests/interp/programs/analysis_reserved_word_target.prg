' expect: Code Error1
' expect-message: Main: 1行目解析エラー\nPAI = 3:代入先が不正
' expect-hint: PAI is Reserved Word
PAI = 3
End

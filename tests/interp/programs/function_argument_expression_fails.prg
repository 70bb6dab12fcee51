' expect: End of Analize Page Number=2
' expect-message: Main: 1行目：引数式 q + 1 実行エラー\nCall F(q + 1)
Call F(q + 1)
End
Function F(x)
  F = x
End Function

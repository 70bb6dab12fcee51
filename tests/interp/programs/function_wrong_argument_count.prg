' expect: End of Analize Page Number=2
' expect-message: Main: 1行目実行エラー\nCall F(1, 2)
Call F(1, 2)
End
Function F(x)
  x = 1
End Function

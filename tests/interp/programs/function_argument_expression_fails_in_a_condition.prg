' expect: End of Analize Page Number=2
' expect-message: Main: 1行目：引数式 q + 1 実行エラー\nIf F(q + 1) > 0 Then
If F(q + 1) > 0 Then
  y = 1
End If
End
Function F(x)
  F = x
End Function

' A failing function names its own line, then the caller's statement fails.
' expect: End of Analize Page Number=2
' expect-message: F: 3行目実行エラー\nF = x + zz
' expect-message: Main: 2行目実行エラー\ny = F(2)
y = 0
y = F(2)
End
Function F(x)
  F = 1
  F = x + zz
End Function

' expect: End of Analize Page Number=1
' expect-message: Main: 1行目実行エラー\nx = MatJ2(Q)
x = MatJ2(Q)
End

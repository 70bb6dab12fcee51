' expect: End of Analize Page Number=1
' expect-message: Main: 2行目実行エラー\nA(4) = 1
Dim A(3)
A(4) = 1
End

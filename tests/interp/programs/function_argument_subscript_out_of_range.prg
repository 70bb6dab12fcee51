' expect: End of Analize Page Number=2
' expect-message: Main: 2行目：引数添字値 A(7) 範囲外\nCall F(A(7))
Dim A(3)
Call F(A(7))
End
Function F(x)
  F = x
End Function

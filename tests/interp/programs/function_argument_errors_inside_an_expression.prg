' A call inside an expression reports its argument as a Call statement does.
' expect: End of Analize Page Number=2
' expect-message: Main: 2行目：引数添字値 A(7) 範囲外\ny = F(A(7)) + 1
Dim A(3)
y = F(A(7)) + 1
End
Function F(x)
  F = x
End Function

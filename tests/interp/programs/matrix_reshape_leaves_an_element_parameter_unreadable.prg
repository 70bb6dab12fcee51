' Reading a parameter whose element no longer exists fails as well.
' expect: End of Analize Page Number=2
' expect-message: F: 3行目実行エラー\ny = x
' expect-message: Main: 4行目実行エラー\nCall F(A(5))
Global A(5), M(1,1)
M(0,0) = 1
M(1,1) = 1
Call F(A(5))
End
Function F(x)
  A = INVMAT(M)
  y = x
End Function

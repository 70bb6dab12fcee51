' A parameter bound to A(5) refers to nothing once A has shrunk to four
' elements: writing it fails instead of writing past the array.
' expect: End of Analize Page Number=2
' expect-message: F: 3行目実行エラー\nx = 3
' expect-message: Main: 4行目実行エラー\nCall F(A(5))
Global A(5), M(1,1)
M(0,0) = 1
M(1,1) = 1
Call F(A(5))
End
Function F(x)
  A = INVMAT(M)
  x = 3
End Function

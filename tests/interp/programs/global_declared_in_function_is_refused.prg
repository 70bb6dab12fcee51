' expect: Code Error2
' expect-message: SetG: 2行目解析エラー\nGlobal h:サブルーチンから大域変数は定義出来ません
Call SetG()
End
Function SetG()
  Global h
  h = 1
End Function

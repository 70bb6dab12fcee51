' A function may not be named like the global page "Imidate".
' expect: Code Error2
' expect-message: コード解析Pass1 エラー\n関数の定義不正(Function...EndFunction不正等)
x = IMIDATE(1)
End
Function IMIDATE(x)
  IMIDATE = 2
End Function

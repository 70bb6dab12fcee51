' A Function header before Main's End.
' expect: Code Error1
' expect-message: コード解析Pass1 エラー\n関数の定義不正(Function...EndFunction不正等)
a = 1
Function F(x)
End Function
End

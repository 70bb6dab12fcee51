' expect: Code Error3
' expect-message: コード解析Pass1 エラー\n関数の定義不正(Function...EndFunction不正等)
End
Function F(x)
End Function
y = 1

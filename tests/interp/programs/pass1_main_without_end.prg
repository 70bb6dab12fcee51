' expect: Code Error1
' expect-message: コード解析Pass1 エラー\n関数の定義不正(Function...EndFunction不正等)
a = 1
b = 2

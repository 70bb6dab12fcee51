' expect: Code Error2
' expect-message: Main: 1行目解析エラー\nCall F(x):Call文引数 x が無い
Call F(x)
End
Function F(y)
End Function

' expect: Code Error2
' expect-message: F: 3行目解析エラー\nNext:Forが無い
a = F(1)
End
Function F(x)
F = x
Next
End Function

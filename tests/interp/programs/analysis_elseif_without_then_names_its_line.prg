' expect: Code Error1
' expect-message: Main: 3行目解析エラー\nElseIf a > 2:IF文判別式
If 1 = 1 Then
a = 1
ElseIf a > 2
a = 2
End If
End

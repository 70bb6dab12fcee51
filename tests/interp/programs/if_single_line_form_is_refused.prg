' A statement after Then on the same line is not accepted.
' expect: Code Error1
' expect-message: Main: 2行目解析エラー\nIf c > 0 Then x = 1:IF文判別式
c = 1
If c > 0 Then x = 1
End

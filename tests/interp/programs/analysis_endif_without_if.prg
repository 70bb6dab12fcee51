' expect: Code Error1
' expect-message: Main: 2行目解析エラー\nEnd If:IFが無い
a = 1
End If
End

' expect: Code Error1
' expect-message: Main: 1行目解析エラー\nEnd Select:SelectCaseが無い
End Select
End

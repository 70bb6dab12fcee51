' With two apostrophes on a line the text between them stays in the statement.
' expect: End of Analize Page Number=1
' expect-message: Main: 1行目実行エラー\nx = 2 \q first note
x = 2 ' first note ' second note
End

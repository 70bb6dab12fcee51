' A program of comments only has no statements and no pages; the message says so.
' expect: Code Error0
' expect-message: プログラムが空です（実行する文がありません）

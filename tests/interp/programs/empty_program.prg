' A program of comments only has no statements and no pages.
' expect: Code Error0

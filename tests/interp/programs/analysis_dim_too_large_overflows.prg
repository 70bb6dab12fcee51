' expect: Code Error1
' expect-message: Main: 1行目解析エラー\nDim B(200,200):オーバーフローしました。
Dim B(200,200)
End

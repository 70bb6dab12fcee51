' expect: End of Analize Page Number=1
' expect-message: Main: 3行目実行エラー\nc = zz + 1
a = 1
b = 2
c = zz + 1
End

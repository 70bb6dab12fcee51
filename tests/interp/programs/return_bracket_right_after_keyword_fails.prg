' Return(x) loses its opening bracket and fails; Return (x) is the way.
' expect: End of Analize Page Number=1
' expect-message: Main: 2行目実行エラー\nReturn(x)
x = 4
Return(x)
End

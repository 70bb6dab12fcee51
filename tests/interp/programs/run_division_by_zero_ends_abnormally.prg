' expect: End of Analize Page Number=1
' expect-message: 実行時異常終了\n0 で除算しました。
a = 0
b = 1 / a
End

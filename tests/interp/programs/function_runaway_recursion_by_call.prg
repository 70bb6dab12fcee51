' expect: End of Analize Page Number=2
' expect-message: 実行時異常終了\nスタック領域が不足しています。
Call Deep(1)
End
Function Deep(n)
  Call Deep(n + 1)
End Function

' Recursion without end stops with one abnormal-end message, not one per level.
' expect: End of Analize Page Number=2
' expect-message: 実行時異常終了\nスタック領域が不足しています。
Return Deep(1)
End
Function Deep(n)
  Deep = Deep(n + 1)
End Function

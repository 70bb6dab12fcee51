' Runaway recursion from inside an If branch also ends with one message.
' expect: End of Analize Page Number=2
' expect-message: 実行時異常終了\nスタック領域が不足しています。
Return Deep(1)
End
Function Deep(n)
  If n > 0 Then
    Deep = Deep(n + 1)
  End If
End Function

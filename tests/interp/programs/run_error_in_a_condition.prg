' expect: End of Analize Page Number=1
' expect-message: Main: 2行目実行エラー\nElseIf zz > 1 Then
If 1 = 2 Then
ElseIf zz > 1 Then
End If
End

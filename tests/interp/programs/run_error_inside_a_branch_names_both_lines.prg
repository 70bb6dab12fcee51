' A failing statement inside a branch is reported, and then the If whose
' branch failed.
' expect: End of Analize Page Number=1
' expect-message: Main: 3行目実行エラー\nb = zz
' expect-message: Main: 2行目実行エラー\nIf a = 1 Then
a = 1
If a = 1 Then
  b = zz
End If
End

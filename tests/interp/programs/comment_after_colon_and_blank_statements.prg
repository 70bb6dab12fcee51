' a = 1 : ' note is one statement; blank statements are left out.
' expect: End of Analize Page Number=1
' expect-message: Main: 4行目実行エラー\nd = zz
a = 1 : ' note
b = 2 :: c = 3
  :
d = zz
End

' Loop Until tests after the pass.
' expect: Result=1
passes = 0
Do
  passes = passes + 1
Loop Until 1 = 1
Return passes
End

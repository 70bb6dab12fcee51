' The value of Return starts at the eighth character: Return-12 gives 12.
' expect: Result=12
Return-12
End

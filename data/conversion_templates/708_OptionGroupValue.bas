Public Function OptionGroupValue(ctlOptionGroup As Object) As Integer
    ' The value of a converted option group: the Index of the first option
    ' button of the control array that is selected, 0 when none is. The
    ' indexes are the option values of the Access group, which need not be
    ' consecutive, so the array is walked with For Each.
    Dim optCtl As OptionButton

    OptionGroupValue = 0
    If ctlOptionGroup.Count < 2 Then Exit Function
    For Each optCtl In ctlOptionGroup
        If optCtl.Value = True Then
            OptionGroupValue = optCtl.Index
            Exit For
        End If
    Next optCtl
End Function

Function AddItemsMS(qryName As String, ctl As Control, strDBType2 As String, Optional varParam1 As Variant, Optional varParam2 As Variant)
    ' Fills a standard Visual Basic list box or combo box from a saved query,
    ' an SQL statement or a value list, and returns the number of rows added.
    ' strDBType2 is "Jet", "SQL" or "String", varParam1 and varParam2 are the
    ' query's parameters (see OpenListSource). The control's Tag holds the
    ' bound column: with 0 the first column is shown and the second becomes
    ' the item data; otherwise the second is shown and the first is the item
    ' data.
    Dim rec As ADODB.Recordset, lngError As Long, strDBType As String
    Dim intColumn As Integer, intFields As Integer, intcount As Integer
    Dim vntText As Variant, X As Integer

    strDBType = OpenListSource(qryName, strDBType2, rec, lngError, varParam1, varParam2)
    intColumn = Val(ctl.Tag)
    ctl.Clear
    If qryName = "" Then Exit Function

    On Error Resume Next
    Select Case strDBType
        Case "Jet", "SQL"
            If lngError <> 0 Then Exit Function
            intFields = rec.Fields.Count
            Do While NextListRow(rec, intcount)
                ' If intCount > 100 Then Exit Do  ' Performance degrades on large lists: uncomment to limit the list.
                If intColumn = 0 Or intFields < 2 Then
                    ctl.AddItem rec(0) & ""
                    If intFields > 1 Then ctl.ItemData(ctl.NewIndex) = Val(rec(1) & "")
                Else
                    ctl.AddItem rec(1) & ""
                    ctl.ItemData(ctl.NewIndex) = Val(rec(0) & "")
                End If
            Loop
        Case "String"
            vntText = ValueListEntries(qryName)
            X = 0
            Do While X <= UBound(vntText) And Err.Number = 0
                ' If intCount > 100 Then Exit Do  ' Performance degrades on large lists: uncomment to limit the list.
                If intColumn = 0 Then
                    ctl.AddItem vntText(X)
                    X = X + 1
                Else
                    If X + 1 <= UBound(vntText) Then
                        ctl.AddItem vntText(X + 1)
                    Else
                        ctl.AddItem ""
                    End If
                    ctl.ItemData(ctl.NewIndex) = Val(vntText(X))
                    X = X + 2
                End If
                intcount = intcount + 1
            Loop
    End Select

    AddItemsMS = intcount
End Function

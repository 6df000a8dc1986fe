Function AddItemsMSF(qryName As String, ctl As Control, strDBType2 As String, Optional varParam1 As Variant, Optional varParam2 As Variant)
    ' Fills a Microsoft Forms combo box from a saved query, an SQL statement
    ' or a value list, and returns the number of rows added. strDBType2 is
    ' "Jet", "SQL" or "String", varParam1 and varParam2 are the query's
    ' parameters (see OpenListSource). A value list gives ColumnCount entries
    ' per row.
    Dim rec As ADODB.Recordset, lngError As Long, strDBType As String
    Dim intFields As Integer, intcount As Integer
    Dim vntText As Variant, X As Integer

    strDBType = OpenListSource(qryName, strDBType2, rec, lngError, varParam1, varParam2)
    ctl.Clear
    intFields = ctl.ColumnCount
    If intFields < 1 Then intFields = 1

    On Error Resume Next
    If strDBType = "Jet" Or strDBType = "SQL" Then
        If lngError <> 0 Then Exit Function
        Do While NextListRow(rec, intcount)
            ' If intCount > 100 Then Exit Do  ' Performance degrades on large lists: uncomment to limit the list.
            ctl.AddItem rec(0) & ""
            For X = 1 To rec.Fields.Count - 1
                ctl.List(ctl.ListCount - 1, X) = rec(X) & ""
            Next X
        Loop
    ElseIf strDBType = "String" Then
        vntText = ValueListEntries(qryName)
        Do While UBound(vntText) >= intcount * intFields And Err.Number = 0
            ' If intCount > 100 Then Exit Do  ' Performance degrades on large lists: uncomment to limit the list.
            ctl.AddItem vntText(intcount * intFields)
            For X = 1 To intFields - 1
                If intcount * intFields + X <= UBound(vntText) Then
                    ctl.List(ctl.ListCount - 1, X) = vntText(intcount * intFields + X)
                End If
            Next X
            intcount = intcount + 1
        Loop
    End If

    AddItemsMSF = intcount
End Function

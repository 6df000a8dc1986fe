Function AddItemsSS(qryName As String, ctl As Control, strDBType2 As String, Optional varParam1 As Variant, Optional varParam2 As Variant)
    ' Fills a Sheridan Data Widgets list or combo box from a saved query, an
    ' SQL statement or a value list, and returns the number of rows added.
    ' strDBType2 is "Jet", "SQL" or "String", varParam1 and varParam2 are the
    ' query's parameters (see OpenListSource). The columns of a row are
    ' joined by "~", the control's column separator.
    Dim rec As ADODB.Recordset, lngError As Long, strDBType As String
    Dim blnRedraw As Boolean, intcount As Integer
    Dim vntFirst As Variant, vntSecond As Variant

    strDBType = OpenListSource(qryName, strDBType2, rec, lngError, varParam1, varParam2)
    ctl.RemoveAll
    If qryName = "" Then Exit Function
    blnRedraw = ctl.Visible
    If blnRedraw Then ctl.Redraw = False

    On Error Resume Next
    If strDBType = "Jet" Or strDBType = "SQL" Then
        Do While NextListRow(rec, intcount)
            ' If intCount > 100 Then Exit Do  ' Performance degrades on large lists: uncomment to limit the list.
            ctl.AddItem ListRowText(rec, "~")
        Loop
    ElseIf strDBType = "String" Then
        Do While NextValueListPair(qryName, intcount, vntFirst, vntSecond)
            ' If intCount > 100 Then Exit Do  ' Performance degrades on large lists: uncomment to limit the list.
            ctl.AddItem vntFirst & "~" & vntSecond
        Loop
    End If

    If blnRedraw Then ctl.Redraw = True
    AddItemsSS = intcount
End Function

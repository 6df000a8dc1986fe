Function AddItems(qryName As String, ctl As Control, strDBType2 As String, Optional varParam1 As Variant, Optional varParam2 As Variant)
    ' Fills the Kestrel list box from a saved query, an SQL statement or a
    ' value list, and returns the number of rows added. strDBType2 is "Jet",
    ' "SQL" or "String", varParam1 and varParam2 are the query's parameters
    ' (see OpenListSource). The control's Tag holds the bound column: with 1
    ' a value list gives the item text first and the item data second,
    ' otherwise the other way round.
    Dim rec As ADODB.Recordset, lngError As Long, strDBType As String
    Dim intColumn As Integer, intcount As Integer
    Dim vntFirst As Variant, vntSecond As Variant

    strDBType = OpenListSource(qryName, strDBType2, rec, lngError, varParam1, varParam2)
    ctl.Redraw = False
    ctl.Rows = ctl.FixedRows
    intColumn = Val(ctl.Tag)

    On Error Resume Next
    If strDBType = "Jet" Or strDBType = "SQL" Then
        Do While NextListRow(rec, intcount)
            ' If intCount > 100 Then Exit Do  ' Performance degrades on large lists: uncomment to limit the list.
            ctl.AddItem ListRowText(rec, vbTab) & vbTab
        Loop
    ElseIf strDBType = "String" Then
        Do While NextValueListPair(qryName, intcount, vntFirst, vntSecond)
            ' If intCount > 100 Then Exit Do  ' Performance degrades on large lists: uncomment to limit the list.
            If intColumn = 1 Then
                ctl.AddItem CStr(vntFirst)
                ctl.ItemData(ctl.Rows - 1) = Val(vntSecond & "")
            Else
                ctl.AddItem vntSecond & ""
                ctl.ItemData(ctl.Rows - 1) = Val(vntFirst)
            End If
        Loop
    End If

    ctl.Redraw = True
    AddItems = intcount
End Function

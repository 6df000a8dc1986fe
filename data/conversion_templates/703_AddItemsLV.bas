Function AddItemsLV(qryName As String, ctl As Control, strDBType2 As String, Optional varParam1 As Variant, Optional varParam2 As Variant)
    ' Fills a Microsoft ListView from a saved query, an SQL statement or a
    ' value list, and returns the number of rows added. strDBType2 is "Jet",
    ' "SQL" or "String", varParam1 and varParam2 are the query's parameters
    ' (see OpenListSource). The first column is the item's text, the others
    ' its sub-items; the ListView counts sub-items from 1.
    Dim rec As ADODB.Recordset, lngError As Long, strDBType As String
    Dim intcount As Integer
    Dim vntFirst As Variant, vntSecond As Variant

    strDBType = OpenListSource(qryName, strDBType2, rec, lngError, varParam1, varParam2)
    ctl.ListItems.Clear
    If qryName = "" Then Exit Function

    On Error Resume Next
    If strDBType = "Jet" Or strDBType = "SQL" Then
        Do While NextListRow(rec, intcount)
            ' If intCount > 500 Then Exit Do  ' Performance degrades on large lists: uncomment to limit the list.
            ctl.ListItems.Add Text:=rec(0) & ""
            SetListSubItems ctl.ListItems(intcount), rec, 1
        Loop
    ElseIf strDBType = "String" Then
        Do While NextValueListPair(qryName, intcount, vntFirst, vntSecond)
            ' If intCount > 500 Then Exit Do  ' Performance degrades on large lists: uncomment to limit the list.
            ctl.ListItems.Add Text:=vntFirst
            ctl.ListItems(intcount).SubItems(1) = vntSecond & ""
        Loop
    End If

    AddItemsLV = intcount
End Function

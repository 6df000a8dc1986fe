Function AddItemsGT(qryName As String, ctl As Control, strDBType2 As String, Optional varParam1 As Variant, Optional varParam2 As Variant)
    ' Fills a GreenTree DataList list or combo box from a saved query, an SQL
    ' statement or a value list, and returns the number of rows added.
    ' strDBType2 is "Jet", "SQL" or "String"; a query name that begins with
    ' "Jet  " or "SQLPassthrough  " (from the control's tag) overrides it.
    ' varParam1 and varParam2 are the query's parameters. Each row is one list
    ' item whose columns are its sub-items, counted from 0.
    Dim rec As ADODB.Recordset
    Dim qry As ADODB.Command
    Dim X As Integer
    Dim intParamCount As Integer
    Dim intcount As Integer
    Dim strDBType As String
    Dim intFields As Integer
    Dim vntText As Variant

    strDBType = strDBType2
    If Left$(qryName, 5) = "Jet  " Then
        strDBType = "Jet"
        qryName = Mid$(qryName, 6)
    ElseIf Left$(qryName, 16) = "SQLPassthrough  " Then
        strDBType = "SQL"
        qryName = Mid$(qryName, 17)
    End If

    If Not IsMissing(varParam1) Then intParamCount = intParamCount + 1
    If Not IsMissing(varParam2) Then intParamCount = intParamCount + 1

    ctl.Clear
    If qryName = "" Then Exit Function

    Set rec = New ADODB.Recordset
    On Error Resume Next
    If strDBType = "Jet" Or strDBType = "SQL" Then
        If intParamCount = 0 Then
            rec.Open qryName, pConn, adOpenForwardOnly
        Else
            Set qry = New ADODB.Command
            Set qry.ActiveConnection = pConn
            qry.CommandText = qryName
            qry.Parameters(0).Value = varParam1
            If intParamCount = 2 Then qry.Parameters(1).Value = varParam2
            Set rec = qry.Execute
        End If
        If rec.State = adStateOpen Then
            intFields = rec.Fields.Count
            ' Performance degrades on large lists. To limit the list, use
            ' If intCount > 100 Then Exit Do
            Do While Not rec.EOF
                ctl.ListItems.Add
                intcount = intcount + 1
                For X = 0 To intFields - 1
                    ctl.ListItems(intcount).SubItems(X) = rec(X) & ""
                Next X
                ' A row the control refuses loses only itself; a failed move ends the walk.
                Err.Clear
                rec.MoveNext
                If Err.Number <> 0 Then Exit Do
            Loop
            rec.Close
        End If
    ElseIf strDBType = "String" Then
        ' Performance degrades on large lists. To limit the list, use
        ' If intCount > 100 Then Exit Do
        X = 1
        Do While Err.Number = 0
            vntText = GetToken(qryName, X, ";")
            If IsNull(vntText) Then Exit Do
            ctl.ListItems.Add
            intcount = intcount + 1
            ctl.ListItems(intcount).SubItems(0) = vntText
            ctl.ListItems(intcount).SubItems(1) = GetToken(qryName, X + 1, ";") & ""
            X = X + 2
        Loop
    End If

    AddItemsGT = intcount
End Function

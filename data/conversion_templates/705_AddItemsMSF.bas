Function AddItemsMSF(qryName As String, ctl As Control, strDBType2 As String, Optional varParam1 As Variant, Optional varParam2 As Variant)
    ' Fills a Microsoft Forms combo box from a saved query, an SQL statement
    ' or a value list, and returns the number of rows added. strDBType2 is
    ' "Jet", "SQL" or "String"; a query name that begins with "Jet  " or
    ' "SQLPassthrough  " (from the control's tag) overrides it. varParam1 and
    ' varParam2 are the query's parameters. A value list gives ColumnCount
    ' entries per row.
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
    intFields = ctl.ColumnCount
    If intFields < 1 Then intFields = 1

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
        If Err.Number <> 0 Then Exit Function
        intFields = rec.Fields.Count
        ' Performance degrades on large lists. To limit the list, use
        ' If intCount > 100 Then Exit Do
        Do While Not rec.EOF
            ctl.AddItem rec(0) & ""
            For X = 1 To intFields - 1
                ctl.List(ctl.ListCount - 1, X) = rec(X) & ""
            Next X
            intcount = intcount + 1
            ' A row the control refuses loses only itself; a failed move ends the walk.
            Err.Clear
            rec.MoveNext
            If Err.Number <> 0 Then Exit Do
        Loop
        rec.Close
    ElseIf strDBType = "String" Then
        vntText = Split(qryName, ";")
        ' Performance degrades on large lists. To limit the list, use
        ' If intCount > 100 Then Exit Do
        Do While UBound(vntText) >= intcount * intFields And Err.Number = 0
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

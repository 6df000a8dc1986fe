Function AddItemsMS(qryName As String, ctl As Control, strDBType2 As String, Optional varParam1 As Variant, Optional varParam2 As Variant)
    ' Fills a standard Visual Basic list box or combo box from a saved query,
    ' an SQL statement or a value list, and returns the number of rows added.
    ' strDBType2 is "Jet", "SQL" or "String"; a query name that begins with
    ' "Jet  " or "SQLPassthrough  " (from the control's tag) overrides it.
    ' varParam1 and varParam2 are the query's parameters. The control's Tag
    ' holds the bound column: with 0 the first column is shown and the second
    ' becomes the item data; otherwise the second is shown and the first is
    ' the item data.
    Dim rec As ADODB.Recordset
    Dim qry As ADODB.Command
    Dim X As Integer
    Dim intParamCount As Integer
    Dim intcount As Integer
    Dim strDBType As String
    Dim intFields As Integer
    Dim vntText As Variant
    Dim intColumn As Integer

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

    intColumn = Val(ctl.Tag)
    ctl.Clear
    If qryName = "" Then Exit Function

    Set rec = New ADODB.Recordset
    On Error Resume Next
    Select Case strDBType
        Case "Jet", "SQL"
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
                If intColumn = 0 Or intFields < 2 Then
                    ctl.AddItem rec(0) & ""
                    If intFields > 1 Then ctl.ItemData(ctl.NewIndex) = Val(rec(1) & "")
                Else
                    ctl.AddItem rec(1) & ""
                    ctl.ItemData(ctl.NewIndex) = Val(rec(0) & "")
                End If
                intcount = intcount + 1
                ' A row the control refuses loses only itself; a failed move ends the walk.
                Err.Clear
                rec.MoveNext
                If Err.Number <> 0 Then Exit Do
            Loop
            rec.Close
        Case "String"
            vntText = Split(qryName, ";")
            ' Performance degrades on large lists. To limit the list, use
            ' If intCount > 100 Then Exit Do
            X = 0
            Do While X <= UBound(vntText) And Err.Number = 0
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

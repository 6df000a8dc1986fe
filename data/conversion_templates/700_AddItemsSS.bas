Function AddItemsSS(qryName As String, ctl As Control, strDBType2 As String, Optional varParam1 As Variant, Optional varParam2 As Variant)
    ' Fills a Sheridan Data Widgets list or combo box from a saved query, an
    ' SQL statement or a value list, and returns the number of rows added.
    ' strDBType2 is "Jet", "SQL" or "String"; a query name that begins with
    ' "Jet  " or "SQLPassthrough  " (from the control's tag) overrides it.
    ' varParam1 and varParam2 are the query's parameters.
    Dim rec As ADODB.Recordset
    Dim qry As ADODB.Command
    Dim X As Integer
    Dim intParamCount As Integer
    Dim intcount As Integer
    Dim strDBType As String
    Dim intFields As Integer
    Dim strText As String
    Dim blnRedraw As Boolean

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

    ctl.RemoveAll
    If qryName = "" Then Exit Function
    blnRedraw = ctl.Visible
    If blnRedraw Then ctl.Redraw = False

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
                strText = ""
                For X = 0 To intFields - 1
                    If X > 0 Then strText = strText & "~"
                    strText = strText & rec(X)
                Next X
                ctl.AddItem strText
                intcount = intcount + 1
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
            If IsNull(GetToken(qryName, X, ";")) Then Exit Do
            ctl.AddItem GetToken(qryName, X, ";") & "~" & GetToken(qryName, X + 1, ";")
            intcount = intcount + 1
            X = X + 2
        Loop
    End If

    If blnRedraw Then ctl.Redraw = True
    AddItemsSS = intcount
End Function

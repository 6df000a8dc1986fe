Public Function DVar(Expr As String, Domain As String, Optional Criteria As String) As Variant
    ' Like Access's DVar: the variance (sample) of Expr
    ' over the rows of the table or query Domain that meet Criteria, a
    ' Where clause without "Where".
    Dim rec As DAO.Recordset

    If db Is Nothing Then
        ' A project converted from an Access data project opens no DAO
        ' database; the ADO connection answers instead.
        If Criteria = vbNullString Then
            DVar = DomainLookupAdo("Select Var(" & Expr & ") From " & Domain)
        Else
            DVar = DomainLookupAdo("Select Var(" & Expr & ") From " & Domain & " Where " & Criteria)
        End If
        Exit Function
    End If
    If Criteria = vbNullString Then
        Set rec = db.OpenRecordset("Select Var(" & Expr & ") From " & Domain, dbOpenForwardOnly)
    Else
        Set rec = db.OpenRecordset("Select Var(" & Expr & ") From " & Domain & " Where " & Criteria, dbOpenForwardOnly)
    End If
    DVar = rec(0)
    rec.Close
End Function

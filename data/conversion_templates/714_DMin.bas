Public Function DMin(Expr As String, Domain As String, Optional Criteria As String) As Variant
    ' Like Access's DMin: the smallest value of Expr
    ' over the rows of the table or query Domain that meet Criteria, a
    ' Where clause without "Where".
    Dim rec As DAO.Recordset

    If db Is Nothing Then
        ' A project converted from an Access data project opens no DAO
        ' database; the ADO connection answers instead.
        If Criteria = vbNullString Then
            DMin = DomainLookupAdo("Select Min(" & Expr & ") From " & Domain)
        Else
            DMin = DomainLookupAdo("Select Min(" & Expr & ") From " & Domain & " Where " & Criteria)
        End If
        Exit Function
    End If
    If Criteria = vbNullString Then
        Set rec = db.OpenRecordset("Select Min(" & Expr & ") From " & Domain, dbOpenForwardOnly)
    Else
        Set rec = db.OpenRecordset("Select Min(" & Expr & ") From " & Domain & " Where " & Criteria, dbOpenForwardOnly)
    End If
    DMin = rec(0)
    rec.Close
End Function

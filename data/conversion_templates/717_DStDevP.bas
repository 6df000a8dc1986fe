Public Function DStDevP(Expr As String, Domain As String, Optional Criteria As String) As Variant
    ' Like Access's DStDevP: the standard deviation (population) of Expr
    ' over the rows of the table or query Domain that meet Criteria, a
    ' Where clause without "Where".
    Dim rec As DAO.Recordset

    If db Is Nothing Then
        ' A project converted from an Access data project opens no DAO
        ' database; the ADO connection answers instead.
        If Criteria = vbNullString Then
            DStDevP = DomainLookupAdo("Select StDevP(" & Expr & ") From " & Domain)
        Else
            DStDevP = DomainLookupAdo("Select StDevP(" & Expr & ") From " & Domain & " Where " & Criteria)
        End If
        Exit Function
    End If
    If Criteria = vbNullString Then
        Set rec = db.OpenRecordset("Select StDevP(" & Expr & ") From " & Domain, dbOpenForwardOnly)
    Else
        Set rec = db.OpenRecordset("Select StDevP(" & Expr & ") From " & Domain & " Where " & Criteria, dbOpenForwardOnly)
    End If
    DStDevP = rec(0)
    rec.Close
End Function

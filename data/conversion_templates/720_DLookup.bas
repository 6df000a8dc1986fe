Public Function DLookup(Expr As String, Domain As String, Optional Criteria As String) As Variant
    ' Like Access's DLookup: the value of Expr in the first row of the table
    ' or query Domain that meets Criteria, a Where clause without "Where";
    ' Null when no row does.
    Dim rec As DAO.Recordset

    If db Is Nothing Then
        ' A project converted from an Access data project opens no DAO
        ' database; the ADO connection answers instead.
        If Criteria = vbNullString Then
            DLookup = DomainLookupAdo("Select " & Expr & " From " & Domain)
        Else
            DLookup = DomainLookupAdo("Select " & Expr & " From " & Domain & " Where " & Criteria)
        End If
        Exit Function
    End If
    If Criteria = vbNullString Then
        Set rec = db.OpenRecordset("Select " & Expr & " From " & Domain, dbOpenForwardOnly)
    Else
        Set rec = db.OpenRecordset("Select " & Expr & " From " & Domain & " Where " & Criteria, dbOpenForwardOnly)
    End If
    If rec.EOF Then
        DLookup = Null
    Else
        DLookup = rec(0)
    End If
    rec.Close
End Function

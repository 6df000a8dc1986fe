Public Function DLookup(Expr As String, Domain As String, Optional Criteria As String) As Variant
    ' Like Access's DLookup: the value of Expr in the first row of the table
    ' or query Domain that meets Criteria, a Where clause without "Where";
    ' Null when no row does.
    DLookup = DomainLookup(Expr, Domain, Criteria)
End Function

Public Function DLast(Expr As String, Domain As String, Optional Criteria As String) As Variant
    ' Like Access's DLast: the last value of Expr over the rows of the table or
    ' query Domain that meet Criteria, a Where clause without "Where".
    DLast = DomainLookup("Last(" & Expr & ")", Domain, Criteria)
End Function

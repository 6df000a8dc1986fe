Public Function DMin(Expr As String, Domain As String, Optional Criteria As String) As Variant
    ' Like Access's DMin: the smallest value of Expr over the rows of the table
    ' or query Domain that meet Criteria, a Where clause without "Where".
    DMin = DomainLookup("Min(" & Expr & ")", Domain, Criteria)
End Function

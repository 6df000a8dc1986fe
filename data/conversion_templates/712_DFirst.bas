Public Function DFirst(Expr As String, Domain As String, Optional Criteria As String) As Variant
    ' Like Access's DFirst: the first value of Expr over the rows of the table
    ' or query Domain that meet Criteria, a Where clause without "Where".
    DFirst = DomainLookup("First(" & Expr & ")", Domain, Criteria)
End Function

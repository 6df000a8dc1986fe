Public Function DSum(Expr As String, Domain As String, Optional Criteria As String) As Variant
    ' Like Access's DSum: the sum of Expr over the rows of the table or query
    ' Domain that meet Criteria, a Where clause without "Where".
    DSum = DomainLookup("Sum(" & Expr & ")", Domain, Criteria)
End Function

Public Function DAvg(Expr As String, Domain As String, Optional Criteria As String) As Variant
    ' Like Access's DAvg: the average of Expr over the rows of the table or
    ' query Domain that meet Criteria, a Where clause without "Where".
    DAvg = DomainLookup("Avg(" & Expr & ")", Domain, Criteria)
End Function

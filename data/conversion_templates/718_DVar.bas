Public Function DVar(Expr As String, Domain As String, Optional Criteria As String) As Variant
    ' Like Access's DVar: the variance (sample) of Expr over the rows of the
    ' table or query Domain that meet Criteria, a Where clause without "Where".
    DVar = DomainLookup("Var(" & Expr & ")", Domain, Criteria)
End Function

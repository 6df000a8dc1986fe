Public Function DVarP(Expr As String, Domain As String, Optional Criteria As String) As Variant
    ' Like Access's DVarP: the variance (population) of Expr over the rows of
    ' the table or query Domain that meet Criteria, a Where clause without
    ' "Where".
    DVarP = DomainLookup("VarP(" & Expr & ")", Domain, Criteria)
End Function

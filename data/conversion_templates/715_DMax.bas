Public Function DMax(Expr As String, Domain As String, Optional Criteria As String) As Variant
    ' Like Access's DMax: the largest value of Expr over the rows of the table
    ' or query Domain that meet Criteria, a Where clause without "Where".
    DMax = DomainLookup("Max(" & Expr & ")", Domain, Criteria)
End Function

Public Function DStDev(Expr As String, Domain As String, Optional Criteria As String) As Variant
    ' Like Access's DStDev: the standard deviation (sample) of Expr over the
    ' rows of the table or query Domain that meet Criteria, a Where clause
    ' without "Where".
    DStDev = DomainLookup("StDev(" & Expr & ")", Domain, Criteria)
End Function

Public Function DStDevP(Expr As String, Domain As String, Optional Criteria As String) As Variant
    ' Like Access's DStDevP: the standard deviation (population) of Expr over
    ' the rows of the table or query Domain that meet Criteria, a Where clause
    ' without "Where".
    DStDevP = DomainLookup("StDevP(" & Expr & ")", Domain, Criteria)
End Function

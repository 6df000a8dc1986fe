Public Function DCount(Expr As String, Domain As String, Optional Criteria As String) As Variant
    ' Like Access's DCount: the number of non-Null values of Expr over the rows
    ' of the table or query Domain that meet Criteria, a Where clause without
    ' "Where".
    DCount = DomainLookup("Count(" & Expr & ")", Domain, Criteria)
End Function

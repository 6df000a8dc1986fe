Public Function SysCmdVB(iAction As Integer, Optional vTextOrObjectType As Variant, Optional vValueOrObjectName As Variant) As Variant
    ' Stands in for Access's SysCmd in a project without a status bar: only
    ' the two queries are answered (see SysCmdQuery), every other action
    ' raises error 5.
    SysCmdVB = SysCmdQuery(iAction, vTextOrObjectType, vValueOrObjectName)
End Function

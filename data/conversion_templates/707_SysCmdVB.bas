Public Function SysCmdVB(iAction As Integer, Optional vTextOrObjectType As Variant, Optional vValueOrObjectName As Variant) As Variant
    ' Stands in for Access's SysCmd in a project without a status bar: only
    ' the two queries are answered, every other action raises error 5.
    Dim frm As Form

    Select Case iAction
        Case 13
            ' The workgroup information file.
            SysCmdVB = DBEngine.SystemDB
        Case 10
            ' The state of an object; only forms are known here: 1 when a
            ' form of that name is loaded, else 0.
            If CInt(vTextOrObjectType) = 2 Then
                SysCmdVB = 0
                For Each frm In Forms
                    If LCase$(frm.Name) = LCase$(CStr(vValueOrObjectName)) Then
                        SysCmdVB = 1
                        Exit For
                    End If
                Next frm
            Else
                Err.Raise 5
            End If
        Case Else
            Err.Raise 5
    End Select
End Function

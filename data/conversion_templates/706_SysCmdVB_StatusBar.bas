Public Function SysCmdVB(iAction As Integer, Optional vTextOrObjectType As Variant, Optional vValueOrObjectName As Variant) As Variant
    ' Stands in for Access's SysCmd. The meter and the status text are shown
    ' in the status area of MDIParent: the progress bar progStatus stands to
    ' the right of the caption lblStatusBarCaption.
    Dim frm As Form

    Select Case iAction
        Case 1
            ' Initialise the meter: vTextOrObjectType is the caption,
            ' vValueOrObjectName the maximum.
            MDIParent.progStatus.Max = CInt(vValueOrObjectName)
            MDIParent.lblStatusBarCaption.Caption = CStr(vTextOrObjectType)
            MDIParent.progStatus.Left = MDIParent.lblStatusBarCaption.Left + MDIParent.lblStatusBarCaption.Width + 75
            MDIParent.progStatus.Visible = True
        Case 2
            ' Update the meter.
            MDIParent.progStatus.Value = CInt(vTextOrObjectType)
        Case 3
            ' Remove the meter.
            MDIParent.progStatus.Visible = False
            MDIParent.lblStatusBarCaption.Caption = ""
        Case 4
            ' Set the status text.
            If MDIParent.progStatus.Visible Then MDIParent.progStatus.Visible = False
            MDIParent.lblStatusBarCaption.Caption = CStr(vTextOrObjectType)
        Case 5
            ' Clear the status text.
            If MDIParent.progStatus.Visible Then MDIParent.progStatus.Visible = False
            MDIParent.lblStatusBarCaption.Caption = ""
        Case 13
            ' The workgroup information file.
#If Win16 Then
            SysCmdVB = DBEngine.IniPath
#Else
            SysCmdVB = DBEngine.SystemDB
#End If
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

Public Function SysCmdVB(iAction As Integer, Optional vTextOrObjectType As Variant, Optional vValueOrObjectName As Variant) As Variant
    ' Stands in for Access's SysCmd. The meter and the status text are shown
    ' in the status area of MDIParent: the progress bar progStatus stands to
    ' the right of the caption lblStatusBarCaption.
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
        Case Else
            ' The actions that need no status bar.
            SysCmdVB = SysCmdQuery(iAction, vTextOrObjectType, vValueOrObjectName)
    End Select
End Function

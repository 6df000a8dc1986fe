Attribute VB_Name = "basDoCmd"
Option Compare Database
Option Explicit

Private Sub Form_Open(Cancel As Integer)
    DoCmd.OpenForm "Orders"
    If Me!Total > 0 Then Cancel = True
End Sub

Public Sub Examples()
    Dim x As Variant
    DoCmd.Beep ' a trailing comment fails the whole-line test
    DoCmd.Beep
    DoCmd.GoToControl "Total" ' a comment is no argument
    DoCmd.OpenForm "Orders", , , , , acDialog, "x"
    DoCmd.OpenForm "Customers"
    DoCmd.RunMacro "M1", 3
    DoCmd.RunMacro "M2"
    DoCmd.OpenQuery "qrySelect"
    DoCmd.OpenQuery "qryAppend"
    DoCmd.OpenQuery "qryNowhere"
    Forms!Invoices.REQUERY
    DoCmd.GoToPage 2
    Application.Quit
    Application.Quit ' with more text
    x = Application.hWndAccessApp
    DoCmd.Hourglass True
    DoCmd.CancelEvent
    DoCmd.Close
    DoCmd.Close acForm, "Orders"
    DoCmd.Close acReport, "rptOrders"
    DoCmd.MoveSize 1440, 1440
    DoCmd.Requery "lstItems"
    DoCmd.GotoControl "txtName"
    DoCmd.Restore
    DoCmd.RunSQL "DELETE * FROM tblTemp"
    DoCmd.Echo False
    x = "DoCmd.Beep"
    Call AddItems(x)
End Sub

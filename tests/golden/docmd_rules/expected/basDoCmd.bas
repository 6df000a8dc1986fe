Attribute VB_Name = "basDoCmd"

Option Explicit

Private Function Form_Open() as Integer
    Orders.Show	'MORVANE DoCmd.OpenForm "Orders"
    If Me!Total > 0 Then Form_Open = True
End Function

Public Sub Examples()
    Dim x As Variant
    'MORVANE DoCmd.Beep ' a trailing comment fails the whole-line test
    Beep
    Screen.ActiveForm.Controls( "Total").SetFocus	'MORVANE DoCmd.GoToControl "Total" ' a comment is no argument
    Load Orders
    Orders.Openargs = "x"
    Orders.Show vbModal 	'MORVANE DoCmd.OpenForm "Orders", , , , , acDialog, "x"
    GetFormFromName("Customers").Show	'MORVANE DoCmd.OpenForm "Customers"
    Dim iRunMacroCount as Integer
    For iRunMacroCount = 1 to  3
        Call M1
    Next	'MORVANE DoCmd.RunMacro "M1", 3
    Call M2
    'MORVANE DoCmd.OpenQuery "qrySelect"
    db.Execute "qryAppend"	'MORVANE DoCmd.OpenQuery "qryAppend"
    'MORVANE DoCmd.OpenQuery "qryNowhere"
    Call InitializeComboBoxes	'MORVANE Invoices.REQUERY
    Screen.ActiveForm.SSTab1.Tab =  2 - 1
    End
    'MORVANE Application.Quit ' with more text
    x = App.hInstance
    Screen.MousePointer = vbHourglass
    Cancel = True	'MORVANE DoCmd.CancelEvent
    Unload Screen.ActiveForm
    Unload Orders	'MORVANE DoCmd.Close acForm, "Orders"
    'MORVANE DoCmd.Close acReport, "rptOrders"
    'me.move new left,new top,width,height 'MORVANE 'MORVANE DoCmd.MoveSize 1440, 1440
    lstItems.requery	'MORVANE DoCmd.Requery "lstItems"
    Screen.ActiveForm.Controls( "txtName").SetFocus	'MORVANE DoCmd.GotoControl "txtName"
    Screen.ActiveForm.Windowstate = 0	'MORVANE DoCmd.Restore
    DB.Execute "DELETE * FROM tblTemp"	'MORVANE DoCmd.RunSQL "DELETE * FROM tblTemp"
    'MORVANE DoCmd.Echo False
    x = "DoCmd.Beep"
    Call AddItems(x)
End Sub

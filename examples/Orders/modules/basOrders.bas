Attribute VB_Name = "basOrders"
Option Compare Database
Option Explicit

' Order handling for the Orders sample application.
Public Const APP_TITLE = "Orders"
Private mlngLastOrder As Long

Public Function OpenOrders(Optional ByVal strCustomer As String = "") As Boolean
    On Error GoTo OpenOrders_Err
    DoCmd.Hourglass True
    If Len(strCustomer) > 0 Then
        DoCmd.OpenForm "frmOrders", , , , , acDialog, strCustomer
    Else
        DoCmd.OpenForm "frmOrders"
    End If
    DoCmd.Hourglass False
    OpenOrders = True
OpenOrders_Exit:
    Exit Function
OpenOrders_Err:
    DoCmd.Hourglass False
    MsgBox Err.Description, vbExclamation, APP_TITLE
    Resume OpenOrders_Exit
End Function

Public Sub ArchiveOldOrders()
    DoCmd.SetWarnings False
    DoCmd.OpenQuery "qryAppendArchive"
    DoCmd.RunSQL "DELETE FROM tblOrders WHERE OrderDate < #1/1/1999#"
    DoCmd.SetWarnings True
    DoCmd.OpenQuery "qryCustomerList"
End Sub

Public Sub CloseOrders()
    DoCmd.Close acForm, "frmOrders"
    DoCmd.Close
    DoCmd.Beep
End Sub

Public Sub RepeatRefresh(ByVal intTimes As Integer)
    Dim i As Integer
    For i = 1 To intTimes
        DoCmd.RunMacro "mcrRefresh", 3
    Next i
    Select Case intTimes
        Case 0
            DoCmd.Maximize
        Case Else
            DoCmd.Minimize
    End Select
End Sub

Public Sub LeaveApplication()
    If MsgBox("Quit " & APP_TITLE & "?", vbYesNo) = vbYes Then
        Application.Quit
    End If
    Debug.Print Application.CurrentProject.Name
End Sub

Public Function LastOrder() As Long
    LastOrder = mlngLastOrder
End Function

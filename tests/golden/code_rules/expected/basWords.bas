Attribute VB_Name = "basWords"

Option Explicit

Private Type tItem
    Values() As Long
    Caption As String
End Type

' Rules act on whole words of the code, never on text in strings.
Public Sub Words(obj As Object, frm As Object)
    Dim rs As Recordset
    Dim rst As Recordset
    Dim Orders As Object
    Static aNames() As String
    Dim l As MSForms.Label
    Dim d As Date
    Dim s As String
    Set rs = db.OpenRecordset("tblOrders")
    Orders.Caption = "Orders"
    rs!Total = 1
    Set rst = New ADODB.Recordset
    rst.Open "SELECT * FROM tblOrders", CurrentProject.Connection
    GetFormFromName(Me.CallingForm).Requery
    Set frm = GetFormFromName(obj.Name)
    d = obj.ObjectDate
    s = "Open the forms. Then close them." & Forms.Count
    s = CreateObject("Excel.Application").Name
    MsgBox "Application.Quit"   ' not Application.Echo
    s = frm.txtDate.Format
    s = GetCurrentUser
    s = Eval("[Forms]![frmOrders]![txtTotal] > 0")
End Sub

Private Function GetCurrentUser() As String
    GetCurrentUser = Environ("USERNAME")
End Function

Private Function cmdOK_Exit() as Integer
    Dim bCancel As Boolean
    bCancel = True
    cmdOK_Exit = True
End Function

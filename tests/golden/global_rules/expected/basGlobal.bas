Attribute VB_Name = "basGlobal"

Option Explicit

Dim mrs As Recordset

Public Sub Rules()
    dim  rs As Recordset
    Set rs = db.OpenRecordset("x", DBOPENDYNASET)
    x = Orders!Total
    x = GetFormFromName("Customers")!Total
    Orders.Caption = "Orders"
    x = MyForms!Total
    y = Val(Text1.Text)
    Me.Timer1.Interval = 0
    x = MyDCount(1) + DAvg("Amount", "tblOrders")
    v = SysCmdVB(1, "Working", 10)
    rs!OrderID = mrs!Total
    rs.MoveFirst
    y = rs!orderid.Value
    'MORVANE Me.AllowEdits = False
    x.onclick = 1
    'MORVANE x.OnClick = "=f"
    'MORVANE Set f = Me.Form
    'MORVANE Debug.Print Reports!rptSales.Caption
End Sub

Public Sub OtherDatabase(path As String)
    dim  tdf As DAO.TableDef _
        , fld As DAO.Field
    If Len(path) > 0 Then
        Set db = OpenDatabase(path)
    Else

    End If

End Sub

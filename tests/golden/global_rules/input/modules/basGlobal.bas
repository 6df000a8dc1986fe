Attribute VB_Name = "basGlobal"
Option Compare Database
Option Explicit

Dim mrs As Recordset

Public Sub Rules()
    Dim db As Database, rs As Recordset
    Set rs = CurrentDb().OpenRecordset("x", DB_OPEN_DYNASET)
    x = Forms("Orders")!Total
    x = Forms("Customers")!Total
    Forms.Orders.Caption = "Orders"
    x = MyForms!Total
    y = Val(Text1.Text())
    Me.TimerInterval = 0
    x = MyDCount(1) + DAvg("Amount", "tblOrders")
    v = SysCmd(acSysCmdInitMeter, "Working", 10)
    rs.OrderID = mrs.Total
    rs.MoveFirst
    y = rs.orderid.Value
    Me.AllowEdits = False
    x.onclick = 1
    x.OnClick = "=f()"
    Set f = Me.Form
    Debug.Print Reports!rptSales.Caption
End Sub

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

Public Sub OtherDatabase(path As String)
    Dim db As DAO.Database _
        , tdf As DAO.TableDef _
        , fld As DAO.Field
    If Len(path) > 0 Then
        Set db = OpenDatabase(path)
    Else
        Set db = CurrentDb
    End If
    Set db = DBEngine(0)(0) ' the same database
End Sub

Attribute VB_Name = "basStatistics"
Option Compare Database
Option Explicit

' Figures for the order overview: domain aggregates, a recordset walk and the
' status bar.
Private mrsOrders As Recordset

Public Function OrderTotal(ByVal lngCustomer As Long) As Currency
    Dim db As Database, rs As Recordset
    Dim curTotal As Currency
    Set db = CurrentDb()
    Set rs = db.OpenRecordset("SELECT * FROM tblOrders WHERE CustomerID = " & lngCustomer, DB_OPEN_SNAPSHOT)
    Do While Not rs.EOF
        curTotal = curTotal + rs.Amount
        rs.MoveNext
    Loop
    rs.Close
    OrderTotal = curTotal
End Function

Public Sub ShowOverview()
    Dim varResult As Variant
    varResult = SysCmd(acSysCmdSetStatus, "Counting orders...")
    Forms!frmOrders!txtCount = DCount("*", "tblOrders")
    Forms![frmOrders]!txtSum = DSum("Amount", "tblOrders")
    Forms("frmOrders").Caption = "Orders of " & DLookup("CompanyName", "tblCustomers", "CustomerID = 1")
    varResult = SysCmd(acSysCmdClearStatus)
    DoCmd.OpenForm "frmOrders"
End Sub

Public Sub OpenFirstOrder()
    Set mrsOrders = CurrentDb.OpenRecordset("tblOrders")
    If Not mrsOrders.EOF Then Debug.Print mrsOrders.OrderID
End Sub

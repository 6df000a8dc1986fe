Attribute VB_Name = "basRefresh"
Option Compare Database
Option Explicit

Public Sub RefreshLists()
    Forms![frmLists].REQUERY
    Forms![Stock Levels].REQUERY
End Sub

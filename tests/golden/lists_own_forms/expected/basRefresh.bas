Attribute VB_Name = "basRefresh"

Option Explicit

Public Sub RefreshLists()
    datfrmLists.Refresh	'MORVANE [frmLists].REQUERY
    datStock_Levels.Refresh	'MORVANE GetFormFromName("Stock Levels").REQUERY
End Sub

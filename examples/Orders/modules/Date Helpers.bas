Attribute VB_Name = "Date Helpers"
Option Compare Database

Public Function EndOfMonth(ByVal dtm As Date) As Date
    EndOfMonth = DateSerial(Year(dtm), Month(dtm) + 1, 0)
End Function

Public Sub ShowWeek()
    DoCmd.MoveSize 100, 100
    DoCmd.GoToPage 2
End Sub

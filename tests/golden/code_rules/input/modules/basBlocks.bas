Attribute VB_Name = "basBlocks"
Option Compare Database
Option Explicit

' Block lines that use what Visual Basic lacks keep their blocks.
Private mfrm As Access.Form

Public Property Get Host() As Access.Form: Set Host = mfrm: End Property

Public Sub Blocks(frm As Object)
    Dim x As Long
    Dim ctl As Object
    If frm.AllowEdits = True Then
        x = 1
    ElseIf Application.Name = "Access" Then
        x = 2
    Else
        x = 3
    End If
    With frm.RecordsetClone
        .MoveFirst
    End With
    For Each ctl In frm.Form.Controls
        x = x + 1
    Next ctl
    For x = 1 To frm.RecordsetClone.RecordCount
        Debug.Print x
    Next
    Select Case frm.RecordsetClone.RecordCount
    Case 0: x = 0: frm.Undo
    Case acLBOpen
        x = 4
    Case Else
        x = 5
    End Select
    Do While frm.Dirty And frm.Locked
        x = x - 1
    Loop
    Do
        x = x + 1
    Loop Until frm.RecordsetClone.EOF
    While frm.Painting
        x = 0
    Wend
    If frm.Dirty Then DoCmd.RunCommand acCmdSaveRecord
Exit_Here: Exit Sub
End Sub

' A statement continued over lines is one statement.
Public Function Continued(strTable As String) As Long
    Dim rs As Recordset
    Set rs = CurrentDb.OpenRecordset("SELECT * FROM " & _
        strTable & _
        " WHERE Done = False", DB_OPEN_DYNASET)
    Continued = DLookup("[ID]", "tblItems", _
        "[Name] = '" & strTable & "'")
    If Continued > 0 Then Me.AllowEdits = _
        False
    Debug.Print "Count: " & _
        Me.RecordsetClone.RecordCount
    Rem// A comment: after Rem
End Function

' Numbered lines keep their numbers, also in front of a stand-in.
Public Function Numbered(frm As Form) As Boolean
10  On Error GoTo 80
20  If frm.RecordsetClone.RecordCount = 0 Then
30      Exit Function
40  Else
50      Numbered = True
60  End If
70  Exit Function
80  Numbered = False
End Function

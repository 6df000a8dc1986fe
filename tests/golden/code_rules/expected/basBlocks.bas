Attribute VB_Name = "basBlocks"

Option Explicit

' Block lines that use what Visual Basic lacks keep their blocks.
Private mfrm As Object	'MORVANE Private mfrm As Access.Form

Public Property Get Host() As Object	'MORVANE Public Property Get Host As Access.Form
    Set Host = mfrm
End Property

Public Sub Blocks(frm As Object)
    Dim x As Long
    Dim ctl As Object
    If NotTranslated("basBlocks", 11) Then	'MORVANE If frm.AllowEdits = True Then
        x = 1
    ElseIf NotTranslated("basBlocks", 13) Then	'MORVANE ElseIf Application.Name = "Access" Then
        x = 2
    Else
        x = 3
    End If
    With NotTranslated("basBlocks", 18)	'MORVANE With frm.RecordsetClone
        .MoveFirst
    End With
    For Each ctl In NotTranslated("basBlocks", 21)	'MORVANE For Each ctl In frm.Form.Controls
        x = x + 1
    Next ctl
    For x = NotTranslated("basBlocks", 24) To 0	'MORVANE For x = 1 To frm.RecordsetClone.RecordCount
        Debug.Print x
    Next
    Select Case NotTranslated("basBlocks", 27)	'MORVANE Select Case frm.RecordsetClone.RecordCount
        Case 0
            x = 0
            'MORVANE frm.Undo
        Case NotTranslated("basBlocks", 29)	'MORVANE Case acLBOpen
            x = 4
        Case Else
            x = 5
    End Select
    Do While NotTranslated("basBlocks", 34)	'MORVANE Do While frm.Dirty And frm.Locked
        x = x - 1
    Loop
    Do
        x = x + 1
    Loop Until NotTranslated("basBlocks", 39)	'MORVANE Loop Until frm.RecordsetClone.EOF
    While NotTranslated("basBlocks", 40)	'MORVANE While frm.Painting
        x = 0
    Wend
    'MORVANE If frm.Dirty Then DoCmd.RunCommand acCmdSaveRecord
Exit_Here:
    Exit Sub
End Sub

' A statement continued over lines is one statement.
Public Function Continued(strTable As String) As Long
    Dim rs As Recordset
    Set rs = db.OpenRecordset("SELECT * FROM " & _
        strTable & _
        " WHERE Done = False", DBOPENDYNASET)
    Continued = DLookup("[ID]", "tblItems", _
        "[Name] = '" & strTable & "'")
    'MORVANE If Continued > 0 Then Me.AllowEdits = _
    'MORVANE False
    'MORVANE Debug.Print "Count: " & _
    'MORVANE Me.RecordsetClone.RecordCount
    Rem// A comment: after Rem
End Function

' Numbered lines keep their numbers, also in front of a stand-in.
Public Function Numbered(frm As Form) As Boolean
10  On Error GoTo 80
20 If NotTranslated("basBlocks", 65) Then	'MORVANE 20  If frm.RecordsetClone.RecordCount = 0 Then
30      Exit Function
40  Else
50      Numbered = True
60  End If
70  Exit Function
80  Numbered = False
End Function

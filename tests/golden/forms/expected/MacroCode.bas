Attribute VB_Name = "MacroCode"
Public CodeContextObject As VB.Form
'------------------------------------------------------------
' AutoKeys___F1_
'
'------------------------------------------------------------
Function AutoKeys___F1_ ()
    On Error GoTo AutoKeys___F1__Err

    Beep


AutoKeys___F1__Exit:
    Exit Function

AutoKeys___F1__Err:
    MsgBox Error$
    Resume AutoKeys___F1__Exit

End Function


'------------------------------------------------------------
' AutoKeys___F1_1
'
'------------------------------------------------------------
Function AutoKeys___F1_1 ()
    On Error GoTo AutoKeys___F1_1_Err

    Beep


AutoKeys___F1_1_Exit:
    Exit Function

AutoKeys___F1_1_Err:
    MsgBox Error$
    Resume AutoKeys___F1_1_Exit

End Function


'------------------------------------------------------------
' mcrBeep
'
'------------------------------------------------------------
Function mcrBeep ()
    On Error GoTo mcrBeep_Err

    Beep


mcrBeep_Exit:
    Exit Function

mcrBeep_Err:
    MsgBox Error$
    Resume mcrBeep_Exit

End Function


'------------------------------------------------------------
' mcrForm_Closing
'
'------------------------------------------------------------
Function mcrForm_Closing ()
    On Error GoTo mcrForm_Closing_Err

    MsgBox "Closing", vbOKOnly, ""


mcrForm_Closing_Exit:
    Exit Function

mcrForm_Closing_Err:
    MsgBox Error$
    Resume mcrForm_Closing_Exit

End Function


'------------------------------------------------------------
' mcrForm_Lookup
'
'------------------------------------------------------------
Function mcrForm_Lookup ()
    On Error GoTo mcrForm_Lookup_Err
    With CodeContextObject

        If (IsNull ( .Customer )) Then
            Beep
        End If

    End With

mcrForm_Lookup_Exit:
    Exit Function

mcrForm_Lookup_Err:
    MsgBox Error$
    Resume mcrForm_Lookup_Exit

End Function


'------------------------------------------------------------
' frmEvents_chkRush_OnClick
'
'------------------------------------------------------------
Function frmEvents_chkRush_OnClick ()
    On Error GoTo frmEvents_chkRush_OnClick_Err

    Beep


frmEvents_chkRush_OnClick_Exit:
    Exit Function

frmEvents_chkRush_OnClick_Err:
    MsgBox Error$
    Resume frmEvents_chkRush_OnClick_Exit

End Function



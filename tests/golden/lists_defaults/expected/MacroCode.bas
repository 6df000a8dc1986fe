Attribute VB_Name = "MacroCode"
Public CodeContextObject As VB.Form
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



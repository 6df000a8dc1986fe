Attribute VB_Name = "MacroCode"
Public CodeContextObject As VB.Form

'MORVANE Beep


'------------------------------------------------------------
' mcrGroup_First
'
'------------------------------------------------------------
Function mcrGroup_First ()
    On Error GoTo mcrGroup_First_Err

    Beep


mcrGroup_First_Exit:
    Exit Function

mcrGroup_First_Err:
    MsgBox Error$
    Resume mcrGroup_First_Exit

End Function


'------------------------------------------------------------
' mcrRows
'
'------------------------------------------------------------
Function mcrRows ()
    On Error GoTo mcrRows_Err
    With CodeContextObject

        Beep
        If (DCount ( "*" , "tblItems" ) > 0 And .Code <> "000") Then
            Beep
        End If
        If (.[Order ID] = 1 Or DateValue ( frmStart![Date Updated] ) = DateValue ( frmStart!Today )) Then
            Beep
        End If
        'MORVANE Forms!frmStart!Total  =

    End With

mcrRows_Exit:
    Exit Function

mcrRows_Err:
    MsgBox Error$
    Resume mcrRows_Exit

End Function



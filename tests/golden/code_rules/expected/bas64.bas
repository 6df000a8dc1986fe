Attribute VB_Name = "bas64"

Option Explicit

' 64-bit declarations where Visual Basic 6 compiles them.
Private Declare Function GetTickCount Lib "kernel32" () As Long
Private Declare Function SendMessage Lib "user32" Alias "SendMessageA" _
    (ByVal hWnd As Long, ByVal wMsg As Long, _
    ByVal wParam As Long, lParam As Any) As Long

Private Type tLarge
    Size As Currency
    Handle As Long
End Type

Public Function Handle(ByVal v As Variant) As Long
    Handle = CLng(v)
End Function

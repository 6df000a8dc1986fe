Attribute VB_Name = "bas64"
Option Compare Database
Option Explicit

' 64-bit declarations where Visual Basic 6 compiles them.
Private Declare PtrSafe Function GetTickCount Lib "kernel32" () As Long
Private Declare PtrSafe Function SendMessage Lib "user32" Alias "SendMessageA" _
    (ByVal hWnd As LongPtr, ByVal wMsg As Long, _
    ByVal wParam As LongPtr, lParam As Any) As LongPtr

Private Type tLarge
    Size As LongLong
    Handle As LongPtr
End Type

Public Function Handle(ByVal v As Variant) As LongPtr
    Handle = CLngPtr(v)
End Function

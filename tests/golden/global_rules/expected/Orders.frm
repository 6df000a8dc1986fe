VERSION 5.00
Begin VB.Form Orders
   BorderStyle = 2
   Caption ="Orders"
   ClientHeight = 1000
   ClientLeft = 250
   ClientTop = 500
   ClientWidth = 0
   Height = 1000
   Left = 250
   LinkTopic = ""
   MaxButton = -1
   MinButton = -1
   ShowInTaskbar = 0
   Top = 500
   Width = 0
   BackColor= &HFFFFFF&
   ControlBox=-1
   BeginProperty Font
      Name = "Arial"
      charset = 0
      weight = 400
      Size = 8
      underline = 0
      italic = 0
      strikethrough = 0
   EndProperty
   ForeColor=&H00000000&
   MDIChild = -1
   HelpContextID=0
End
Attribute VB_Name = "Orders"


VERSION 5.00
Object="{86CF1D34-0C5F-11D2-A9FC-0000F8754DA1}#2.0#0"; "MSCOMCT2.OCX"
Begin VB.UserControl cfsfrmNotes
   ClientHeight = 600
   ClientLeft = 0
   ClientTop = 0
   ClientWidth = 4400
   ScaleHeight = 600
   ScaleWidth = 4400
   BackColor = &HFFFFFF&
   Begin MSComCtl2.DTPicker txtNoteDate
      Left = 100
      Top = 50
      _Version = 393216
      Width = 1200
      _ExtentX = 1200
      Height = 255
      _ExtentY = 255
      DataField ="NoteDate"
      Format = 22937601
      HelpContextID = 0
      TabIndex =0
      BackColor= &H80000005&
      ForeColor= &H80000008&
      BeginProperty Font
         Name = "MS Sans Serif"
         charset = 0
         weight = 400
         Size = 8
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
   End
   Begin VB.TextBox txtNote_Text
      DataField ="Note_Text"
      BorderStyle=0
      Appearance=0
      Height = 255
      Left = 1400
      Top = 50
      Width = 2000
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =1
      BackColor= &H80000005&
      ForeColor= &H80000008&
      BeginProperty Font
         Name = "MS Sans Serif"
         charset = 0
         weight = 400
         Size = 8
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
   End
   Begin VB.CheckBox chkDone
      Value = 0
      BeginProperty Font
         charset = 0
         strikethrough = 0
      EndProperty
      Height = 240
      Left = 3600
      TabIndex = 2
      Top = 50
      Width = 260
      HelpContextID = 0
      DataField ="Done"
   End
   Begin VB.Line linSplit
      BorderColor =  &H0&
      X1 =0
      X2 =4400
      Y1 =550
      Y2 =550
   End
   Begin VB.CommandButton cmdOpen
      BeginProperty Font
         Name = "MS Sans Serif"
         charset = 0
         weight = 700
         Size = 10
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
      Picture = "cfsfrmNotes.ctx":0000
      Tag ="Open"
      Style = 1
      Height = 300
      Left = 3950
      TabIndex = 4
      Top = 20
      Width = 400
      HelpContextID = 0
   End
   Begin VB.ComboBox cboKind
      DataField ="Kind"
      Left = 100
      Top = 320
      Width = 1200
      HelpContextID = 0
      TabIndex =3
      BackColor= &H80000005&
      ForeColor= &H80000008&
      BeginProperty Font
         Name = "MS Sans Serif"
         charset = 0
         weight = 400
         Size = 8
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
   End
End
Attribute VB_Name = "cfsfrmNotes"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = True
Attribute VB_PredeclaredId = False
Attribute VB_Exposed = True
Option Explicit
Private Sub txtNoteDate_Change()
    'PropertyChanged "NoteDate"
End Sub

Public Property Get NoteDate() As Variant
    Attribute NoteDate.VB_MemberFlags = "14"
    NoteDate = txtNoteDate.Value
End Property

Public Property Let NoteDate(ByVal vNewValue As Variant)
    txtNoteDate.Value = vNewValue
    'PropertyChanged "NoteDate"
End Property

Private Sub txtNote_Text_Change()
    'PropertyChanged "Note_Text"
End Sub

Public Property Get Note_Text() As Variant
    Attribute Note_Text.VB_MemberFlags = "14"
    Note_Text = txtNote_Text.Text
End Property

Public Property Let Note_Text(ByVal vNewValue As Variant)
    txtNote_Text.Text = vNewValue
    'PropertyChanged "Note_Text"
End Property

Private Sub chkDone_Click()
    'PropertyChanged "Done"
End Sub

Public Property Get Done() As Boolean
    Attribute Done.VB_MemberFlags = "14"
    Done = chkDone.Value = vbChecked
End Property

Public Property Let Done(ByVal bNewValue As Boolean)
    chkDone.Value = IIf(bNewValue, vbChecked, vbUnchecked)
    'PropertyChanged "Done"
End Property

Private Sub cboKind_Change()
    'PropertyChanged "Kind"
End Sub

Public Property Get Kind() As Variant
    Attribute Kind.VB_MemberFlags = "14"
    Kind = cboKind.Text
End Property

Public Property Let Kind(ByVal vNewValue As Variant)
    cboKind.Text = vNewValue
    'PropertyChanged "Kind"
End Property


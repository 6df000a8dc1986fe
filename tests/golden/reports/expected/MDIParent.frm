VERSION 5.00
Object = "{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0"; "MSCOMCTL.OCX"
Begin VB.MDIForm MDIParent
   BackColor       =   &H8000000C&
   Caption         =   "MDIParent"
   ClientHeight    =   6495
   ClientLeft      =   165
   ClientTop       =   735
   ClientWidth     =   9480
   LinkTopic       =   "MDIForm1"
   StartUpPosition =   3  'Windows Default
   WindowState     =   2  'Maximized
   Begin VB.PictureBox picStatusBar
      Align           =   2  'Align Bottom
      BorderStyle     =   0  'None
      Height          =   375
      Left            =   0
      ScaleHeight     =   375
      ScaleWidth      =   9480
      TabIndex        =   0
      TabStop         =   0   'False
      Top             =   6120
      Width           =   9480
      Begin MSComctlLib.ProgressBar progStatus
         Height          =   255
         Left            =   3075
         TabIndex        =   2
         Top             =   60
         Visible         =   0   'False
         Width           =   3000
         _ExtentX        =   5292
         _ExtentY        =   450
         _Version        =   393216
         Appearance      =   1
      End
      Begin VB.Label lblStatusBarCaption
         BackStyle       =   0  'Transparent
         Height          =   255
         Left            =   120
         TabIndex        =   1
         Top             =   90
         Width           =   2880
      End
   End
End
Attribute VB_Name = "MDIParent"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
' The main window of the converted application. The forms open inside it;
' its status area at the bottom holds the status text lblStatusBarCaption
' and the meter progStatus, which SysCmdVB drives.
Option Explicit

Private Sub MDIForm_Load()
    Me.Caption = App.Title
End Sub

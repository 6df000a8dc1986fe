VERSION 5.00
Object="{67397AA1-7FB1-11D0-B148-00A0C922E820}#6.0#0"; "MSADODC.OCX"
Object="{86CF1D34-0C5F-11D2-A9FC-0000F8754DA1}#2.0#0"; "MSCOMCT2.OCX"
Begin VB.Form sfrmNotes
   BorderStyle = 2
   Caption ="sfrmNotes"
   ClientHeight = 1200
   ClientLeft = 250
   ClientTop = 500
   ClientWidth = 4400
   Height = 1200
   Left = 250
   LinkTopic = ""
   MaxButton = -1
   MinButton = -1
   ShowInTaskbar = 0
   Top = 500
   Width = 4400
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
   HelpContextID=0
   Begin MSAdodcLib.Adodc datsfrmNotes
      Height = 300
      Left = 0
      Top = 870
      Width = 2700
      _ExtentX = 5212
      _ExtentY = 767
      ConnectMode = 0
      CursorLocation = 3
      IsolationLevel = -1
      ConnectionTimeout = 15
      CommandTimeout = 30
      CursorType = 2
      LockType = 3
      CommandType = 2
      CursorOptions = 0
      CacheSize = 50
      MaxRecords = 0
      BOFAction = 0
      EOFAction = 0
      ConnectStringType = 1
      Appearance = 1
      BackColor = -2147483643
      ForeColor = -2147483640
      Orientation = 0
      Enabled = -1
      Connect = "Provider=Microsoft.Jet.OLEDB.4.0;Persist Security Info=False;Data Source=input.mdb"
      OLEDBString = "Provider=Microsoft.Jet.OLEDB.4.0;Persist Security Info=False;Data Source=input.mdb"
      OLEDBFile = ""
      DataSourceName = ""
      OtherAttributes = ""
      UserName = ""
      Password = ""
      Visible = -1
      RecordSource = "qryNotes"
      Caption = "datsfrmNotes"
      BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851}
         Name = "MS Sans Serif"
         charset = 0
         weight = 400
         Size = 8.25
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
      _Version = 393216
   End
   Begin MSComCtl2.DTPicker NoteDate
      Left = 100
      Top = 350
      _Version = 393216
      Width = 1200
      _ExtentX = 1200
      Height = 255
      _ExtentY = 255
      DataSource ="datsfrmNotes"
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
   Begin VB.TextBox Note_Text
      DataSource ="datsfrmNotes"
      DataField ="Note Text"
      BorderStyle=0
      Appearance=0
      Height = 255
      Left = 1400
      Top = 350
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
   Begin VB.CheckBox Done
      Value = 0
      BeginProperty Font
         charset = 0
         strikethrough = 0
      EndProperty
      Height = 240
      Left = 3600
      TabIndex = 2
      Top = 350
      Width = 260
      HelpContextID = 0
      DataSource ="datsfrmNotes"
      DataField ="Done"
   End
   Begin VB.Line linSplit
      BorderColor =  &H0&
      X1 =0
      X2 =4400
      Y1 =850
      Y2 =850
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
      Picture = "sfrmNotes.frx":0000
      Tag ="Open"
      Style = 1
      Height = 300
      Left = 3950
      TabIndex = 4
      Top = 320
      Width = 400
      HelpContextID = 0
   End
   Begin VB.ComboBox cboKind
      Height = 255
      Left = 100
      TabIndex = 3
      Top = 620
      Width = 1200
      HelpContextID = 0
      BackColor= &H80000005&
      BeginProperty Font
         Name = "MS Sans Serif"
         charset = 0
         weight = 400
         Size = 8
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
      ForeColor= &H80000008&
      DataSource ="datsfrmNotes"
      DataField ="Kind"
   End
   Begin VB.Frame Section
      Caption =  ""
      BackColor= &HC0C0C0&
      Height = 300
      Left = 0
      Index = 1
      Top = 0
      Width = 4400
      BorderStyle = 0
      Begin VB.Label lblNotes
         BackColor= &H8000000F&
         BorderStyle=0
         Caption="Notes"
         ForeColor= &H80000012&
         BeginProperty Font
            Name = "MS Sans Serif"
            charset = 0
            weight = 400
            Size = 8
            underline = 0
            italic = 0
            strikethrough = 0
         EndProperty
         Height = 255
         Left = 100
         Top = 20
         Width = 2000
      End
      
   End
   Begin VB.Frame Section
      Caption =  ""
      BackColor= &HC0C0C0&
      Height = 300
      Left = 0
      Index = 2
      Top = 900
      Width = 4400
      BorderStyle = 0
      Begin VB.Label lblEnd
         BackColor= &H8000000F&
         BorderStyle=0
         Caption="End of notes"
         ForeColor= &H80000012&
         BeginProperty Font
            Name = "MS Sans Serif"
            charset = 0
            weight = 400
            Size = 8
            underline = 0
            italic = 0
            strikethrough = 0
         EndProperty
         Height = 255
         Left = 100
         Top = 20
         Width = 2000
      End
      
   End
End
Attribute VB_Name = "sfrmNotes"



Private Sub NoteDate_DblClick()
    MsgBox Me.datsfrmNotes.recordset.Fields("NoteDate")
End Sub
Private Function InitialDataCtlCaptions()
    On Error Resume Next
    datsfrmNotes.Recordset.movenext
    datsfrmNotes.Recordset.moveFirst
End Function
Private Sub datsfrmNotes_MoveComplete(ByVal adReason As ADODB.EventReasonEnum, ByVal pError As ADODB.Error, adStatus As ADODB.EventStatusEnum, ByVal pRecordset As ADODB.Recordset)
    On Error Resume Next
End Sub
Private Function InitializeComboBoxes()
    Call AddItemsMS("A;B", me!cboKind, "String")
End Function
Private Sub Form_Load()
    Call InitializeComboBoxes()
    Call InitialDataCtlCaptions()
End Sub
Private Sub Form_Activate()
    Dim vReturnValue as variant
    vReturnValue=InitialDataCtlCaptions()
End Sub

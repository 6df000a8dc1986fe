VERSION 5.00
Object="{67397AA1-7FB1-11D0-B148-00A0C922E820}#6.0#0"; "MSADODC.OCX"
Begin VB.Form sfrmCalls
   BorderStyle = 2
   Caption ="sfrmCalls"
   ClientHeight = 400
   ClientLeft = 250
   ClientTop = 500
   ClientWidth = 5800
   Height = 400
   Left = 250
   LinkTopic = ""
   MaxButton = -1
   MinButton = -1
   ShowInTaskbar = 0
   Top = 500
   Width = 5800
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
   Begin MSAdodcLib.Adodc datsfrmCalls
      Height = 300
      Left = 0
      Top = 70
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
      RecordSource = "qryCalls"
      Caption = "datsfrmCalls"
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
   Begin VB.TextBox CallDate
      DataSource ="datsfrmCalls"
      DataField ="CallDate"
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 100
      Top = 50
      Width = 1500
      Locked =0
      ScrollBars = 0
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
   Begin VB.TextBox Topic
      DataSource ="datsfrmCalls"
      DataField ="Topic"
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1700
      Top = 50
      Width = 3000
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
End
Attribute VB_Name = "sfrmCalls"

Private Function InitialDataCtlCaptions()
    On Error Resume Next
    datsfrmCalls.Recordset.movenext
    datsfrmCalls.Recordset.moveFirst
End Function
Private Sub datsfrmCalls_MoveComplete(ByVal adReason As ADODB.EventReasonEnum, ByVal pError As ADODB.Error, adStatus As ADODB.EventStatusEnum, ByVal pRecordset As ADODB.Recordset)
    On Error Resume Next
End Sub
Private Sub Form_Activate()
    Dim vReturnValue as variant
    vReturnValue=InitialDataCtlCaptions()
End Sub

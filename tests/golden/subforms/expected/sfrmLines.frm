VERSION 5.00
Object="{67397AA1-7FB1-11D0-B148-00A0C922E820}#6.0#0"; "MSADODC.OCX"
Begin VB.Form sfrmLines
   BorderStyle = 2
   Caption ="sfrmLines"
   ClientHeight = 1500
   ClientLeft = 250
   ClientTop = 500
   ClientWidth = 5000
   Height = 1500
   Left = 250
   LinkTopic = ""
   MaxButton = -1
   MinButton = -1
   ShowInTaskbar = 0
   Top = 500
   Width = 5000
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
   Begin MSAdodcLib.Adodc datsfrmLines
      Height = 300
      Left = 0
      Top = 1170
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
      RecordSource = "qryOrderLines"
      Caption = "datsfrmLines"
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
   Begin VB.TextBox OrderID
      DataSource ="datsfrmLines"
      DataField ="OrderID"
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1500
      Top = 100
      Width = 0
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =2
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
   Begin VB.TextBox ProductName
      DataSource ="datsfrmLines"
      DataField ="ProductName"
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1500
      Top = 400
      Width = 2500
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
   Begin VB.Label ProductName_Label
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Product"
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
      Top = 400
      Width = 1300
   End
   Begin VB.TextBox Qty
      DataSource ="datsfrmLines"
      DataField ="Qty"
      BorderStyle=1
      Appearance=0
      Alignment =1
      Height = 255
      Left = 1500
      Top = 700
      Width = 1000
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
   Begin VB.CommandButton cmdDelete
      BeginProperty Font
         Name = "MS Sans Serif"
         charset = 0
         weight = 700
         Size = 10
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
      Caption = "Delete"
      Height = 300
      Left = 1500
      TabIndex = 3
      Top = 1000
      Width = 1000
      HelpContextID = 0
   End
End
Attribute VB_Name = "sfrmLines"



Private Sub cmdDelete_Click()
    'MORVANE DoCmd.RunCommand acCmdDeleteRecord
End Sub
Private Function InitialDataCtlCaptions()
    On Error Resume Next
    datsfrmLines.Recordset.movenext
    datsfrmLines.Recordset.moveFirst
End Function
Private Sub datsfrmLines_MoveComplete(ByVal adReason As ADODB.EventReasonEnum, ByVal pError As ADODB.Error, adStatus As ADODB.EventStatusEnum, ByVal pRecordset As ADODB.Recordset)
    On Error Resume Next
End Sub
Private Sub Form_Activate()
    Dim vReturnValue as variant
    vReturnValue=InitialDataCtlCaptions()
End Sub

VERSION 5.00
Object="{67397AA1-7FB1-11D0-B148-00A0C922E820}#6.0#0"; "MSADODC.OCX"
Object="{86CF1D34-0C5F-11D2-A9FC-0000F8754DA1}#2.0#0"; "MSCOMCT2.OCX"
Object="{0BA686C6-F7D3-101A-993E-0000C0EF6F5E}#1.0#0"; "THREED32.OCX"
Object="{8E27C92E-1264-101C-8A2F-040224009C02}#7.0#0"; "MSCAL.OCX"
Begin VB.Form frmControls
   BorderStyle = 2
   Caption ="Every control"
   ClientHeight = 6000
   ClientLeft = 250
   ClientTop = 500
   ClientWidth = 9000
   Height = 6000
   Left = 250
   LinkTopic = ""
   MaxButton = -1
   MinButton = -1
   ShowInTaskbar = 0
   Top = 500
   Width = 9000
   BackColor= &H8000000F&
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
   Begin MSAdodcLib.Adodc datfrmControls
      Height = 300
      Left = 0
      Top = 5670
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
      RecordSource = "qryOrders"
      Caption = "datfrmControls"
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
   Begin VB.Label lblTitle
      BackColor= &H8000000F&
      BackStyle=0
      BorderStyle=0
      Caption="Orders ""open"""
      ForeColor= &H80000012&
      BeginProperty Font
         Name = "Tahoma"
         charset = 0
         weight = 700
         Size = 12
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
      Alignment =2
      Height = 255
      Left = 120
      Top = 120
      Width = 2000
      ToolTipText ="The title"
   End
   Begin VB.Label lblNotice
      BackColor= &H8000000F&
      BackStyle=0
      BorderStyle=0
      Caption="Caption set in Form_Load event"
      ForeColor= &H80000012&
      BeginProperty Font
         Name = "Tahoma"
         charset = 0
         weight = 400
         Size = 8
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
      Height = 255
      Left = 3300
      Top = 120
      Width = 2000
   End
   Begin VB.TextBox OrderID
      DataSource ="datfrmControls"
      DataField ="OrderID"
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1800
      Top = 600
      Width = 1500
      Locked =1
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =0
      BackColor= &H80000005&
      ForeColor= &H80000008&
      BeginProperty Font
         Name = "Tahoma"
         charset = 0
         weight = 400
         Size = 8
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
   End
   Begin VB.Label OrderID_Label
      BackColor= &H8000000F&
      BackStyle=0
      BorderStyle=0
      Caption="Order"
      ForeColor= &H80000012&
      BeginProperty Font
         Name = "Tahoma"
         charset = 0
         weight = 400
         Size = 8
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
      Height = 255
      Left = 120
      Top = 600
      Width = 1500
   End
   Begin MSComCtl2.DTPicker OrderDate
      Left = 1800
      Top = 960
      _Version = 393216
      Width = 1500
      _ExtentX = 1500
      Height = 255
      _ExtentY = 255
      DataSource ="datfrmControls"
      DataField ="OrderDate"
      Format = 22937601
      HelpContextID = 0
      TabIndex =1
      BackColor= &H80000005&
      ForeColor= &H80000008&
      BeginProperty Font
         Name = "Tahoma"
         charset = 0
         weight = 400
         Size = 8
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
   End
   Begin VB.TextBox txtTotal
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1800
      Top = 1320
      Width = 1500
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =2
      BackColor= &H80000005&
      ForeColor= &H80000008&
      BeginProperty Font
         Name = "Tahoma"
         charset = 0
         weight = 400
         Size = 8
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
   End
   Begin VB.CommandButton cmdSave
      BeginProperty Font
         Name = "MS Sans Serif"
         charset = 0
         weight = 700
         Size = 10
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
      Caption = "&Save"
      Height = 400
      Left = 120
      TabIndex = 3
      Top = 1800
      Width = 1500
      HelpContextID = 0
      Default = -1
   End
   Begin Threed.SSCommand cmdDelete
      _Version = 65536
      _StockProps = 78
      ForeColor= &HFF&
      Caption = "Delete"
      _ExtentX = 2645.25
      _ExtentY = 705.4
      BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851}
         Name = "MS Sans Serif"
         charset = 0
         weight = 700
         Size = 10
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
      AutoSize = 0
      Height = 400
      Left = 1800
      TabIndex = 4
      Top = 1800
      Width = 1500
      HelpContextID = 0
   End
   Begin VB.CheckBox Shipped
      Value = 0
      BeginProperty Font
         charset = 0
         strikethrough = 0
      EndProperty
      Height = 240
      Left = 120
      TabIndex = 5
      Top = 2400
      Width = 260
      HelpContextID = 0
      DataSource ="datfrmControls"
      DataField ="Shipped"
   End
   Begin VB.Label Shipped_Label
      BackColor= &H8000000F&
      BackStyle=0
      BorderStyle=0
      Caption="Shipped"
      ForeColor= &H80000012&
      BeginProperty Font
         Name = "Tahoma"
         charset = 0
         weight = 400
         Size = 8
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
      Height = 240
      Left = 400
      Top = 2400
      Width = 1000
   End
   Begin VB.Frame grpgrpShipVia
      Caption =  "Ship via"
      BackColor= &H8000000F&
      ForeColor= &H80000012&
      Height = 1350
      Left = 120
      TabIndex = 6
      HelpContextID = 0
      Top = 2730
      Width = 3000
      Begin VB.OptionButton grpShipVia
         Height = 210
         Left = 170
         Index = 1
         TabIndex = 94
         Top = 390
         Caption =  "Road"
         Width = 1170
         BackColor= &H8000000F&
         ForeColor= &H80000012&
      End
      Begin VB.OptionButton grpShipVia
         Height = 210
         Left = 170
         Index = 2
         TabIndex = 94
         Top = 750
         Caption =  "Air"
         Width = 1170
         BackColor= &H8000000F&
         ForeColor= &H80000012&
      End
      Begin VB.OptionButton grpShipVia
         Height = 210
         Left = 1330
         Index = 0
         TabIndex = 94
         Top = 750
      End
   End
   Begin VB.Label optRoad_Label
      BackColor= &H8000000F&
      BackStyle=0
      BorderStyle=0
      Caption="Road"
      ForeColor= &H80000012&
      BeginProperty Font
         Name = "Tahoma"
         charset = 0
         weight = 400
         Size = 8
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
      Height = 240
      Left = 500
      Top = 3120
      Width = 900
   End
   Begin VB.Label optAir_Label
      BackColor= &H8000000F&
      BackStyle=0
      BorderStyle=0
      Caption="Air"
      ForeColor= &H80000012&
      BeginProperty Font
         Name = "Tahoma"
         charset = 0
         weight = 400
         Size = 8
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
      Height = 240
      Left = 500
      Top = 3480
      Width = 900
   End
   Begin VB.Frame grpgrpPriority
      Height = 1350
      Left = 3300
      TabIndex = 7
      HelpContextID = 0
      Top = 2730
      Width = 2000
      Begin VB.OptionButton grpPriority
         Caption =  "Low"
         ForeColor= &H0&
         Width = 800
         Height = 300
         Style = 1
         Left = 150
         Index = 1
         TabIndex = 94
         Top = 270
      End
      Begin VB.OptionButton grpPriority
         Caption =  "High"
         ForeColor= &H0&
         Width = 800
         Height = 300
         Style = 1
         Left = 150
         Index = 2
         TabIndex = 94
         Top = 670
      End
   End
   Begin VB.OptionButton optAlone
      Left = 5600
      TabIndex = 8
      Top = 2880
      Height = 210
   End
   Begin VB.OptionButton tglAlone
      Left = 5600
      TabIndex = 9
      Top = 3300
      Caption =  "Alone"
      ForeColor= &H0&
      Width = 1000
      Height = 300
      Style = 1
   End
   Begin VB.Line linRule
      BorderColor =  &H0&
      X1 =120
      X2 =6120
      Y1 =4300
      Y2 =4300
   End
   Begin VB.PictureBox imgLogo
      BeginProperty Font
         charset = 0
         strikethrough = 0
      EndProperty
      Height = 1000
      Left = 6500
      ScaleHeight = 6180
      ScaleWidth = 7410
      TabStop = 0
      Enabled = 0
      Top = 120
      Width = 1000
      Picture = "frmControls.frx":0000
   End
   Begin  VB.OLE Photo
      Height = 1000
      Left = 6500
      Top = 1300
      Width = 1500
      HelpContextID = 0
      DataSource ="datfrmControls"
      DataField ="Photo"
      TabIndex = 10
   End
   Begin MSACAL.Calendar calDue
      Height = 1400
      Left = 3300
      TabIndex = 11
      Top = 4500
      Width = 3000
      Visible = -1
      HelpContextID = 0
   End
   Begin VB.Shape boxAll
      Height = 4400
      Left = 60
      Top = 60
      Width = 7000
      FillColor = &HFFFFFF&
      FillStyle = 0
      BorderStyle = 1
      BorderColor = &H0&
   End
   Begin VB.Timer Timer1
      Left = 0
      Top = 0
      Interval = 1000
   End
End
Attribute VB_Name = "frmControls"

Option Explicit


Private Sub Form_Timer()
    Me.lblTitle.Caption = Time
End Sub

Private Sub Timer1_Timer()
    Call Form_Timer
End Sub
Private Function InitialDataCtlCaptions()
    On Error Resume Next
    datfrmControls.Recordset.movenext
    datfrmControls.Recordset.moveFirst
End Function
Private Sub datfrmControls_MoveComplete(ByVal adReason As ADODB.EventReasonEnum, ByVal pError As ADODB.Error, adStatus As ADODB.EventStatusEnum, ByVal pRecordset As ADODB.Recordset)
    On Error Resume Next
    txtTotal.text = datfrmControls.Recordset.Fields("Qty").Value*datfrmControls.Recordset.Fields("Price").Value
    grpShipVia(datfrmControls.recordset.Fields("ShipVia")-1).value = true
End Sub
Private Sub Form_Load()
    Call InitialDataCtlCaptions()

    OrderDate.Value = Date
    grpShipVia(1).Value = True

    Me.lblNotice.Caption = "PLEASE NOTE: the order stays open until every line has shipped the order stays open until every line has shipped the order stays open until every line has shipped the order stays open until every line has shipped the order stays open until every line has shipped the order stays open until every line has shipped the order stays open until every line has shipped the order stays open until every line has shipped the order stays open until every line has shipped the order stays open until every line has shipped the order stays open until every line has shipped the order stays open until every line has shipped" & vbCrLf & _
        "" & vbCrLf & _
        "Cancel leaves the order ""as it was"" Cancel leaves the order ""as it was"" Cancel leaves the order ""as it was"" Cancel leaves the order ""as it was"" Cancel leaves the order ""as it was"" Cancel leaves the order ""as it was"" Cancel leaves the order ""as it was"" Cancel leaves the order ""as it was"" Cancel leaves the order ""as it was"" Cancel leaves the order ""as it was""" & vbLf & _
        "end"
End Sub
Private Sub Form_Activate()
    Dim vReturnValue as variant
    vReturnValue=InitialDataCtlCaptions()
End Sub

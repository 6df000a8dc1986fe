VERSION 5.00
Object="{67397AA1-7FB1-11D0-B148-00A0C922E820}#6.0#0"; "MSADODC.OCX"
Begin VB.Form frmMany
   BorderStyle = 2
   Caption ="Many"
   ClientHeight = 15500
   ClientLeft = 250
   ClientTop = 500
   ClientWidth = 16000
   Height = 15500
   Left = 250
   LinkTopic = ""
   MaxButton = -1
   MinButton = -1
   ShowInTaskbar = 0
   Top = 500
   Width = 16000
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
   Begin MSAdodcLib.Adodc datfrmMany
      Height = 300
      Left = 0
      Top = 15170
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
      Caption = "datfrmMany"
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
   Begin VB.TextBox txtField1
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 100
      Width = 1400
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
   Begin VB.Label lblField1
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField1"
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
      Top = 100
      Width = 1200
   End
   Begin VB.TextBox txtField2
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 400
      Width = 1400
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
   Begin VB.Label Label2
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label2"
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
      Width = 1200
   End
   Begin VB.TextBox txtField3
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 700
      Width = 1400
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
   Begin VB.Label Label3
      Index = 0
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label3"
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
      Top = 700
      Width = 1200
   End
   Begin VB.TextBox txtField4
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 1000
      Width = 1400
      Locked =0
      ScrollBars = 0
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
   Begin VB.Label lblField4
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField4"
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
      Top = 1000
      Width = 1200
   End
   Begin VB.TextBox txtField5
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 1300
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =4
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
   Begin VB.Label Label3
      Index = 1
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label5"
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
      Top = 1300
      Width = 1200
   End
   Begin VB.TextBox txtField6
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 1600
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =5
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
   Begin VB.Label Label3
      Index = 2
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label6"
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
      Top = 1600
      Width = 1200
   End
   Begin VB.TextBox txtField7
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 1900
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =6
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
   Begin VB.Label lblField7
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField7"
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
      Top = 1900
      Width = 1200
   End
   Begin VB.TextBox txtField8
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 2200
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =7
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
   Begin VB.Label Label3
      Index = 3
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label8"
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
      Top = 2200
      Width = 1200
   End
   Begin VB.TextBox txtField9
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 2500
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =8
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
   Begin VB.Label Label3
      Index = 4
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label9"
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
      Top = 2500
      Width = 1200
   End
   Begin VB.TextBox txtField10
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 2800
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =9
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
   Begin VB.Label lblField10
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField10"
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
      Top = 2800
      Width = 1200
   End
   Begin VB.TextBox txtField11
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 3100
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =10
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
   Begin VB.Label Label3
      Index = 5
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label11"
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
      Top = 3100
      Width = 1200
   End
   Begin VB.TextBox txtField12
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 3400
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =11
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
   Begin VB.Label Label3
      Index = 6
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label12"
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
      Top = 3400
      Width = 1200
   End
   Begin VB.TextBox txtField13
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 3700
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =12
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
   Begin VB.Label lblField13
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField13"
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
      Top = 3700
      Width = 1200
   End
   Begin VB.TextBox txtField14
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 4000
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =13
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
   Begin VB.Label Label3
      Index = 7
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label14"
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
      Top = 4000
      Width = 1200
   End
   Begin VB.TextBox txtField15
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 4300
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =14
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
   Begin VB.Label Label3
      Index = 8
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label15"
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
      Top = 4300
      Width = 1200
   End
   Begin VB.TextBox txtField16
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 4600
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =15
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
   Begin VB.Label lblField16
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField16"
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
      Top = 4600
      Width = 1200
   End
   Begin VB.TextBox txtField17
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 4900
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =16
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
   Begin VB.Label Label3
      Index = 9
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label17"
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
      Top = 4900
      Width = 1200
   End
   Begin VB.TextBox txtField18
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 5200
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =17
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
   Begin VB.Label Label3
      Index = 10
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label18"
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
      Top = 5200
      Width = 1200
   End
   Begin VB.TextBox txtField19
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 5500
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =18
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
   Begin VB.Label lblField19
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField19"
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
      Top = 5500
      Width = 1200
   End
   Begin VB.TextBox txtField20
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 5800
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =19
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
   Begin VB.Label Label20
      Index = 0
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label20"
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
      Top = 5800
      Width = 1200
   End
   Begin VB.TextBox txtField21
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 6100
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =20
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
   Begin VB.Label Label20
      Index = 1
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label21"
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
      Top = 6100
      Width = 1200
   End
   Begin VB.TextBox txtField22
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 6400
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =21
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
   Begin VB.Label lblField22
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField22"
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
      Top = 6400
      Width = 1200
   End
   Begin VB.TextBox txtField23
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 6700
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =22
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
   Begin VB.Label Label20
      Index = 2
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label23"
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
      Top = 6700
      Width = 1200
   End
   Begin VB.TextBox txtField24
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 7000
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =23
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
   Begin VB.Label Label20
      Index = 3
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label24"
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
      Top = 7000
      Width = 1200
   End
   Begin VB.TextBox txtField25
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 7300
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =24
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
   Begin VB.Label lblField25
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField25"
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
      Top = 7300
      Width = 1200
   End
   Begin VB.TextBox txtField26
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 7600
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =25
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
   Begin VB.Label Label20
      Index = 4
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label26"
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
      Top = 7600
      Width = 1200
   End
   Begin VB.TextBox txtField27
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 7900
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =26
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
   Begin VB.Label Label20
      Index = 5
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label27"
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
      Top = 7900
      Width = 1200
   End
   Begin VB.TextBox txtField28
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 8200
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =27
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
   Begin VB.Label lblField28
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField28"
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
      Top = 8200
      Width = 1200
   End
   Begin VB.TextBox txtField29
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 8500
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =28
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
   Begin VB.Label Label20
      Index = 6
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label29"
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
      Top = 8500
      Width = 1200
   End
   Begin VB.TextBox txtField30
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 8800
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =29
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
   Begin VB.Label Label20
      Index = 7
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label30"
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
      Top = 8800
      Width = 1200
   End
   Begin VB.TextBox txtField31
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 9100
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =30
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
   Begin VB.Label lblField31
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField31"
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
      Top = 9100
      Width = 1200
   End
   Begin VB.TextBox txtField32
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 9400
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =31
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
   Begin VB.Label Label20
      Index = 8
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label32"
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
      Top = 9400
      Width = 1200
   End
   Begin VB.TextBox txtField33
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 9700
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =32
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
   Begin VB.Label Label20
      Index = 9
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label33"
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
      Top = 9700
      Width = 1200
   End
   Begin VB.TextBox txtField34
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 10000
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =33
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
   Begin VB.Label lblField34
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField34"
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
      Top = 10000
      Width = 1200
   End
   Begin VB.TextBox txtField35
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 10300
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =34
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
   Begin VB.Label Label20
      Index = 10
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label35"
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
      Top = 10300
      Width = 1200
   End
   Begin VB.TextBox txtField36
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 10600
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =35
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
   Begin VB.Label Label36
      Index = 0
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label36"
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
      Top = 10600
      Width = 1200
   End
   Begin VB.TextBox txtField37
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 10900
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =36
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
   Begin VB.Label lblField37
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField37"
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
      Top = 10900
      Width = 1200
   End
   Begin VB.TextBox txtField38
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 11200
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =37
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
   Begin VB.Label Label36
      Index = 1
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label38"
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
      Top = 11200
      Width = 1200
   End
   Begin VB.TextBox txtField39
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 11500
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =38
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
   Begin VB.Label Label36
      Index = 2
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label39"
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
      Top = 11500
      Width = 1200
   End
   Begin VB.TextBox txtField40
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 11800
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =39
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
   Begin VB.Label lblField40
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField40"
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
      Top = 11800
      Width = 1200
   End
   Begin VB.TextBox txtField41
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 12100
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =40
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
   Begin VB.Label Label36
      Index = 3
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label41"
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
      Top = 12100
      Width = 1200
   End
   Begin VB.TextBox txtField42
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 12400
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =41
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
   Begin VB.Label Label36
      Index = 4
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label42"
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
      Top = 12400
      Width = 1200
   End
   Begin VB.TextBox txtField43
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 12700
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =42
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
   Begin VB.Label lblField43
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField43"
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
      Top = 12700
      Width = 1200
   End
   Begin VB.TextBox txtField44
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 13000
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =43
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
   Begin VB.Label Label36
      Index = 5
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label44"
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
      Top = 13000
      Width = 1200
   End
   Begin VB.TextBox txtField45
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 13300
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =44
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
   Begin VB.Label Label36
      Index = 6
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label45"
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
      Top = 13300
      Width = 1200
   End
   Begin VB.TextBox txtField46
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 13600
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =45
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
   Begin VB.Label lblField46
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField46"
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
      Top = 13600
      Width = 1200
   End
   Begin VB.TextBox txtField47
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 13900
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =46
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
   Begin VB.Label Label36
      Index = 7
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label47"
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
      Top = 13900
      Width = 1200
   End
   Begin VB.TextBox txtField48
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 14200
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =47
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
   Begin VB.Label Label36
      Index = 8
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label48"
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
      Top = 14200
      Width = 1200
   End
   Begin VB.TextBox txtField49
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 14500
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =48
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
   Begin VB.Label lblField49
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField49"
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
      Top = 14500
      Width = 1200
   End
   Begin VB.TextBox txtField50
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1400
      Top = 14800
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =49
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
   Begin VB.Label Label36
      Index = 9
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label50"
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
      Top = 14800
      Width = 1200
   End
   Begin VB.TextBox txtField51
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 100
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =50
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
   Begin VB.Label Label36
      Index = 10
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label51"
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
      Left = 3100
      Top = 100
      Width = 1200
   End
   Begin VB.TextBox txtField52
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 400
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =51
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
   Begin VB.Label lblField52
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField52"
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
      Left = 3100
      Top = 400
      Width = 1200
   End
   Begin VB.TextBox txtField53
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 700
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =52
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
   Begin VB.Label Label53
      Index = 0
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label53"
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
      Left = 3100
      Top = 700
      Width = 1200
   End
   Begin VB.TextBox txtField54
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 1000
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =53
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
   Begin VB.Label Label53
      Index = 1
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label54"
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
      Left = 3100
      Top = 1000
      Width = 1200
   End
   Begin VB.TextBox txtField55
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 1300
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =54
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
   Begin VB.Label lblField55
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField55"
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
      Left = 3100
      Top = 1300
      Width = 1200
   End
   Begin VB.TextBox txtField56
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 1600
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =55
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
   Begin VB.Label Label53
      Index = 2
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label56"
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
      Left = 3100
      Top = 1600
      Width = 1200
   End
   Begin VB.TextBox txtField57
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 1900
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =56
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
   Begin VB.Label Label53
      Index = 3
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label57"
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
      Left = 3100
      Top = 1900
      Width = 1200
   End
   Begin VB.TextBox txtField58
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 2200
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =57
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
   Begin VB.Label lblField58
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField58"
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
      Left = 3100
      Top = 2200
      Width = 1200
   End
   Begin VB.TextBox txtField59
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 2500
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =58
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
   Begin VB.Label Label53
      Index = 4
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label59"
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
      Left = 3100
      Top = 2500
      Width = 1200
   End
   Begin VB.TextBox txtField60
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 2800
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =59
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
   Begin VB.Label Label53
      Index = 5
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label60"
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
      Left = 3100
      Top = 2800
      Width = 1200
   End
   Begin VB.TextBox txtField61
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 3100
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =60
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
   Begin VB.Label lblField61
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField61"
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
      Left = 3100
      Top = 3100
      Width = 1200
   End
   Begin VB.TextBox txtField62
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 3400
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =61
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
   Begin VB.Label Label53
      Index = 6
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label62"
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
      Left = 3100
      Top = 3400
      Width = 1200
   End
   Begin VB.TextBox txtField63
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 3700
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =62
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
   Begin VB.Label Label53
      Index = 7
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label63"
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
      Left = 3100
      Top = 3700
      Width = 1200
   End
   Begin VB.TextBox txtField64
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 4000
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =63
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
   Begin VB.Label lblField64
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField64"
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
      Left = 3100
      Top = 4000
      Width = 1200
   End
   Begin VB.TextBox txtField65
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 4300
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =64
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
   Begin VB.Label Label53
      Index = 8
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label65"
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
      Left = 3100
      Top = 4300
      Width = 1200
   End
   Begin VB.TextBox txtField66
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 4600
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =65
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
   Begin VB.Label Label53
      Index = 9
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label66"
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
      Left = 3100
      Top = 4600
      Width = 1200
   End
   Begin VB.TextBox txtField67
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 4900
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =66
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
   Begin VB.Label lblField67
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField67"
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
      Left = 3100
      Top = 4900
      Width = 1200
   End
   Begin VB.TextBox txtField68
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 5200
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =67
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
   Begin VB.Label Label53
      Index = 10
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label68"
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
      Left = 3100
      Top = 5200
      Width = 1200
   End
   Begin VB.TextBox txtField69
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 5500
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =68
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
   Begin VB.Label Label69
      Index = 0
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label69"
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
      Left = 3100
      Top = 5500
      Width = 1200
   End
   Begin VB.TextBox txtField70
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 5800
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =69
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
   Begin VB.Label lblField70
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField70"
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
      Left = 3100
      Top = 5800
      Width = 1200
   End
   Begin VB.TextBox txtField71
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 6100
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =70
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
   Begin VB.Label Label69
      Index = 1
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label71"
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
      Left = 3100
      Top = 6100
      Width = 1200
   End
   Begin VB.TextBox txtField72
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 6400
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =71
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
   Begin VB.Label Label69
      Index = 2
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label72"
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
      Left = 3100
      Top = 6400
      Width = 1200
   End
   Begin VB.TextBox txtField73
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 6700
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =72
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
   Begin VB.Label lblField73
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField73"
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
      Left = 3100
      Top = 6700
      Width = 1200
   End
   Begin VB.TextBox txtField74
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 7000
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =73
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
   Begin VB.Label Label69
      Index = 3
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label74"
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
      Left = 3100
      Top = 7000
      Width = 1200
   End
   Begin VB.TextBox txtField75
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 7300
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =74
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
   Begin VB.Label Label69
      Index = 4
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label75"
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
      Left = 3100
      Top = 7300
      Width = 1200
   End
   Begin VB.TextBox txtField76
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 7600
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =75
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
   Begin VB.Label lblField76
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField76"
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
      Left = 3100
      Top = 7600
      Width = 1200
   End
   Begin VB.TextBox txtField77
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 7900
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =76
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
   Begin VB.Label Label69
      Index = 5
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label77"
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
      Left = 3100
      Top = 7900
      Width = 1200
   End
   Begin VB.TextBox txtField78
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 8200
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =77
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
   Begin VB.Label Label69
      Index = 6
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label78"
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
      Left = 3100
      Top = 8200
      Width = 1200
   End
   Begin VB.TextBox txtField79
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 8500
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =78
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
   Begin VB.Label lblField79
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField79"
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
      Left = 3100
      Top = 8500
      Width = 1200
   End
   Begin VB.TextBox txtField80
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 8800
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =79
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
   Begin VB.Label Label69
      Index = 7
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label80"
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
      Left = 3100
      Top = 8800
      Width = 1200
   End
   Begin VB.TextBox txtField81
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 9100
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =80
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
   Begin VB.Label Label69
      Index = 8
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label81"
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
      Left = 3100
      Top = 9100
      Width = 1200
   End
   Begin VB.TextBox txtField82
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 9400
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =81
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
   Begin VB.Label lblField82
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField82"
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
      Left = 3100
      Top = 9400
      Width = 1200
   End
   Begin VB.TextBox txtField83
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 9700
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =82
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
   Begin VB.Label Label83
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label83"
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
      Left = 3100
      Top = 9700
      Width = 1200
   End
   Begin VB.TextBox txtField84
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 10000
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =83
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
   Begin VB.Label Label84
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label84"
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
      Left = 3100
      Top = 10000
      Width = 1200
   End
   Begin VB.TextBox txtField85
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 10300
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =84
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
   Begin VB.Label lblField85
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField85"
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
      Left = 3100
      Top = 10300
      Width = 1200
   End
   Begin VB.TextBox txtField86
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 10600
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =85
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
   Begin VB.Label Label86
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label86"
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
      Left = 3100
      Top = 10600
      Width = 1200
   End
   Begin VB.TextBox txtField87
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 10900
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =86
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
   Begin VB.Label Label87
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label87"
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
      Left = 3100
      Top = 10900
      Width = 1200
   End
   Begin VB.TextBox txtField88
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 11200
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =87
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
   Begin VB.Label lblField88
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField88"
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
      Left = 3100
      Top = 11200
      Width = 1200
   End
   Begin VB.TextBox txtField89
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 11500
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =88
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
   Begin VB.Label Label89
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label89"
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
      Left = 3100
      Top = 11500
      Width = 1200
   End
   Begin VB.TextBox txtField90
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 11800
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =89
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
   Begin VB.Label Label90
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label90"
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
      Left = 3100
      Top = 11800
      Width = 1200
   End
   Begin VB.TextBox txtField91
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 12100
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =90
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
   Begin VB.Label lblField91
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField91"
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
      Left = 3100
      Top = 12100
      Width = 1200
   End
   Begin VB.TextBox txtField92
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 12400
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =91
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
   Begin VB.Label Label92
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label92"
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
      Left = 3100
      Top = 12400
      Width = 1200
   End
   Begin VB.TextBox txtField93
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 12700
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =92
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
   Begin VB.Label Label93
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label93"
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
      Left = 3100
      Top = 12700
      Width = 1200
   End
   Begin VB.TextBox txtField94
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 13000
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =93
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
   Begin VB.Label lblField94
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField94"
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
      Left = 3100
      Top = 13000
      Width = 1200
   End
   Begin VB.TextBox txtField95
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 13300
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =94
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
   Begin VB.Label Label95
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label95"
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
      Left = 3100
      Top = 13300
      Width = 1200
   End
   Begin VB.TextBox txtField96
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 13600
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =95
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
   Begin VB.Label Label96
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label96"
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
      Left = 3100
      Top = 13600
      Width = 1200
   End
   Begin VB.TextBox txtField97
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 13900
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =96
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
   Begin VB.Label lblField97
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField97"
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
      Left = 3100
      Top = 13900
      Width = 1200
   End
   Begin VB.TextBox txtField98
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 14200
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =97
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
   Begin VB.Label Label98
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label98"
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
      Left = 3100
      Top = 14200
      Width = 1200
   End
   Begin VB.TextBox txtField99
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 14500
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =98
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
   Begin VB.Label Label99
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label99"
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
      Left = 3100
      Top = 14500
      Width = 1200
   End
   Begin VB.TextBox txtField100
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 4400
      Top = 14800
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =99
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
   Begin VB.Label lblField100
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField100"
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
      Left = 3100
      Top = 14800
      Width = 1200
   End
   Begin VB.TextBox txtField101
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 100
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =100
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
   Begin VB.Label Label101
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label101"
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
      Left = 6100
      Top = 100
      Width = 1200
   End
   Begin VB.TextBox txtField102
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 400
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =101
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
   Begin VB.Label Label102
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label102"
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
      Left = 6100
      Top = 400
      Width = 1200
   End
   Begin VB.TextBox txtField103
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 700
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =102
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
   Begin VB.Label lblField103
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField103"
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
      Left = 6100
      Top = 700
      Width = 1200
   End
   Begin VB.TextBox txtField104
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 1000
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =103
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
   Begin VB.Label Label104
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label104"
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
      Left = 6100
      Top = 1000
      Width = 1200
   End
   Begin VB.TextBox txtField105
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 1300
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =104
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
   Begin VB.Label Label105
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label105"
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
      Left = 6100
      Top = 1300
      Width = 1200
   End
   Begin VB.TextBox txtField106
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 1600
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =105
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
   Begin VB.Label lblField106
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField106"
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
      Left = 6100
      Top = 1600
      Width = 1200
   End
   Begin VB.TextBox txtField107
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 1900
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =106
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
   Begin VB.Label Label107
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label107"
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
      Left = 6100
      Top = 1900
      Width = 1200
   End
   Begin VB.TextBox txtField108
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 2200
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =107
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
   Begin VB.Label Label108
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label108"
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
      Left = 6100
      Top = 2200
      Width = 1200
   End
   Begin VB.TextBox txtField109
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 2500
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =108
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
   Begin VB.Label lblField109
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField109"
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
      Left = 6100
      Top = 2500
      Width = 1200
   End
   Begin VB.TextBox txtField110
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 2800
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =109
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
   Begin VB.Label Label110
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label110"
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
      Left = 6100
      Top = 2800
      Width = 1200
   End
   Begin VB.TextBox txtField111
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 3100
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =110
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
   Begin VB.Label Label111
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label111"
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
      Left = 6100
      Top = 3100
      Width = 1200
   End
   Begin VB.TextBox txtField112
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 3400
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =111
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
   Begin VB.Label lblField112
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField112"
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
      Left = 6100
      Top = 3400
      Width = 1200
   End
   Begin VB.TextBox txtField113
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 3700
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =112
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
   Begin VB.Label Label113
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label113"
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
      Left = 6100
      Top = 3700
      Width = 1200
   End
   Begin VB.TextBox txtField114
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 4000
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =113
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
   Begin VB.Label Label114
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label114"
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
      Left = 6100
      Top = 4000
      Width = 1200
   End
   Begin VB.TextBox txtField115
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 4300
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =114
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
   Begin VB.Label lblField115
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField115"
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
      Left = 6100
      Top = 4300
      Width = 1200
   End
   Begin VB.TextBox txtField116
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 4600
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =115
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
   Begin VB.Label Label116
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label116"
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
      Left = 6100
      Top = 4600
      Width = 1200
   End
   Begin VB.TextBox txtField117
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 4900
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =116
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
   Begin VB.Label Label117
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label117"
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
      Left = 6100
      Top = 4900
      Width = 1200
   End
   Begin VB.TextBox txtField118
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 5200
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =117
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
   Begin VB.Label lblField118
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField118"
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
      Left = 6100
      Top = 5200
      Width = 1200
   End
   Begin VB.TextBox txtField119
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 5500
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =118
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
   Begin VB.Label Label119
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label119"
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
      Left = 6100
      Top = 5500
      Width = 1200
   End
   Begin VB.TextBox txtField120
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 5800
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =119
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
   Begin VB.Label Label120
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label120"
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
      Left = 6100
      Top = 5800
      Width = 1200
   End
   Begin VB.TextBox txtField121
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 6100
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =120
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
   Begin VB.Label lblField121
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField121"
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
      Left = 6100
      Top = 6100
      Width = 1200
   End
   Begin VB.TextBox txtField122
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 6400
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =121
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
   Begin VB.Label Label122
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label122"
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
      Left = 6100
      Top = 6400
      Width = 1200
   End
   Begin VB.TextBox txtField123
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 6700
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =122
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
   Begin VB.Label Label123
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label123"
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
      Left = 6100
      Top = 6700
      Width = 1200
   End
   Begin VB.TextBox txtField124
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 7000
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =123
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
   Begin VB.Label lblField124
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField124"
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
      Left = 6100
      Top = 7000
      Width = 1200
   End
   Begin VB.TextBox txtField125
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 7300
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =124
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
   Begin VB.Label Label125
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label125"
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
      Left = 6100
      Top = 7300
      Width = 1200
   End
   Begin VB.TextBox txtField126
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 7600
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =125
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
   Begin VB.Label Label126
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label126"
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
      Left = 6100
      Top = 7600
      Width = 1200
   End
   Begin VB.TextBox txtField127
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 7900
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =126
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
   Begin VB.Label lblField127
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField127"
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
      Left = 6100
      Top = 7900
      Width = 1200
   End
   Begin VB.TextBox txtField128
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 8200
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =127
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
   Begin VB.Label Label128
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label128"
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
      Left = 6100
      Top = 8200
      Width = 1200
   End
   Begin VB.TextBox txtField129
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 8500
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =128
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
   Begin VB.Label Label129
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label129"
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
      Left = 6100
      Top = 8500
      Width = 1200
   End
   Begin VB.TextBox txtField130
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 8800
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =129
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
   Begin VB.Label lblField130
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField130"
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
      Left = 6100
      Top = 8800
      Width = 1200
   End
   Begin VB.TextBox txtField131
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 9100
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =130
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
   Begin VB.Label Label131
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label131"
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
      Left = 6100
      Top = 9100
      Width = 1200
   End
   Begin VB.TextBox txtField132
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 9400
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =131
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
   Begin VB.Label Label132
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label132"
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
      Left = 6100
      Top = 9400
      Width = 1200
   End
   Begin VB.TextBox txtField133
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 9700
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =132
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
   Begin VB.Label lblField133
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField133"
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
      Left = 6100
      Top = 9700
      Width = 1200
   End
   Begin VB.TextBox txtField134
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 10000
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =133
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
   Begin VB.Label Label134
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label134"
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
      Left = 6100
      Top = 10000
      Width = 1200
   End
   Begin VB.TextBox txtField135
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 10300
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =134
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
   Begin VB.Label Label135
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label135"
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
      Left = 6100
      Top = 10300
      Width = 1200
   End
   Begin VB.TextBox txtField136
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 10600
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =135
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
   Begin VB.Label lblField136
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField136"
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
      Left = 6100
      Top = 10600
      Width = 1200
   End
   Begin VB.TextBox txtField137
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 10900
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =136
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
   Begin VB.Label Label137
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label137"
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
      Left = 6100
      Top = 10900
      Width = 1200
   End
   Begin VB.TextBox txtField138
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 11200
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =137
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
   Begin VB.Label Label138
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label138"
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
      Left = 6100
      Top = 11200
      Width = 1200
   End
   Begin VB.TextBox txtField139
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 11500
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =138
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
   Begin VB.Label lblField139
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField139"
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
      Left = 6100
      Top = 11500
      Width = 1200
   End
   Begin VB.TextBox txtField140
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 11800
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =139
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
   Begin VB.Label Label140
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label140"
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
      Left = 6100
      Top = 11800
      Width = 1200
   End
   Begin VB.TextBox txtField141
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 12100
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =140
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
   Begin VB.Label Label141
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label141"
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
      Left = 6100
      Top = 12100
      Width = 1200
   End
   Begin VB.TextBox txtField142
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 12400
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =141
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
   Begin VB.Label lblField142
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField142"
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
      Left = 6100
      Top = 12400
      Width = 1200
   End
   Begin VB.TextBox txtField143
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 12700
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =142
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
   Begin VB.Label Label143
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label143"
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
      Left = 6100
      Top = 12700
      Width = 1200
   End
   Begin VB.TextBox txtField144
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 13000
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =143
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
   Begin VB.Label Label144
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label144"
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
      Left = 6100
      Top = 13000
      Width = 1200
   End
   Begin VB.TextBox txtField145
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 13300
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =144
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
   Begin VB.Label lblField145
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField145"
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
      Left = 6100
      Top = 13300
      Width = 1200
   End
   Begin VB.TextBox txtField146
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 13600
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =145
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
   Begin VB.Label Label146
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label146"
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
      Left = 6100
      Top = 13600
      Width = 1200
   End
   Begin VB.TextBox txtField147
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 13900
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =146
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
   Begin VB.Label Label147
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label147"
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
      Left = 6100
      Top = 13900
      Width = 1200
   End
   Begin VB.TextBox txtField148
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 14200
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =147
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
   Begin VB.Label lblField148
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="lblField148"
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
      Left = 6100
      Top = 14200
      Width = 1200
   End
   Begin VB.TextBox txtField149
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 14500
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =148
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
   Begin VB.Label Label149
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label149"
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
      Left = 6100
      Top = 14500
      Width = 1200
   End
   Begin VB.TextBox txtField150
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 7400
      Top = 14800
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =149
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
   Begin VB.Label Label150
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Label150"
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
      Left = 6100
      Top = 14800
      Width = 1200
   End
End
Attribute VB_Name = "frmMany"

Option Explicit


Private Sub Form_Load()
    Me.Label2.Caption = "Second"
End Sub
Private Function InitialDataCtlCaptions()
    On Error Resume Next
    datfrmMany.Recordset.movenext
    datfrmMany.Recordset.moveFirst
End Function
Private Sub datfrmMany_MoveComplete(ByVal adReason As ADODB.EventReasonEnum, ByVal pError As ADODB.Error, adStatus As ADODB.EventStatusEnum, ByVal pRecordset As ADODB.Recordset)
    On Error Resume Next
End Sub
Private Sub Form_Activate()
    Dim vReturnValue as variant
    vReturnValue=InitialDataCtlCaptions()
End Sub

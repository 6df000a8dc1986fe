VERSION 5.00
Object="{67397AA1-7FB1-11D0-B148-00A0C922E820}#6.0#0"; "MSADODC.OCX"
Begin VB.Form frmTooMany
   BorderStyle = 2
   Caption ="Too many"
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
   Begin MSAdodcLib.Adodc datfrmTooMany
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
      Caption = "datfrmTooMany"
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
   Begin VB.TextBox txtField151
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 100
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =150
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
   Begin VB.TextBox txtField152
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 400
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =151
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
   Begin VB.TextBox txtField153
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 700
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =152
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
   Begin VB.TextBox txtField154
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 1000
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =153
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
   Begin VB.TextBox txtField155
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 1300
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =154
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
   Begin VB.TextBox txtField156
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 1600
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =155
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
   Begin VB.TextBox txtField157
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 1900
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =156
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
   Begin VB.TextBox txtField158
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 2200
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =157
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
   Begin VB.TextBox txtField159
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 2500
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =158
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
   Begin VB.TextBox txtField160
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 2800
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =159
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
   Begin VB.TextBox txtField161
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 3100
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =160
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
   Begin VB.TextBox txtField162
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 3400
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =161
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
   Begin VB.TextBox txtField163
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 3700
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =162
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
   Begin VB.TextBox txtField164
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 4000
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =163
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
   Begin VB.TextBox txtField165
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 4300
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =164
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
   Begin VB.TextBox txtField166
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 4600
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =165
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
   Begin VB.TextBox txtField167
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 4900
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =166
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
   Begin VB.TextBox txtField168
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 5200
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =167
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
   Begin VB.TextBox txtField169
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 5500
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =168
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
   Begin VB.TextBox txtField170
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 5800
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =169
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
   Begin VB.TextBox txtField171
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 6100
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =170
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
   Begin VB.TextBox txtField172
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 6400
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =171
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
   Begin VB.TextBox txtField173
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 6700
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =172
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
   Begin VB.TextBox txtField174
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 7000
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =173
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
   Begin VB.TextBox txtField175
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 7300
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =174
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
   Begin VB.TextBox txtField176
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 7600
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =175
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
   Begin VB.TextBox txtField177
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 7900
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =176
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
   Begin VB.TextBox txtField178
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 8200
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =177
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
   Begin VB.TextBox txtField179
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 8500
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =178
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
   Begin VB.TextBox txtField180
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 8800
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =179
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
   Begin VB.TextBox txtField181
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 9100
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =180
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
   Begin VB.TextBox txtField182
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 9400
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =181
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
   Begin VB.TextBox txtField183
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 9700
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =182
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
   Begin VB.TextBox txtField184
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 10000
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =183
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
   Begin VB.TextBox txtField185
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 10300
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =184
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
   Begin VB.TextBox txtField186
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 10600
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =185
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
   Begin VB.TextBox txtField187
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 10900
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =186
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
   Begin VB.TextBox txtField188
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 11200
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =187
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
   Begin VB.TextBox txtField189
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 11500
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =188
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
   Begin VB.TextBox txtField190
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 11800
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =189
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
   Begin VB.TextBox txtField191
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 12100
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =190
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
   Begin VB.TextBox txtField192
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 12400
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =191
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
   Begin VB.TextBox txtField193
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 12700
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =192
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
   Begin VB.TextBox txtField194
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 13000
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =193
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
   Begin VB.TextBox txtField195
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 13300
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =194
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
   Begin VB.TextBox txtField196
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 13600
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =195
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
   Begin VB.TextBox txtField197
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 13900
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =196
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
   Begin VB.TextBox txtField198
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 14200
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =197
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
   Begin VB.TextBox txtField199
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 14500
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =198
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
   Begin VB.TextBox txtField200
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 10400
      Top = 14800
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =199
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
   Begin VB.TextBox txtField201
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 100
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =200
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
   Begin VB.TextBox txtField202
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 400
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =201
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
   Begin VB.TextBox txtField203
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 700
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =202
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
   Begin VB.TextBox txtField204
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 1000
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =203
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
   Begin VB.TextBox txtField205
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 1300
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =204
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
   Begin VB.TextBox txtField206
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 1600
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =205
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
   Begin VB.TextBox txtField207
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 1900
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =206
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
   Begin VB.TextBox txtField208
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 2200
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =207
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
   Begin VB.TextBox txtField209
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 2500
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =208
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
   Begin VB.TextBox txtField210
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 2800
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =209
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
   Begin VB.TextBox txtField211
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 3100
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =210
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
   Begin VB.TextBox txtField212
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 3400
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =211
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
   Begin VB.TextBox txtField213
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 3700
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =212
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
   Begin VB.TextBox txtField214
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 4000
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =213
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
   Begin VB.TextBox txtField215
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 4300
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =214
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
   Begin VB.TextBox txtField216
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 4600
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =215
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
   Begin VB.TextBox txtField217
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 4900
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =216
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
   Begin VB.TextBox txtField218
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 5200
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =217
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
   Begin VB.TextBox txtField219
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 5500
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =218
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
   Begin VB.TextBox txtField220
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 5800
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =219
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
   Begin VB.TextBox txtField221
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 6100
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =220
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
   Begin VB.TextBox txtField222
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 6400
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =221
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
   Begin VB.TextBox txtField223
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 6700
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =222
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
   Begin VB.TextBox txtField224
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 7000
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =223
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
   Begin VB.TextBox txtField225
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 7300
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =224
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
   Begin VB.TextBox txtField226
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 7600
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =225
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
   Begin VB.TextBox txtField227
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 7900
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =226
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
   Begin VB.TextBox txtField228
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 8200
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =227
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
   Begin VB.TextBox txtField229
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 8500
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =228
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
   Begin VB.TextBox txtField230
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 8800
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =229
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
   Begin VB.TextBox txtField231
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 9100
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =230
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
   Begin VB.TextBox txtField232
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 9400
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =231
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
   Begin VB.TextBox txtField233
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 9700
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =232
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
   Begin VB.TextBox txtField234
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 10000
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =233
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
   Begin VB.TextBox txtField235
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 10300
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =234
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
   Begin VB.TextBox txtField236
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 10600
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =235
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
   Begin VB.TextBox txtField237
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 10900
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =236
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
   Begin VB.TextBox txtField238
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 11200
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =237
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
   Begin VB.TextBox txtField239
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 11500
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =238
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
   Begin VB.TextBox txtField240
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 11800
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =239
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
   Begin VB.TextBox txtField241
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 12100
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =240
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
   Begin VB.TextBox txtField242
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 12400
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =241
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
   Begin VB.TextBox txtField243
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 12700
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =242
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
   Begin VB.TextBox txtField244
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 13000
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =243
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
   Begin VB.TextBox txtField245
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 13300
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =244
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
   Begin VB.TextBox txtField246
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 13600
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =245
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
   Begin VB.TextBox txtField247
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 13900
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =246
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
   Begin VB.TextBox txtField248
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 14200
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =247
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
   Begin VB.TextBox txtField249
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 14500
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =248
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
   Begin VB.TextBox txtField250
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 13400
      Top = 14800
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =249
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
   Begin VB.TextBox txtField251
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 16400
      Top = 100
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =250
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
   Begin VB.TextBox txtField252
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 16400
      Top = 400
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =251
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
   Begin VB.TextBox txtField253
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 16400
      Top = 700
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =252
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
   Begin VB.TextBox txtField254
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 16400
      Top = 1000
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =253
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
   Begin VB.TextBox txtField255
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 16400
      Top = 1300
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =254
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
   Begin VB.TextBox txtField256
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 16400
      Top = 1600
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =255
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
   Begin VB.TextBox txtField257
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 16400
      Top = 1900
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =256
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
   Begin VB.TextBox txtField258
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 16400
      Top = 2200
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =257
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
   Begin VB.TextBox txtField259
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 16400
      Top = 2500
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =258
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
   Begin VB.TextBox txtField260
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 16400
      Top = 2800
      Width = 1400
      Locked =0
      ScrollBars = 0
      HelpContextID = 0
      TabIndex =259
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
Attribute VB_Name = "frmTooMany"

Private Function InitialDataCtlCaptions()
    On Error Resume Next
    datfrmTooMany.Recordset.movenext
    datfrmTooMany.Recordset.moveFirst
End Function
Private Sub datfrmTooMany_MoveComplete(ByVal adReason As ADODB.EventReasonEnum, ByVal pError As ADODB.Error, adStatus As ADODB.EventStatusEnum, ByVal pRecordset As ADODB.Recordset)
    On Error Resume Next
End Sub
Private Sub Form_Activate()
    Dim vReturnValue as variant
    vReturnValue=InitialDataCtlCaptions()
End Sub

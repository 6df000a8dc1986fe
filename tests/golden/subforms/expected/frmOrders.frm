VERSION 5.00
Object="{67397AA1-7FB1-11D0-B148-00A0C922E820}#6.0#0"; "MSADODC.OCX"
Object="{CDE57A40-8B86-11D0-B3C6-00A0C90AEA82}#1.0#0"; "MSDATGRD.OCX"
Object="{5C8CED40-8909-11D0-9483-00A0C91110ED}#1.0#0"; "MSDATREP.OCX"
Begin VB.Form frmOrders
   BorderStyle = 2
   Caption ="Orders and their parts"
   ClientHeight = 9000
   ClientLeft = 250
   ClientTop = 500
   ClientWidth = 11000
   Height = 9000
   Left = 250
   LinkTopic = ""
   MaxButton = -1
   MinButton = -1
   ShowInTaskbar = 0
   Top = 500
   Width = 11000
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
   Begin MSAdodcLib.Adodc datfrmOrders
      Height = 300
      Left = 0
      Top = 8670
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
      Caption = "datfrmOrders"
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
      DataSource ="datfrmOrders"
      DataField ="OrderID"
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1800
      Top = 120
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
   Begin MSDataGridLib.DataGrid sfrmLines
      Bindings = "frmOrders.frx":0000
      Height = 2000
      Left = 120
      TabIndex =1
      Top = 600
      Width = 6000
      _ExtentX = 10581
      _ExtentY = 3527
      _Version = 393216
      HeadLines = 1
      RowHeight = 15
      FormatLocked = -1
      AllowAddNew = -1
      AllowDelete = -1
      BeginProperty HeadFont {0BE35203-8F91-11CE-9DE3-00AA004BB851}
         Name = "MS Sans Serif"
         Size = 8.25
         Charset = 0
         Weight = 400
         Underline = 0
         Italic = 0
         Strikethrough = 0
      EndProperty
      BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851}
         Name = "MS Sans Serif"
         Size = 8.25
         Charset = 0
         Weight = 400
         Underline = 0
         Italic = 0
         Strikethrough = 0
      EndProperty
      ColumnCount = 3
      BeginProperty Column00
         DataField = "ProductName"
         Caption = "ProductName"
         BeginProperty DataFormat {6D835690-900B-11D0-9484-00A0C91110ED}
            Type = 0
            Format = ""
            HaveTrueFalseNull = 0
            FirstDayOfWeek = 0
            FirstWeekOfYear = 0
            LCID = 1033
            SubFormatType = 0
         EndProperty
      EndProperty
      BeginProperty Column01
         DataField = "Qty"
         Caption = "Qty"
         BeginProperty DataFormat {6D835690-900B-11D0-9484-00A0C91110ED}
            Type = 1
            Format = "0"
            HaveTrueFalseNull = 0
            FirstDayOfWeek = 0
            FirstWeekOfYear = 0
            LCID = 1033
            SubFormatType = 1
         EndProperty
      EndProperty
      BeginProperty Column02
         DataField = "OrderID"
         Caption = "OrderID"
         BeginProperty DataFormat {6D835690-900B-11D0-9484-00A0C91110ED}
            Type = 0
            Format = ""
            HaveTrueFalseNull = 0
            FirstDayOfWeek = 0
            FirstWeekOfYear = 0
            LCID = 1033
            SubFormatType = 0
         EndProperty
      EndProperty
      SplitCount = 1
      BeginProperty Split0
         BeginProperty Column00
            ColumnWidth = 2500
            Alignment = 3
         EndProperty
         BeginProperty Column01
            ColumnWidth = 1000
            Alignment = 1
         EndProperty
         BeginProperty Column02
            ColumnWidth = 0
            Alignment = 3
         EndProperty
      EndProperty
      TabStop =-1
      Tag="~Jet  qryOrderLines"
   End
   Begin MSAdodcLib.Adodc datsfrmLines
      Height = 300
      Left = 120
      Top = 2600
      Width = 1215
      _ExtentX = 5212
      _ExtentY = 767
      ConnectMode = 0
      CursorLocation = 3
      IsolationLevel = -1
      ConnectionTimeout = 15
      CommandTimeout = 30
      CursorType = 2
      LockType = 3
      CommandType = 1
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
      Visible = 0
      RecordSource = "Select * From qryOrderLines"
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
   Begin VB.PictureBox sfrmNotes
      BackColor= &HFFFFFF&
      BorderStyle = 0
      ClipControls = -1
      Height = 2400
      Left = 6300
      TabIndex = 2
      TabStop = 0
      Top = 600
      Width = 4500
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
         CommandType = 1
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
         RecordSource = "Select * From qryNotes"
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
         Top = 2120
         Width = 2000
      End
      Begin MSDataRepeaterLib.DataRepeater sfrmNotesA
         Bindings = "frmOrders.frx":0015
         Top = 300
         Height = 1800
         Left = 0
         TabIndex =2
         Width = 4500
         _ExtentX = 7935.75
         _ExtentY = 3174.3
         _StreamID = -1412567295
         _Version = 393216
         CaptionStyle = 0
         Caption = ""
         IntegralHeight = 0
         BorderStyle = 0
         RowIndicator = 0
         BeginProperty RepeatedControlName {21FC0FC0-1E5C-11D1-A327-00AA00688B10}
            _StreamID = -1412567295
            _Version = 65536
            Name = "input_CF.cfsfrmNotes"
         EndProperty
         RepeaterBindings = 4
         BeginProperty RepeaterBinding(0) {7D21A594-FC9B-11D0-A320-00AA00688B10}
            _StreamID = -1412567295
            _Version = 65536
            PropertyName = "NoteDate"
            DataField = "NoteDate"
            BeginProperty DataFormat {6D835690-900B-11D0-9484-00A0C91110ED}
               Type = 1
               Format = "m/d/yy"
               HaveTrueFalseNull = 0
               FirstDayOfWeek = 0
               FirstWeekOfYear = 0
               LCID = 1033
               SubFormatType = 3
            EndProperty
         EndProperty
         BeginProperty RepeaterBinding(1) {7D21A594-FC9B-11D0-A320-00AA00688B10}
            _StreamID = -1412567295
            _Version = 65536
            PropertyName = "Note_Text"
            DataField = "Note Text"
            BeginProperty DataFormat {6D835690-900B-11D0-9484-00A0C91110ED}
               Type = 0
               Format = ""
               HaveTrueFalseNull = 0
               FirstDayOfWeek = 0
               FirstWeekOfYear = 0
               LCID = 1033
               SubFormatType = 0
            EndProperty
         EndProperty
         BeginProperty RepeaterBinding(2) {7D21A594-FC9B-11D0-A320-00AA00688B10}
            _StreamID = -1412567295
            _Version = 65536
            PropertyName = "Done"
            DataField = "Done"
            BeginProperty DataFormat {6D835690-900B-11D0-9484-00A0C91110ED}
               Type = 0
               Format = ""
               HaveTrueFalseNull = 0
               FirstDayOfWeek = 0
               FirstWeekOfYear = 0
               LCID = 1033
               SubFormatType = 0
            EndProperty
         EndProperty
         BeginProperty RepeaterBinding(3) {7D21A594-FC9B-11D0-A320-00AA00688B10}
            _StreamID = -1412567295
            _Version = 65536
            PropertyName = "Kind"
            DataField = "Kind"
            BeginProperty DataFormat {6D835690-900B-11D0-9484-00A0C91110ED}
               Type = 0
               Format = ""
               HaveTrueFalseNull = 0
               FirstDayOfWeek = 0
               FirstWeekOfYear = 0
               LCID = 1033
               SubFormatType = 0
            EndProperty
         EndProperty
      End
   End
   Begin VB.PictureBox sfrmCustomer
      BackColor= &HF0F0F0&
      ClipControls = -1
      Height = 4200
      Left = 120
      TabIndex = 3
      TabStop = 0
      Top = 3200
      Width = 7000
      Begin MSAdodcLib.Adodc datsfrmCustomer
         Height = 300
         Left = 0
         Top = 3670
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
         CommandType = 1
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
         RecordSource = "Select * From qryCustomers"
         Caption = "datsfrmCustomer"
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
      Begin VB.Label lblCustomer
         BackColor= &H8000000F&
         BorderStyle=0
         Caption="Customer"
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
         Top = 50
         Width = 2000
      End
      Begin VB.TextBox CustomerName
         DataSource ="datsfrmCustomer"
         DataField ="CustomerName"
         BorderStyle=1
         Appearance=0
         Height = 255
         Left = 1500
         Top = 500
         Width = 3000
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
      Begin VB.TextBox OrderIDA
         BorderStyle=1
         Appearance=0
         Height = 255
         Left = 5000
         Top = 500
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
      Begin VB.Frame grpgrpRating
         Height = 850
         Left = 100
         TabIndex = 2
         HelpContextID = 0
         Top = 750
         Width = 2500
         Begin VB.OptionButton grpRating
            Height = 210
            Left = 150
            Index = 1
            TabIndex = 94
            Top = 250
         End
         Begin VB.OptionButton grpRating
            Height = 210
            Left = 1150
            Index = 2
            TabIndex = 94
            Top = 250
         End
      End
      Begin VB.PictureBox sfrmContacts
         BackColor= &HFFFFFF&
         ClipControls = -1
         Height = 2200
         Left = 100
         TabIndex = 3
         TabStop = 0
         Top = 1700
         Width = 6500
         Begin MSAdodcLib.Adodc datsfrmContacts
            Height = 300
            Left = 0
            Top = 1770
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
            CommandType = 1
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
            RecordSource = "Select * From qryContacts"
            Caption = "datsfrmContacts"
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
         Begin VB.TextBox ContactName
            DataSource ="datsfrmContacts"
            DataField ="ContactName"
            BorderStyle=1
            Appearance=0
            Height = 255
            Left = 1500
            Top = 100
            Width = 3000
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
         Begin VB.PictureBox sfrmCalls
            BackColor= &HFFFFFF&
            ClipControls = -1
            Height = 1500
            Left = 100
            TabIndex = 1
            TabStop = 0
            Top = 500
            Width = 6000
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
               CommandType = 1
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
               RecordSource = "Select * From qryCalls"
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
      End
   End
   Begin MSDataGridLib.DataGrid sfrmRecent
      Bindings = "frmOrders.frx":002A
      Height = 2000
      Left = 7300
      TabIndex =4
      Top = 3200
      Width = 3500
      _ExtentX = 6172.25
      _ExtentY = 3527
      _Version = 393216
      HeadLines = 1
      RowHeight = 15
      FormatLocked = -1
      AllowAddNew = -1
      AllowDelete = -1
      BeginProperty HeadFont {0BE35203-8F91-11CE-9DE3-00AA004BB851}
         Name = "MS Sans Serif"
         Size = 8.25
         Charset = 0
         Weight = 400
         Underline = 0
         Italic = 0
         Strikethrough = 0
      EndProperty
      BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851}
         Name = "MS Sans Serif"
         Size = 8.25
         Charset = 0
         Weight = 400
         Underline = 0
         Italic = 0
         Strikethrough = 0
      EndProperty
      ColumnCount = 3
      BeginProperty Column00
         DataField = "OrderID"
         Caption = "OrderID"
         BeginProperty DataFormat {6D835690-900B-11D0-9484-00A0C91110ED}
            Type = 0
            Format = ""
            HaveTrueFalseNull = 0
            FirstDayOfWeek = 0
            FirstWeekOfYear = 0
            LCID = 1033
            SubFormatType = 0
         EndProperty
      EndProperty
      BeginProperty Column01
         DataField = "ProductName"
         Caption = "ProductName"
         BeginProperty DataFormat {6D835690-900B-11D0-9484-00A0C91110ED}
            Type = 0
            Format = ""
            HaveTrueFalseNull = 0
            FirstDayOfWeek = 0
            FirstWeekOfYear = 0
            LCID = 1033
            SubFormatType = 0
         EndProperty
      EndProperty
      BeginProperty Column02
         DataField = "Qty"
         Caption = "Qty"
         BeginProperty DataFormat {6D835690-900B-11D0-9484-00A0C91110ED}
            Type = 0
            Format = ""
            HaveTrueFalseNull = 0
            FirstDayOfWeek = 0
            FirstWeekOfYear = 0
            LCID = 1033
            SubFormatType = 0
         EndProperty
      EndProperty
      SplitCount = 1
      BeginProperty Split0
         BeginProperty Column00
            ColumnWidth = 1440
            Alignment = 3
         EndProperty
         BeginProperty Column01
            ColumnWidth = 1440
            Alignment = 3
         EndProperty
         BeginProperty Column02
            ColumnWidth = 1440
            Alignment = 3
         EndProperty
      EndProperty
      TabStop =-1
      Tag="~Jet  qryOrderLines"
   End
   Begin MSAdodcLib.Adodc datqryOrderLines
      Height = 300
      Left = 7300
      Top = 5200
      Width = 1215
      _ExtentX = 5212
      _ExtentY = 767
      ConnectMode = 0
      CursorLocation = 3
      IsolationLevel = -1
      ConnectionTimeout = 15
      CommandTimeout = 30
      CursorType = 2
      LockType = 3
      CommandType = 1
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
      Visible = 0
      RecordSource = "Select * From qryOrderLines"
      Caption = "datqryOrderLines"
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
End
Attribute VB_Name = "frmOrders"

Option Explicit


'MORVANE Declarations Code for sfrmCustomer

Private mLoaded As Boolean
'MORVANE End Declarations Code for sfrmCustomer
Private Sub Form_Click()
    Me.sfrmLines.Visible = True
    Call sfrmCustomer_SubForm_Click()
End Sub
Private Sub ShowTotals()
    Me.datfrmOrders.recordset.Fields("OrderID").SetFocus
End Sub
Private Function InitialDataCtlCaptions()
    On Error Resume Next
    datfrmOrders.Recordset.movenext
    datfrmOrders.Recordset.moveFirst
    datsfrmNotes.Recordset.movenext
    datsfrmNotes.Recordset.moveFirst
    datsfrmCustomer.Recordset.movenext
    datsfrmCustomer.Recordset.moveFirst
    datsfrmContacts.Recordset.movenext
    datsfrmContacts.Recordset.moveFirst
    datsfrmCalls.Recordset.movenext
    datsfrmCalls.Recordset.moveFirst
End Function
Private Sub datfrmOrders_MoveComplete(ByVal adReason As ADODB.EventReasonEnum, ByVal pError As ADODB.Error, adStatus As ADODB.EventStatusEnum, ByVal pRecordset As ADODB.Recordset)
    On Error Resume Next
    datsfrmLines.Recordset.MoveFirst
    datsfrmLines.Recordset.Movelast
    datsfrmLines.refresh
    datsfrmLines.RecordSource="Select * from [qryOrderLines] INNER JOIN [qryOrders] ON [qryOrderLines].[OrderID] = [qryOrders].[OrderID] Where [qryOrders].[OrderID]=""" & datfrmOrders.Recordset.Fields("OrderID") & """"
    datsfrmNotes.Recordset.MoveFirst
    datsfrmNotes.Recordset.Movelast
    datsfrmNotes.refresh
    datsfrmNotes.RecordSource="Select * from [qryNotes] INNER JOIN [qryOrders] ON [qryNotes].[OrderID] = [qryOrders].[OrderID] Where [qryOrders].[OrderID]=""" & datfrmOrders.Recordset.Fields("OrderID") & """"
    datsfrmCustomer.Recordset.MoveFirst
    datsfrmCustomer.Recordset.Movelast
    datsfrmCustomer.refresh
    datsfrmCustomer.RecordSource="Select * from [qryCustomers] INNER JOIN [qryOrders] ON [qryCustomers].[CustomerID] = [qryOrders].[CustomerID] Where [qryOrders].[CustomerID]=""" & datfrmOrders.Recordset.Fields("CustomerID") & """"
    datqryOrderLines.Recordset.MoveFirst
    datqryOrderLines.Recordset.Movelast
    datqryOrderLines.refresh
End Sub
Private Sub datsfrmLines_MoveComplete(ByVal adReason As ADODB.EventReasonEnum, ByVal pError As ADODB.Error, adStatus As ADODB.EventStatusEnum, ByVal pRecordset As ADODB.Recordset)
    On Error Resume Next
End Sub
Private Sub datsfrmNotes_MoveComplete(ByVal adReason As ADODB.EventReasonEnum, ByVal pError As ADODB.Error, adStatus As ADODB.EventStatusEnum, ByVal pRecordset As ADODB.Recordset)
    On Error Resume Next
End Sub
'MORVANE Form Code for sfrmCustomer

Private Sub Form_Load()
    mLoaded = True
    sfrmCustomer_ShowTotals
End Sub

Private Sub sfrmCustomer_ShowTotals()
    Me.datsfrmCustomer.recordset.Fields("CustomerName").Visible = mLoaded
End Sub

Private Sub sfrmCustomer_SubForm_Click()
    Me.datsfrmCustomer.recordset.Fields("CustomerName").SetFocus
End Sub
'MORVANE End Form Code for sfrmCustomer
Private Sub datsfrmCustomer_MoveComplete(ByVal adReason As ADODB.EventReasonEnum, ByVal pError As ADODB.Error, adStatus As ADODB.EventStatusEnum, ByVal pRecordset As ADODB.Recordset)
    On Error Resume Next
    OrderIDA.text = datfrmOrders.Recordset.Fields("OrderID").Value
    grpRating(datsfrmCustomer.recordset.Fields("Rating")-1).value = true
    datsfrmContacts.Recordset.MoveFirst
    datsfrmContacts.Recordset.Movelast
    datsfrmContacts.refresh
    datsfrmContacts.RecordSource="Select * from [qryContacts] INNER JOIN [qryCustomers] ON [qryContacts].[CustomerID] = [qryCustomers].[CustomerID] Where [qryCustomers].[CustomerID]=""" & datsfrmCustomer.Recordset.Fields("CustomerID") & """"
End Sub
Private Sub datsfrmContacts_MoveComplete(ByVal adReason As ADODB.EventReasonEnum, ByVal pError As ADODB.Error, adStatus As ADODB.EventStatusEnum, ByVal pRecordset As ADODB.Recordset)
    On Error Resume Next
    datsfrmCalls.Recordset.MoveFirst
    datsfrmCalls.Recordset.Movelast
    datsfrmCalls.refresh
    datsfrmCalls.RecordSource="Select * from [qryCalls] INNER JOIN [qryContacts] ON [qryCalls].[ContactID] = [qryContacts].[ContactID] Where [qryContacts].[ContactID]=""" & datsfrmContacts.Recordset.Fields("ContactID") & """"
End Sub
Private Sub datsfrmCalls_MoveComplete(ByVal adReason As ADODB.EventReasonEnum, ByVal pError As ADODB.Error, adStatus As ADODB.EventStatusEnum, ByVal pRecordset As ADODB.Recordset)
    On Error Resume Next
End Sub
Private Sub datqryOrderLines_MoveComplete(ByVal adReason As ADODB.EventReasonEnum, ByVal pError As ADODB.Error, adStatus As ADODB.EventStatusEnum, ByVal pRecordset As ADODB.Recordset)
    On Error Resume Next
End Sub
Private Sub Form_Activate()
    Dim vReturnValue as variant
    vReturnValue=InitialDataCtlCaptions()
End Sub

VERSION 5.00
Object="{67397AA1-7FB1-11D0-B148-00A0C922E820}#6.0#0"; "MSADODC.OCX"
Object="{BDC217C8-ED16-11CD-956C-0000C04E4C0A}#1.1#0"; "TABCTL32.OCX"
Object="{86CF1D34-0C5F-11D2-A9FC-0000F8754DA1}#2.0#0"; "MSCOMCT2.OCX"
Object="{4A4AA691-3E6F-11D2-822F-00104B9E07A1}#3.0#0"; "ssdw3bo.ocx"
Begin VB.Form frmTabs
   BorderStyle = 2
   Caption ="Tabs"
   ClientHeight = 5700
   ClientLeft = 250
   ClientTop = 500
   ClientWidth = 9000
   Height = 5700
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
   Begin MSAdodcLib.Adodc datfrmTabs
      Height = 300
      Left = 0
      Top = 5370
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
      Caption = "datfrmTabs"
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
   Begin TabDlg.SSTab tabOrder
      Height = 4400
      Left = 500
      Top = 1100
      Width = 8000
      _ExtentX =14108
      _ExtentY = 7759.4
      _Version = 262144
      Style = 1
      Tabs = 3
      TabsPerRow  = 3
      TabHeight = 520
      HelpContextID = 0
      TabIndex = 1
      TabCaption(0) = "General"
      TabPicture(0)  = "frmTabs.frx":0000
      TabCaption(1) = "pgLines"
      TabPicture(1)  = "frmTabs.frx":001C
      TabCaption(2) = "Customer"
      TabPicture(2)  = "frmTabs.frx":0038
      TabVisible(2) = 0
      Tab(0).ControlEnabled =-1
      Tab(0).Control(0)="OrderDate"
      Tab(0).Control(1)="OrderDate_Label"
      Tab(0).Control(2)="CustomerID"
      Tab(0).Control(3)="CustomerID_Label"
      Tab(0).Control(4)="boxGeneral"
      Tab(1).ControlEnabled =0
      Tab(1).Control(0)="sfrmLines"
      Tab(1).Control(1)="datsfrmLines"
      Tab(1).Control(2)="grpgrpShip"
      Tab(1).Control(3)="optRush"
      Tab(1).Control(4)="cboStatus"
      Tab(2).ControlEnabled =0
      Tab(2).Control(0)="sfrmCustomer"
      Tab(2).Control(1)="cmdCall"
      Tab(0).ControlCount= 5
      Tab(1).ControlCount= 5
      Tab(2).ControlCount= 2
      Begin MSComCtl2.DTPicker OrderDate
         Left = 1500
         Top = 500
         _Version = 393216
         Width = 1500
         _ExtentX = 1500
         Height = 255
         _ExtentY = 255
         DataSource ="datfrmTabs"
         DataField ="OrderDate"
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
      Begin VB.Label OrderDate_Label
         BackColor= &H8000000F&
         BorderStyle=0
         Caption="Date"
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
         Left = 200
         Top = 500
         Width = 1200
      End
      Begin VB.TextBox CustomerID
         DataSource ="datfrmTabs"
         DataField ="CustomerID"
         BorderStyle=1
         Appearance=0
         Height = 255
         Left = 1500
         Top = 900
         Width = 1500
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
      Begin VB.Label CustomerID_Label
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
         Left = 200
         Top = 900
         Width = 1200
      End
      Begin VB.Shape boxGeneral
         Height = 900
         Left = 100
         Top = 400
         Width = 3100
         FillColor = &HFFFFFF&
         FillStyle = 0
         BorderStyle = 1
         BorderColor = &H0&
      End
      Begin SSDataWidgets_B_OLEDB.SSOleDBGrid sfrmLines
         Bindings = "frmTabs.frx":0054
         Height = 2000
         Left = -74800
         TabIndex =0
         Top = 500
         Width = 5000
         _Version = 131072
         AllowAddNew = -1
         AllowDelete = -1
         BeginProperty HeadFont {0BE35203-8F91-11CE-9DE3-00AA004BB851}
            Name = " Arial"
            charset = 0
            weight = 400
            Size = 8
            underline = 0
            italic = 0
            strikethrough = 0
         EndProperty
         RecordSelectors = 1
         GroupHeaders = 0
         FieldSeparator = "~"
         DividerType = 3
         RowSelectionStyle = 1
         SelectTypeRow = 1
         AllowUpdate = 1
         SelectByCell = -1
         MaxSelectedRows = 1
         ForeColorEven = 0
         BackColorOdd = 16777215
         RowHeight = 450
         Columns.count = 3
         Columns(0).Width = 4408.75
         Columns(0).Caption = "ProductName"
         Columns(0).Name = "ProductName"
         Columns(0).DataField = "ProductName"
         Columns(0).DataType = 8
         Columns(0).FieldLen = 4096
         Columns(1).Width = 1763.5
         Columns(1).Caption = "Qty"
         Columns(1).Name = "Qty"
         Columns(1).DataField = "Qty"
         Columns(1).DataType = 8
         Columns(1).FieldLen = 4096
         Columns(1).Alignment = 1
         Columns(1).NumberFormat = "General Number"
         Columns(2).Visible = 0
         Columns(2).Width = 0
         Columns(2).Caption = "OrderID"
         Columns(2).Name = "OrderID"
         Columns(2).DataField = "OrderID"
         Columns(2).DataType = 8
         Columns(2).FieldLen = 4096
         _ExtentX = 8817.5
         _ExtentY = 3527
         _StockProps = 79
         BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851}
            Name = "Arial"
            charset = 0
            weight = 400
            Size = 8.25
            underline = 0
            italic = 0
            strikethrough = 0
         EndProperty
         TabStop =-1
         Tag="~Jet  qryOrderLines"
      End
      Begin MSAdodcLib.Adodc datsfrmLines
         Height = 300
         Left = -74800
         Top = 2500
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
      Begin VB.Frame grpgrpShip
         Height = 1150
         Left = -69600
         TabIndex = 1
         HelpContextID = 0
         Top = 350
         Width = 2000
         Begin VB.OptionButton grpShip
            Height = 210
            Left = 150
            Index = 1
            TabIndex = 94
            Top = 350
         End
         Begin VB.OptionButton grpShip
            Height = 210
            Left = 150
            Index = 2
            TabIndex = 94
            Top = 650
         End
      End
      Begin VB.OptionButton optRush
         Left = -69600
         TabIndex = 2
         Top = 1700
         Height = 210
         Caption =  "Rush"
         Width = 1170
         BackColor= &H8000000F&
         ForeColor= &H80000012&
      End
      Begin VB.ComboBox cboStatus
         Height = 255
         Left = -74800
         TabIndex = 3
         Top = 2700
         Width = 2000
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
      End
      Begin VB.PictureBox sfrmCustomer
         BackColor= &HF0F0F0&
         ClipControls = -1
         Height = 1500
         Left = -74800
         TabIndex = 0
         TabStop = 0
         Top = 500
         Width = 6000
         Begin MSAdodcLib.Adodc datsfrmCustomer
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
         Begin VB.TextBox CustomerName
            DataSource ="datsfrmCustomer"
            DataField ="CustomerName"
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
         Begin VB.Label CustomerName_Label
            BackColor= &H8000000F&
            BorderStyle=0
            Caption="Name"
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
            Width = 1300
         End
      End
      Begin VB.CommandButton cmdCall
         BeginProperty Font
            Name = "MS Sans Serif"
            charset = 0
            weight = 700
            Size = 10
            underline = 0
            italic = 0
            strikethrough = 0
         EndProperty
         Caption = "Call"
         Height = 400
         Left = -74800
         TabIndex = 1
         Top = 2200
         Width = 1500
         HelpContextID = 0
      End
   End
   Begin VB.TextBox OrderID
      DataSource ="datfrmTabs"
      DataField ="OrderID"
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1800
      Top = 620
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
   Begin VB.Label OrderID_Label
      BackColor= &H8000000F&
      BorderStyle=0
      Caption="Order"
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
      Left = 120
      Top = 620
      Width = 1500
   End
   Begin VB.Frame Section
      Caption =  ""
      BackColor= &HC0C0C0&
      Height = 500
      Left = 0
      Index = 1
      Top = 0
      Width = 9000
      BorderStyle = 0
      Begin VB.Label lblTitle
         BackColor= &H8000000F&
         BorderStyle=0
         Caption="An order on three pages"
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
         Height = 300
         Left = 100
         Top = 100
         Width = 3000
      End
      
   End
End
Attribute VB_Name = "frmTabs"

Option Explicit


Private Sub cmdCall_Click()
    MsgBox "Calling " & Me.datfrmTabs.recordset.Fields("CustomerID")
    Me.tabOrder.TabCaption(1) = "Lines of " & Me.datfrmTabs.recordset.Fields("CustomerID")
    If Me.tabOrder.TabVisible(2) Then Me.tabOrder.Tab = 0
    Me.tabOrder.TabEnabled(1) = (2 > 0)
    Me.pgLines.Requery
End Sub
Private Function InitialDataCtlCaptions()
    On Error Resume Next
    datfrmTabs.Recordset.movenext
    datfrmTabs.Recordset.moveFirst
    datsfrmCustomer.Recordset.movenext
    datsfrmCustomer.Recordset.moveFirst
End Function
Private Sub datfrmTabs_MoveComplete(ByVal adReason As ADODB.EventReasonEnum, ByVal pError As ADODB.Error, adStatus As ADODB.EventStatusEnum, ByVal pRecordset As ADODB.Recordset)
    On Error Resume Next
    datsfrmLines.Recordset.MoveFirst
    datsfrmLines.Recordset.Movelast
    datsfrmLines.refresh
    datsfrmLines.RecordSource="Select * from [qryOrderLines] INNER JOIN [qryOrders] ON [qryOrderLines].[OrderID] = [qryOrders].[OrderID] Where [qryOrders].[OrderID]=""" & datfrmTabs.Recordset.Fields("OrderID") & """"
    datsfrmCustomer.Recordset.MoveFirst
    datsfrmCustomer.Recordset.Movelast
    datsfrmCustomer.refresh
    datsfrmCustomer.RecordSource="Select * from [qryCustomers] INNER JOIN [qryOrders] ON [qryCustomers].[CustomerID] = [qryOrders].[CustomerID] Where [qryOrders].[CustomerID]=""" & datfrmTabs.Recordset.Fields("CustomerID") & """"
End Sub
Private Sub datsfrmLines_MoveComplete(ByVal adReason As ADODB.EventReasonEnum, ByVal pError As ADODB.Error, adStatus As ADODB.EventStatusEnum, ByVal pRecordset As ADODB.Recordset)
    On Error Resume Next
End Sub
Private Function InitializeComboBoxes()
    Call AddItemsMS("Open;Closed", me!cboStatus, "String")
End Function
Private Sub datsfrmCustomer_MoveComplete(ByVal adReason As ADODB.EventReasonEnum, ByVal pError As ADODB.Error, adStatus As ADODB.EventStatusEnum, ByVal pRecordset As ADODB.Recordset)
    On Error Resume Next
End Sub
Private Sub Form_Load()
    Call InitializeComboBoxes()
    Call InitialDataCtlCaptions()
End Sub
Private Sub Form_Activate()
    Dim vReturnValue as variant
    vReturnValue=InitialDataCtlCaptions()
End Sub

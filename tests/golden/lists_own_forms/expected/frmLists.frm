VERSION 5.00
Object="{67397AA1-7FB1-11D0-B148-00A0C922E820}#6.0#0"; "MSADODC.OCX"
Object="{6D1E6C53-2F4B-4A8E-9C1D-7B35E0A4F812}#2.0#0"; "Kestrel.ocx"
Object="{0D452EE1-E08F-101A-852E-02608C4D0BB4}#2.0#0"; "FM20.DLL"
Begin VB.Form frmLists
   BorderStyle = 2
   Caption ="Lists"
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
   Begin MSAdodcLib.Adodc datfrmLists
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
      RecordSource = "tblOrders"
      Caption = "datfrmLists"
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
   Begin Kestrel.KRListBox lstColors
      Height = 1200
      Left = 120
      TabIndex =0
      Top = 120
      Width = 2000
      HelpContextID = 0
      Cols = 2
      ColumnWidths = "0;1440"
      _ExtentX = 3527
      _ExtentY = 2116.2
      BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851}
         Name = "MS Sans Serif"
         charset = 0
         weight = 400
         Size = 8
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
      TabStop =-1
      BackColor= &H80000005&
      ForeColor= &H80000008&
      RowSourceType = "Value List"
      RowSource = """1"";""Red"";""2"";""Green"";""3"";""Blue"""
      MultiSelect = "1"
      BoundColumn = "1"
   End
   Begin Kestrel.KRListBox lstCustomers
      Height = 1200
      Left = 2300
      TabIndex =1
      Top = 120
      Width = 2400
      HelpContextID = 0
      Cols = 2
      ColumnWidths = "720;1440"
      FixedCols = 1
      _ExtentX = 4232.4
      _ExtentY = 2116.2
      BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851}
         Name = "MS Sans Serif"
         charset = 0
         weight = 400
         Size = 8
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
      TabStop =-1
      BackColor= &H80000005&
      ForeColor= &H80000008&
      RowSourceType = "Table/Query"
      RowSource = "tblCustomers"
      MultiSelect = "0"
      BoundColumn = "1"
   End
   Begin MSAdodcLib.Adodc datlstCustomers
      Height = 300
      Left = 2300
      Top = 1320
      Width = 1215
      _ExtentX = 5212
      _ExtentY = 767
      ConnectMode = 0
      CursorLocation = 3
      IsolationLevel = -1
      ConnectionTimeout = 15
      CommandTimeout = 30
      CursorType = 3
      LockType = 3
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
      RecordSource = "tblCustomers"
      Caption = "datlstCustomers"
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
   Begin Kestrel.KRListBox lstOrders
      Height = 1200
      Left = 4900
      TabIndex =2
      Top = 120
      Width = 3000
      HelpContextID = 0
      Cols = 3
      ColumnWidths = "600"
      _ExtentX = 5290.5
      _ExtentY = 2116.2
      BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851}
         Name = "MS Sans Serif"
         charset = 0
         weight = 400
         Size = 8
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
      TabStop =-1
      BackColor= &H80000005&
      ForeColor= &H80000008&
      ToolTipText ="Orders ""so far"""
      RowSourceType = "Table/Query"
      RowSource = "SELECT OrderID, OrderDate, Qty FROM tblOrders ORDER BY OrderDate;"
      MultiSelect = "0"
      BoundColumn = "3"
   End
   Begin MSAdodcLib.Adodc datlstOrders
      Height = 300
      Left = 4900
      Top = 1320
      Width = 1215
      _ExtentX = 5212
      _ExtentY = 767
      ConnectMode = 0
      CursorLocation = 3
      IsolationLevel = -1
      ConnectionTimeout = 15
      CommandTimeout = 30
      CursorType = 3
      LockType = 3
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
      RecordSource = "SELECT OrderID, OrderDate, Qty FROM tblOrders ORDER BY OrderDate;"
      Caption = "datlstOrders"
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
   Begin MSForms.ComboBox cboCustomer
      DataField ="CustomerID"
      DataSource ="datfrmLists"
      Height = 255
      Left = 120
      TabIndex =3
      Top = 1600
      Width = 2400
      HelpContextID = 0
      Text = "1"
      Size = "4232.4;449.6925"
      BoundColumn = 1
      TextColumn = 2
      ColumnCount = 2
      DisplayStyle = 7
      MatchEntry = 1
      ShowDropButtonWhen = 2
      BorderColor = 0
      BorderStyle = 1
      SpecialEffect = 0
      BackColor= &H80000005&
      ForeColor= &H80000008&
      cColumnInfo = 2
      Object.Width = "0;3377"
   End
   Begin MSForms.ComboBox cboRegion
      Height = 255
      Left = 2700
      TabIndex =4
      Top = 1600
      Width = 2400
      HelpContextID = 0
      Size = "4232.4;449.6925"
      BoundColumn = 2
      TextColumn = 1
      ColumnCount = 2
      DisplayStyle = 3
      MatchEntry = 1
      ShowDropButtonWhen = 2
      BorderColor = 0
      BorderStyle = 1
      SpecialEffect = 0
      BackColor= &H80000005&
      ForeColor= &H80000008&
      cColumnInfo = 2
      Object.Width = "2389.44;0"
   End
   Begin MSForms.ComboBox cboOrderDate
      DataField ="OrderID"
      DataSource ="datfrmLists"
      Height = 255
      Left = 5300
      TabIndex =5
      Top = 1600
      Width = 2400
      HelpContextID = 0
      Size = "4232.4;449.6925"
      BoundColumn = 2
      TextColumn = 2
      ColumnCount = 3
      DisplayStyle = 3
      MatchEntry = 1
      ShowDropButtonWhen = 2
      BorderColor = 0
      BorderStyle = 1
      SpecialEffect = 0
      BackColor= &H80000005&
      ForeColor= &H80000008&
      Tag="dates"
      cColumnInfo = 2
      Object.Width = "0;2389.44;1119.72"
   End
   Begin VB.ComboBox cboSize
      Text = "M"
      Height = 255
      Left = 120
      TabIndex = 6
      Top = 2200
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
      Style = 2
   End
   Begin MSForms.ComboBox cboTheVeryLongNameOfAComboBoxOnThisForm1
      Height = 255
      Left = 1500
      TabIndex =7
      Top = 2200
      Width = 3000
      HelpContextID = 0
      Size = "5290.5;449.6925"
      BoundColumn = 1
      TextColumn = 2
      ColumnCount = 2
      DisplayStyle = 3
      MatchEntry = 1
      ShowDropButtonWhen = 2
      BorderColor = 0
      BorderStyle = 1
      SpecialEffect = 0
      BackColor= &H80000005&
      ForeColor= &H80000008&
      cColumnInfo = 2
      Object.Width = "0;2389.44"
   End
End
Attribute VB_Name = "frmLists"

Option Explicit


Private Sub lstColors_Click()
    Me.Caption = "Colour " & Me.lstColors
End Sub

Private Sub lstCustomers_DblClick()
    GetFormFromName("frmCustomer").Show	'MORVANE DoCmd.OpenForm "frmCustomer"
End Sub

Private Sub cboCustomer_NotInList(NewData As String, Response As Integer)
    Response = acDataErrContinue
End Sub

Private Sub cboCustomer_AfterUpdate()
    Me.cboOrderDate.Requery
End Sub

Private Sub cboRegion_KeyDown(KeyCode As MSForms.ReturnInteger, Shift As Integer)
    If KeyCode = 13 Then KeyCode = 0
End Sub

Private Function DefaultRegion() As Long
    DefaultRegion = 1
End Function

Private Function RefreshTotals()
    Me.Refresh
End Function

Private Function InitialDataCtlCaptions()
    On Error Resume Next
    datfrmLists.Recordset.movenext
    datfrmLists.Recordset.moveFirst
End Function
Private Sub datfrmLists_MoveComplete(ByVal adReason As ADODB.EventReasonEnum, ByVal pError As ADODB.Error, adStatus As ADODB.EventStatusEnum, ByVal pRecordset As ADODB.Recordset)
    On Error Resume Next
End Sub
Private Function InitializeListBoxes()
    Call AddItems("""1"";""Red"";""2"";""Green"";""3"";""Blue""", me!lstColors, "String")
End Function
Private Function InitializeComboBoxes()
    Call AddItemsMSF("qryCustomerList", me!cboCustomer, "Jet")
    Call AddItemsMSF("qryRemoteRegions", me!cboRegion, "Jet")
    Call AddItemsMSF("SELECT OrderID, OrderDate, Qty FROM tblOrders;", me!cboOrderDate, "Jet")
    Call AddItemsMS("S;M;L", me!cboSize, "String")
    Dim strRowSource As String
    strRowSource = "SELECT tblOrders.OrderID, tblOrders.OrderDate FROM tblOrders WHERE (tblOrders.Qty = 1 AND tblOrders.Price > 10) OR (tblOrders.Qty = 2 AND tblOrders.Price > 20) OR (tblOrders.Qty = 3 AND tblOrders.Price > 30) OR (tblOrders.Qty = 4 AND tblOrders.Price > 40) OR (tblOrders.Qty = 5 AND tblOrders.Price > 50) OR (tblOrders.Qty = 6 AND tblOrders.Price > 60) OR (tblOrders.Qty = 7 AND tblOrders.Price > 70) OR (tblOrders.Qty = 8 AND tblOrders.Price > 80) OR (tblOrders.Qty = 9 AND tblOrders.Price > 90) OR (tblOrders.Qty = 10 AND tblOrders.Price > 100) OR (tblOrders.Qty = 11 AND tblOrders.Price > 110) OR (tblOrders.Qty = 12 AND tblOrders.Price > 120) OR (tblOrders.Qty = 13 AND tblOrders.Price > 130) OR (tblOrders.Qty = 14 AND tblOrders.Price > 140) OR (tblOrders.Qty = 15 AND tblOrders.Price > 150) OR ("
    strRowSource = strRowSource & "tblOrders.Qty = 16 AND tblOrders.Price > 160) OR (tblOrders.Qty = 17 AND tblOrders.Price > 170) OR (tblOrders.Qty = 18 AND tblOrders.Price > 180) OR (tblOrders.Qty = 19 AND tblOrders.Price > 190) OR (tblOrders.Qty = 20 AND tblOrders.Price > 200) OR (tblOrders.Qty = 21 AND tblOrders.Price > 210) OR (tblOrders.Qty = 22 AND tblOrders.Price > 220) OR (tblOrders.Qty = 23 AND tblOrders.Price > 230) OR (tblOrders.Qty = 24 AND tblOrders.Price > 240) OR (tblOrders.Qty = 25 AND tblOrders.Price > 250) OR (tblOrders.Qty = 26 AND tblOrders.Price > 260) OR (tblOrders.Qty = 27 AND tblOrders.Price > 270) OR (tblOrders.Qty = 28 AND tblOrders.Price > 280) OR (tblOrders.Qty = 29 AND tblOrders.Price > 290) OR (tblOrders.Qty = 30 AND tblOrders.Price > 300) ORDER BY tblOrders.OrderDate;"
    Call AddItemsMSF(strRowSource, me!cboTheVeryLongNameOfAComboBoxOnThisForm1, "Jet")
End Function

Private Sub cboCustomer_Click()
    Call cboCustomer_AfterUpdate
End Sub

Private Sub cboRegion_DblClick(Cancel As MSForms.ReturnBoolean)
    Call mcrBeep
End Sub
Private Sub Form_Load()
    Call InitializeListBoxes()
    Call InitializeComboBoxes()
    Call InitialDataCtlCaptions()

    cboRegion.Text = DefaultRegion()
End Sub
Private Sub Form_Activate()
    Dim vReturnValue as variant
    vReturnValue=InitialDataCtlCaptions()
End Sub

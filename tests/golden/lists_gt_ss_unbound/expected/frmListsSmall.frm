VERSION 5.00
Object="{67397AA1-7FB1-11D0-B148-00A0C922E820}#6.0#0"; "MSADODC.OCX"
Object="{98460712-9149-11CF-BADB-00201802BB87}#1.1#0"; "GTLIST32.OCX"
Object="{4A4AA691-3E6F-11D2-822F-00104B9E07A1}#3.0#0"; "ssdw3bo.ocx"
Begin VB.Form frmListsSmall
   BorderStyle = 2
   Caption ="Lists, fewer"
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
   Begin MSAdodcLib.Adodc datfrmListsSmall
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
      Caption = "datfrmListsSmall"
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
   Begin DataList.GTList lstColors
      Height = 1200
      Left = 120
      TabIndex = 0
      Top = 120
      Width = 2000
      _Version =   65536
      HelpContextID = 0
      AllowColumnDragDrop = 0
      DefColCaptionBorderStyle = 3
      MultiSelect = 1
      ColumnCaptions =0
      BeginProperty DefColCaptionFont {0BE35203-8F91-11CE-9DE3-00AA004BB851}
         Name = "MS Sans Serif"
         charset = 0
         weight = 400
         Size = 8.25
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
      BeginProperty DefFont {0BE35203-8F91-11CE-9DE3-00AA004BB851}
         Name = "MS Sans Serif"
         charset = 0
         weight = 400
         Size = 8.25
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
      BeginProperty ScrollTipFont {0BE35203-8F91-11CE-9DE3-00AA004BB851}
         Name = "MS Sans Serif"
         charset = 0
         weight = 400
         Size = 8.25
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
      BeginProperty ExtendTipFont {0BE35203-8F91-11CE-9DE3-00AA004BB851}
         Name = "MS Sans Serif"
         charset = 0
         weight = 400
         Size = 8.25
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
      CDs.Count = 2
      CDs.CD(0).SubItemSource = 0
      CDs.CD(0).WordWrap = 0
      CDs.CD(0).CaptionWordWrap = 0
      CDs.CD(0).Caption = "Col 0"
      CDs.CD(0).Width = 0
      CDs.CD(0).Visible = 0
      CDs.CD(0).KEY = ""
      CDs.CD(1).SubItemSource = 1
      CDs.CD(1).SubColumn = 1
      CDs.CD(1).WordWrap = 0
      CDs.CD(1).CaptionWordWrap = 0
      CDs.CD(1).Caption = "Col 1"
      CDs.CD(1).Width = 2539.44
      CDs.CD(1).KEY = ""
      LImgs.Count = 1
      GridLineType = 2
      _ExtentX = 3527
      _ExtentY = 2116.2
      _StockProps = 81
      BackColor = -2147483643
      TabStop =-1
      BackColor= &H80000005&
      ForeColor= &H80000008&
   End
   Begin DataList.GTList lstOrders
      Height = 1200
      Left = 4900
      TabIndex = 2
      Top = 120
      Width = 3000
      _Version =   65536
      HelpContextID = 0
      AllowColumnDragDrop = 0
      DefColCaptionBorderStyle = 3
      MultiSelect = 0
      ColumnCaptions =0
      BeginProperty DefColCaptionFont {0BE35203-8F91-11CE-9DE3-00AA004BB851}
         Name = "MS Sans Serif"
         charset = 0
         weight = 400
         Size = 8.25
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
      BeginProperty DefFont {0BE35203-8F91-11CE-9DE3-00AA004BB851}
         Name = "MS Sans Serif"
         charset = 0
         weight = 400
         Size = 8.25
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
      BeginProperty ScrollTipFont {0BE35203-8F91-11CE-9DE3-00AA004BB851}
         Name = "MS Sans Serif"
         charset = 0
         weight = 400
         Size = 8.25
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
      BeginProperty ExtendTipFont {0BE35203-8F91-11CE-9DE3-00AA004BB851}
         Name = "MS Sans Serif"
         charset = 0
         weight = 400
         Size = 8.25
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
      CDs.Count = 3
      CDs.CD(0).SubItemSource = 0
      CDs.CD(0).WordWrap = 0
      CDs.CD(0).CaptionWordWrap = 0
      CDs.CD(0).Caption="OrderID"
      CDs.CD(0).Width = 1058.1
      CDs.CD(0).KEY = ""
      CDs.CD(1).SubItemSource = 1
      CDs.CD(1).SubColumn = 1
      CDs.CD(1).WordWrap = 0
      CDs.CD(1).CaptionWordWrap = 0
      CDs.CD(1).Caption="OrderDate"
      CDs.CD(1).Width = 1058.1
      CDs.CD(1).KEY = ""
      CDs.CD(2).SubItemSource = 2
      CDs.CD(2).SubColumn = 2
      CDs.CD(2).WordWrap = 0
      CDs.CD(2).CaptionWordWrap = 0
      CDs.CD(2).Caption="Qty"
      CDs.CD(2).Width = 1058.1
      CDs.CD(2).KEY = ""
      LImgs.Count = 1
      GridLineType = 2
      _ExtentX = 5290.5
      _ExtentY = 2116.2
      _StockProps = 81
      BackColor = -2147483643
      TabStop =-1
      BackColor= &H80000005&
      ForeColor= &H80000008&
      ToolTipText ="Orders ""so far"""
   End
   Begin SSDataWidgets_B_OLEDB.SSOleDBCombo cboCustomer
      DataFieldList="Column 0"
      Height = 255
      Left = 120
      TabIndex =3
      Top = 1600
      Width = 2400
      HelpContextID = 0
      Text = "1"
      _Version = 196616
      DataMode=2
      Cols=2
      Rows=8
      AllowInput=0
      DataSource ="datfrmListsSmall"
      DataField ="CustomerID"
      BeginProperty HeadFont {0BE35203-8F91-11CE-9DE3-00AA004BB851}
         Name = "Arial"
         charset = 0
         weight = 400
         Size = 8
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
      GroupHeaders = 0
      ColumnHeaders = 0
      FieldSeparator = "~"
      DividerType = 1
      RowHeight= 400
      ForeColorEven = 0
      BackColorOdd = 16777215
      Columns.count = 2
      Columns(0).Visible = 0
      Columns(0).Width = 0
      Columns(0).Caption = "CustomerID"
      Columns(0).Name = "CustomerID"
      Columns(0).DataField = "Column 0"
      Columns(0).DataType = 8
      Columns(0).FieldLen = 4096
      Columns(1).Width = 3527
      Columns(1).Caption = "CompanyName"
      Columns(1).Name = "CompanyName"
      Columns(1).DataField = "Column 1"
      Columns(1).DataType = 8
      Columns(1).FieldLen = 4096
      _ExtentX = 4232.4
      _ExtentY=449.6925
      _StockProps = 93
      BackColor= &H80000005&
      BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851}
         Name = "MS Sans Serif"
         charset = 0
         weight = 400
         Size = 8
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
      ForeColor= &H80000008&
      Tag="Jet  qryCustomerList"
      DataFieldToDisplay="Column 1"
   End
   Begin SSDataWidgets_B_OLEDB.SSOleDBCombo cboRegion
      DataFieldList="Column 0"
      Height = 255
      Left = 2700
      TabIndex =4
      Top = 1600
      Width = 2400
      HelpContextID = 0
      _Version = 196616
      DataMode=2
      Cols=2
      Rows=8
      AllowInput=1
      DataSource ="datfrmListsSmall"
      DataField =""
      BeginProperty HeadFont {0BE35203-8F91-11CE-9DE3-00AA004BB851}
         Name = "Arial"
         charset = 0
         weight = 400
         Size = 8
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
      GroupHeaders = 0
      ColumnHeaders = 0
      FieldSeparator = "~"
      DividerType = 1
      RowHeight= 400
      ForeColorEven = 0
      BackColorOdd = 16777215
      Columns.count = 2
      Columns(0).Width = 2539.44
      Columns(0).Caption = "RegionID"
      Columns(0).Name = "RegionID"
      Columns(0).DataField = "Column 0"
      Columns(0).DataType = 8
      Columns(0).FieldLen = 4096
      Columns(1).Visible = 0
      Columns(1).Width = 0
      Columns(1).Caption = "RegionName"
      Columns(1).Name = "RegionName"
      Columns(1).DataField = "Column 1"
      Columns(1).DataType = 8
      Columns(1).FieldLen = 4096
      _ExtentX = 4232.4
      _ExtentY=449.6925
      _StockProps = 93
      BackColor= &H80000005&
      BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851}
         Name = "MS Sans Serif"
         charset = 0
         weight = 400
         Size = 8
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
      ForeColor= &H80000008&
      Tag="SQLPassthrough  qryRemoteRegions ~ SELECT RegionID, RegionName FROM dbo.Regions WHERE Country = 'NO' AND Note <> ""x"" ORDER BY RegionName"
      DataFieldToDisplay="Column 0"
   End
End
Attribute VB_Name = "frmListsSmall"

Option Explicit


Private Sub lstColors_Click()
    Call RefreshTotals
    Me.Caption = "Colour " & Me.lstColors
End Sub

Private Sub cboCustomer_NotInList(NewData As String, Response As Integer)
    Response = acDataErrContinue
End Sub

Private Sub cboRegion_KeyDown(KeyCode As Integer, Shift As Integer)
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
    datfrmListsSmall.Recordset.movenext
    datfrmListsSmall.Recordset.moveFirst
End Function
Private Sub datfrmListsSmall_MoveComplete(ByVal adReason As ADODB.EventReasonEnum, ByVal pError As ADODB.Error, adStatus As ADODB.EventStatusEnum, ByVal pRecordset As ADODB.Recordset)
    On Error Resume Next
End Sub
Private Function InitializeListBoxes()
    Call AddItemsGT("""1"";""Red"";""2"";""Green"";""3"";""Blue""", me!lstColors, "String")
    Call AddItemsGT("SELECT OrderID, OrderDate, Qty FROM tblOrders ORDER BY OrderDate;", me!lstOrders, "Jet")
End Function
Private Function InitializeComboBoxes()
    Call AddItemsSS("qryCustomerList", me!cboCustomer, "Jet")
    Call AddItemsSS("qryRemoteRegions", me!cboRegion, "Jet")
End Function

Private Sub cboCustomer_Click()
    Call cboCustomer_AfterUpdate
End Sub

Private Sub cboCustomer_LostFocus()
    If Not cboCustomer.IsItemInList Then
        Call cboCustomer_NotInList(cboCustomer.Text, 0)
    End If
End Sub

Private Sub cboRegion_Click()
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

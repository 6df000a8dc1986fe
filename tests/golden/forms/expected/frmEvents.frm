VERSION 5.00
Object="{67397AA1-7FB1-11D0-B148-00A0C922E820}#6.0#0"; "MSADODC.OCX"
Begin VB.Form frmEvents
   BorderStyle = 2
   Caption ="Events and sections"
   ClientHeight = 3700
   ClientLeft = 250
   ClientTop = 500
   ClientWidth = 6000
   Height = 3700
   Left = 250
   LinkTopic = ""
   MaxButton = -1
   MinButton = -1
   ShowInTaskbar = 0
   Top = 500
   Width = 6000
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
   Begin MSAdodcLib.Adodc datfrmEvents
      Height = 300
      Left = 0
      Top = 3370
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
      RecordSource = "SELECT * FROM tblOrders WHERE Shipped = False"
      Caption = "datfrmEvents"
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
   Begin VB.TextBox Customer
      DataSource ="datfrmEvents"
      DataField ="Customer"
      BorderStyle=1
      Appearance=0
      Height = 255
      Left = 1800
      Top = 1020
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
   Begin VB.CommandButton cmdGo
      BeginProperty Font
         Name = "MS Sans Serif"
         charset = 0
         weight = 700
         Size = 10
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
      Caption = "Go"
      Height = 400
      Left = 120
      TabIndex = 1
      Top = 1500
      Width = 1500
      HelpContextID = 0
   End
   Begin VB.CommandButton cmdStop
      BeginProperty Font
         Name = "MS Sans Serif"
         charset = 0
         weight = 700
         Size = 10
         underline = 0
         italic = 0
         strikethrough = 0
      EndProperty
      Caption = "Stop"
      Height = 400
      Left = 1800
      TabIndex = 3
      Top = 1500
      Width = 1500
      HelpContextID = 0
   End
   Begin VB.CheckBox chkRush
      Value = 0
      BeginProperty Font
         charset = 0
         strikethrough = 0
      EndProperty
      Height = 240
      Left = 120
      TabIndex = 2
      Top = 2100
      Width = 260
      HelpContextID = 0
   End
   Begin VB.Frame Section
      Caption =  ""
      BackColor= &HC0C0C0&
      Height = 600
      Left = 0
      Index = 1
      Top = 0
      Width = 6000
      BorderStyle = 0
      Begin VB.Label lblHeader
         BackColor= &H8000000F&
         BorderStyle=0
         Caption="Open orders"
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
         Left = 120
         Top = 120
         Width = 3000
      End
      
   End
   Begin VB.Frame Section
      Caption =  ""
      BackColor= &HFFFFFF&
      Height = 500
      Left = 0
      Index = 2
      Top = 3200
      Width = 6000
      BorderStyle = 0
      Begin VB.TextBox txtCount
         BorderStyle=1
         Appearance=0
         Height = 255
         Left = 1800
         Top = 100
         Width = 1500
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
      
   End
   Begin VB.Frame Section
      Caption =  ""
      BackColor= &HFFFFFF&
      Height = 300
      Left = 0
      Index = 3
      Top = 600
      Width = 6000
      BorderStyle = 0
      Visible = 0
      Begin VB.Label lblPage
         BackColor= &H8000000F&
         BorderStyle=0
         Caption="Page header"
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
         Top = 0
         Width = 3000
      End
      
   End
   Begin VB.Frame Section
      Caption =  ""
      BackColor= &HFFFFFF&
      Height = 300
      Left = 0
      Index = 4
      Top = 2900
      Width = 6000
      BorderStyle = 0
      Visible = 0
      Begin VB.Label lblPageFooter
         BackColor= &H8000000F&
         BorderStyle=0
         Caption="Page footer"
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
         Top = 0
         Width = 3000
      End
      
   End
End
Attribute VB_Name = "frmEvents"

Option Explicit


Private Function Form_Open() as Integer
    Me.Caption = "Open orders"
End Function

Private Sub Form_Current()
    Me.lblHeader.Caption = "Order " & Me.Customer
End Sub

Private Function Form_BeforeUpdate() as Integer
    If IsNull(Me.Customer) Then Form_BeforeUpdate = True
End Function

' Access runs =StartUp() when the form loads, never this procedure.
Private Sub Form_Load_NotEvent()
    Me.Caption = "Not run"
End Sub

' Access runs =Noted() on a click, never this procedure.
Private Sub cmdStop_Click_NotEvent()
    MsgBox "Stop"
End Sub

Private Sub lblHeader_Click()
    MsgBox "Header"
End Sub

Private Sub Customer_Enter()
    Me.Customer.BackColor = vbYellow
End Sub

Private Function Customer_Exit() as Integer
    Me.Customer.BackColor = vbWhite
End Function

Private Sub Customer_Validate(Cancel As Boolean)
    If Len(Me.Customer) < 2 Then Cancel = True
    If Not Cancel And Customer.DataChanged Then Call CheckCustomer
End Sub

Private Sub cmdGo_Click()
    frmControls.Show	'MORVANE DoCmd.OpenForm "frmControls"
    Call cmdGo_DblClick
End Sub

Private Sub cmdGo_DblClick()
    MsgBox "Twice"
End Sub

Private Sub chkRush_AfterUpdate()
    'MORVANE Me.Customer.Locked = Me.chkRush
End Sub

Private Sub Form_Click()
    Call mcrBeep
End Sub

Private Sub Form_Load()
    If Form_Open Then
        Unload Me
    End If

    Call StartUp
End Sub

Private Sub Form_Unload(Cancel As Integer)
    Set CodeContextObject = Me
    Call mcrForm_Closing
    Set CodeContextObject = Nothing
End Sub

Private Sub datfrmEvents_WillChangeRecord(ByVal adReason As ADODB.EventReasonEnum, ByVal cRecords As Long, adStatus As ADODB.EventStatusEnum, ByVal pRecordset As ADODB.Recordset)

    Select Case adReason
        Case adRsnUpdate
            If Form_BeforeUpdate Then
                adStatus = adStatusCancel
                Exit Sub
            End If
        Case Else
    End Select
End Sub

Private Sub datfrmEvents_RecordChangeComplete(ByVal adReason As ADODB.EventReasonEnum, ByVal cRecords As Long, ByVal pError As ADODB.Error, adStatus As ADODB.EventStatusEnum, ByVal pRecordset As ADODB.Recordset)

    Select Case adReason
        Case adRsnAddNew
            Call Audit("insert")
        Case Else
    End Select
End Sub
Private Sub datfrmEvents_MoveComplete(ByVal adReason As ADODB.EventReasonEnum, ByVal pError As ADODB.Error, adStatus As ADODB.EventStatusEnum, ByVal pRecordset As ADODB.Recordset)
    Call Form_Current
    txtCount.text = datfrmEvents.Recordset.RecordCount
End sub
Private Function InitialDataCtlCaptions()
    On Error Resume Next
    datfrmEvents.Recordset.movenext
    datfrmEvents.Recordset.moveFirst
End Function

Private Sub Customer_DblClick()
    Set CodeContextObject = Me
    Call mcrForm_Lookup
    Set CodeContextObject = Nothing
End Sub

Private Sub Customer_GotFocus()
    Call Customer_Enter
End Sub

Private Sub Customer_LostFocus()
    If Customer_Exit Then
        Customer.SetFocus
        Exit Sub
    End If
End Sub

Private Sub cmdGo_GotFocus()
    Call Noted
End Sub

Private Sub cmdStop_Click()
    Call Noted
End Sub

Private Sub chkRush_Click()
    Call frmEvents_chkRush_OnClick
End Sub

Private Sub chkRush_LostFocus()
    Call chkRush_AfterUpdate
End Sub
Private Sub Form_Activate()
    Dim vReturnValue as variant
    vReturnValue=InitialDataCtlCaptions()
End Sub

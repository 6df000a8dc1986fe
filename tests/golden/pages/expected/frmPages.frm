VERSION 5.00
Object="{67397AA1-7FB1-11D0-B148-00A0C922E820}#6.0#0"; "MSADODC.OCX"
Object="{BDC217C8-ED16-11CD-956C-0000C04E4C0A}#1.1#0"; "TABCTL32.OCX"
Object="{98460712-9149-11CF-BADB-00201802BB87}#1.1#0"; "GTLIST32.OCX"
Begin VB.Form frmPages
   BorderStyle = 2
   Caption ="Three pages"
   ClientHeight = 2820
   ClientLeft = 250
   ClientTop = 500
   ClientWidth = 6000
   Height = 2820
   Left = 250
   LinkTopic = ""
   MaxButton = -1
   MinButton = -1
   ShowInTaskbar = 0
   Top = 500
   Width = 6000
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
   Begin MSAdodcLib.Adodc datfrmPages
      Height = 300
      Left = 0
      Top = 2490
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
      Caption = "datfrmPages"
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
   Begin VB.Frame Section
      Caption =  ""
      BackColor= &HC0C0C0&
      Height = 400
      Left = 0
      Index = 1
      Top = 0
      Width = 6000
      BorderStyle = 0
      Begin VB.Label lblHead
         BackColor= &H8000000F&
         BorderStyle=0
         Caption="Pages"
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
      
   End
   Begin VB.Frame Section
      Caption =  ""
      BackColor= &HC0C0C0&
      Height = 400
      Left = 0
      Index = 2
      Top = 2420
      Width = 6000
      BorderStyle = 0
      Begin VB.Label lblFoot
         BackColor= &H8000000F&
         BorderStyle=0
         Caption="Footer"
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
      
   End
   Begin TabDlg.SSTab SSTab1
      Height = 2020
      Left = 0
      TabIndex = 0
      Top = 400
      Width = 6000
      _ExtentX =10581
      _ExtentY = 3562.27
      Style = 1
      _Version = 393216
      Tabs = 3
      TabHeight = 1
      TabCaption(0) = "i"
      TabPicture(0)  = "frmPages.frx":0000
      Tab(0).ControlEnabled =-1
      TabCaption(1) = "i"
      TabPicture(1)  = "frmPages.frx":001C
      Tab(1).ControlEnabled =0
      TabCaption(2) = "i"
      TabPicture(2)  = "frmPages.frx":0038
      Tab(2).ControlEnabled =0
      Tab(0).Control(0)="OrderID"
      Tab(0).Control(1)="lblOrder"
      Tab(0).Control(2)="OrderDate"
      Tab(0).Control(3)="lblDate"
      Tab(0).Control(4)="CustomerID"
      Tab(0).Control(5)="lblCustomer"
      Tab(1).Control(0)="sfrmLines"
      Tab(1).Control(1)="datsfrmLines"
      Tab(2).Control(0)="txtNote"
      Tab(2).Control(1)="lblNote"
      Tab(0).ControlCount= 6
      Tab(1).ControlCount= 2
      Tab(2).ControlCount= 2
      Begin VB.TextBox OrderID
         DataSource ="datfrmPages"
         DataField ="OrderID"
         BorderStyle=1
         Appearance=0
         Height = 255
         Left = 1600
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
      Begin VB.Label lblOrder
         BackColor= &H8000000F&
         BorderStyle=0
         Caption="lblOrder"
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
         Left = 300
         Top = 620
         Width = 1200
      End
      Begin VB.TextBox OrderDate
         DataSource ="datfrmPages"
         DataField ="OrderDate"
         BorderStyle=1
         Appearance=0
         Height = 255
         Left = 1600
         Top = 1020
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
      Begin VB.Label lblDate
         BackColor= &H8000000F&
         BorderStyle=0
         Caption="lblDate"
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
         Left = 300
         Top = 1020
         Width = 1200
      End
      Begin VB.TextBox CustomerID
         DataSource ="datfrmPages"
         DataField ="CustomerID"
         BorderStyle=1
         Appearance=0
         Height = 255
         Left = 1600
         Top = 2020
         Width = 1500
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
      Begin VB.Label lblCustomer
         BackColor= &H8000000F&
         BorderStyle=0
         Caption="lblCustomer"
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
         Left = 300
         Top = 2020
         Width = 1200
      End
      Begin DataList.GTList sfrmLines
         Bindings = "frmPages.frx":0054
         Height = 1000
         Left = -74900
         TabIndex = 3
         Top = 920
         Width = 5000
         _Version =   65536
         AllowColumnDragDrop = 0
         DefColCaptionBorderStyle = 3
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
         CDs.CD(0).FontDefined = -1
         CDs.CD(0).DataField="ProductName"
         CDs.CD(0).Caption="ProductName"
         CDs.CD(0).CaptionFontDefined = -1
         CDs.CD(0).Width = 4408.75
         CDs.CD(0).KEY = ""
         CDs.CD(1).SubItemSource = 1
         CDs.CD(1).SubColumn = 1
         CDs.CD(1).WordWrap = 0
         CDs.CD(1).CaptionWordWrap = 0
         CDs.CD(1).FontDefined = -1
         CDs.CD(1).DataField="Qty"
         CDs.CD(1).Format="General Number"
         CDs.CD(1).Caption="Qty"
         CDs.CD(1).CaptionFontDefined = -1
         CDs.CD(1).Width = 1763.5
         CDs.CD(1).KEY = ""
         CDs.CD(2).SubItemSource = 2
         CDs.CD(2).SubColumn = 2
         CDs.CD(2).WordWrap = 0
         CDs.CD(2).CaptionWordWrap = 0
         CDs.CD(2).FontDefined = -1
         CDs.CD(2).DataField="OrderID"
         CDs.CD(2).Caption="OrderID"
         CDs.CD(2).CaptionFontDefined = -1
         CDs.CD(2).Width = 0
         CDs.CD(2).Visible = 0
         CDs.CD(2).KEY = ""
         LImgs.Count = 1
         GridLineType = 3
         _ExtentX = 8817.5
         _ExtentY = 1763.5
         _StockProps = 81
         BackColor = -2147483643
         TabStop =-1
         Tag="~Jet  qryOrderLines"
      End
      Begin MSAdodcLib.Adodc datsfrmLines
         Height = 300
         Left = -74900
         Top = 1920
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
      Begin VB.TextBox txtNote
         BorderStyle=1
         Appearance=0
         Height = 255
         Left = -73400
         Top = 720
         Width = 1500
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
      Begin VB.Label lblNote
         BackColor= &H8000000F&
         BorderStyle=0
         Caption="lblNote"
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
         Left = -74700
         Top = 720
         Width = 1200
      End
      
   End
End
Attribute VB_Name = "frmPages"

Private Function InitialDataCtlCaptions()
    On Error Resume Next
    datfrmPages.Recordset.movenext
    datfrmPages.Recordset.moveFirst
End Function
Private Sub datfrmPages_MoveComplete(ByVal adReason As ADODB.EventReasonEnum, ByVal pError As ADODB.Error, adStatus As ADODB.EventStatusEnum, ByVal pRecordset As ADODB.Recordset)
    On Error Resume Next
    datsfrmLines.Recordset.MoveFirst
    datsfrmLines.Recordset.Movelast
    datsfrmLines.refresh
    datsfrmLines.RecordSource="Select * from [qryOrderLines] INNER JOIN [qryOrders] ON [qryOrderLines].[OrderID] = [qryOrders].[OrderID] Where [qryOrders].[OrderID]=""" & datfrmPages.Recordset.Fields("OrderID") & """"
End Sub
Private Sub datsfrmLines_MoveComplete(ByVal adReason As ADODB.EventReasonEnum, ByVal pError As ADODB.Error, adStatus As ADODB.EventStatusEnum, ByVal pRecordset As ADODB.Recordset)
    On Error Resume Next
End Sub
Private Sub Form_Activate()
    Dim vReturnValue as variant
    vReturnValue=InitialDataCtlCaptions()
End Sub

// Hand-written SaveAsText exports shared by the design tests: a form with
// every control type, two subforms nested below it, a report with group
// levels, and a form in the later Access format.
#pragma once

namespace morvane::test {

// Access 2000 format. A default-control block changes Label, TextBox and
// CheckBox defaults; controls nest as Access writes them.
inline constexpr const char kCustomersForm[] = R"txt(Version =19
VersionRequired =19
Begin Form
    PopUp = NotDefault
    RecordSelectors = NotDefault
    MinMaxButtons =1
    Width =9000
    RecordSource ="Customers"
    Caption ="Customer \"list\""
    PictureData = Begin
        0x424d0600 ,
        0x00ff
    End
    Begin
        Begin Label
            BackStyle =0
        End
        Begin TextBox
            SpecialEffect =2
            OldBorderStyle =0
            Width =1701
        End
        Begin CheckBox
            SpecialEffect =2
            Visible = NotDefault
        End
        Begin FormHeader
            Height =600
            BackColor =-2147483633
            Name ="FormHeader"
            Begin
                Begin Label
                    Left =60
                    Top =60
                    Width =2000
                    Height =300
                    Name ="lblTitle"
                    Caption ="Customers"
                End
            End
        End
        Begin Section
            Height =5000
            Name ="Detail"
            Begin
                Begin TextBox
                    Left =1500
                    Top =100
                    TabIndex =1
                    Name ="First Name"
                    ControlSource ="FirstName"
                    OnClick ="[Event Procedure]"
                    Begin
                        Begin Label
                            Left =100
                            Top =100
                            Name ="lblFirst"
                            Caption ="First:"
                        End
                    End
                End
                Begin OptionGroup
                    Left =100
                    Top =600
                    Width =3000
                    Height =1500
                    Name ="grpKind"
                    ControlSource ="Kind"
                    Begin
                        Begin Label
                            Name ="lblKind"
                            Caption ="Kind"
                        End
                        Begin OptionButton
                            Name ="optA"
                            OptionValue =1
                        End
                        Begin CheckBox
                            Name ="chkB"
                            OptionValue =2
                        End
                        Begin ToggleButton
                            Name ="tglC"
                            OptionValue =3
                            Caption ="C"
                        End
                    End
                End
                Begin OptionButton
                    Name ="optAlone"
                    ControlSource ="Flag"
                End
                Begin CheckBox
                    Name ="chkAlone"
                    Visible = NotDefault
                End
                Begin ToggleButton
                    Name ="tglAlone"
                End
                Begin Rectangle
                    OldBorderStyle =1
                    BorderLineStyle =2
                    Name ="boxFrame"
                End
                Begin Line
                    LineSlant = NotDefault
                    Name ="lnSep"
                End
                Begin Image
                    SizeMode =3
                    Name ="imgLogo"
                    PictureData = Begin
                        0x0102030405060708090a0b0c0d0e0f10 ,
                        0x1112
                    End
                End
                Begin CommandButton
                    Default = NotDefault
                    Name ="cmdOK"
                    Caption ="&OK"
                    OnClickEmMacro = Begin
                        Version =196611
                        ColumnsShown =8
                        Begin
                            Action ="Close"
                            Argument ="-1"
                        End
                    End
                End
                Begin BoundObjectFrame
                    Name ="oleDoc"
                    ControlSource ="Doc"
                End
                Begin ListBox
                    ColumnCount =2
                    Name ="lstItems"
                    RowSourceType ="Value List"
                    RowSource ="1;\"One\";2;\"Two\""
                End
                Begin ComboBox
                    LimitToList = NotDefault
                    Name ="cboCity"
                    RowSourceType ="Table/Query"
                    RowSource ="SELECT Cities.Name FROM Cities WHERE Cities.Active "
                        "ORDER BY Cities.Name;"
                End
                Begin Subform
                    Name ="subOrders"
                    SourceObject ="Form.frmOrders"
                    LinkChildFields ="CustID"
                    LinkMasterFields ="ID"
                End
                Begin UnboundObjectFrame
                    Name ="oleChart"
                    Class ="MSGraph.Chart.8"
                End
                Begin PageBreak
                    Top =2500
                    Name ="pb1"
                End
                Begin CustomControl
                    Name ="axCal"
                    Class ="MSCAL.Calendar.7"
                    OleData = Begin
                        0xdeadbeef
                    End
                End
                Begin Tab
                    Left =4000
                    Name ="tabMain"
                    Begin
                        Begin Page
                            Name ="pgOne"
                            Caption ="One"
                            Begin
                                Begin TextBox
                                    Name ="txtOnPage"
                                    Begin
                                        Begin Label
                                            Name ="lblOnPage"
                                        End
                                    End
                                End
                            End
                        End
                        Begin Page
                            Name ="pgTwo"
                            Caption ="Two"
                            Begin
                                Begin OptionGroup
                                    Name ="grpOnPage"
                                    Begin
                                        Begin OptionButton
                                            Name ="optOnPage"
                                        End
                                    End
                                End
                            End
                        End
                    End
                End
            End
        End
        Begin FormFooter
            Height =400
            Name ="FormFooter"
        End
    End
End
CodeBehindForm
Attribute VB_GlobalNameSpace = False
Attribute VB_Exposed = False
Option Compare Database

Private Sub First_Name_Click()
End Sub
)txt";

inline constexpr const char kOrdersForm[] = R"txt(Version =19
VersionRequired =19
Begin Form
    DefaultView =2
    RecordSource ="Orders"
    Begin
        Begin Section
            Height =2000
            Name ="Detail"
            Begin
                Begin TextBox
                    Name ="OrderID"
                    ControlSource ="OrderID"
                End
                Begin Subform
                    Name ="subLines"
                    SourceObject ="frmorderlines"
                End
                Begin Subform
                    Name ="subGone"
                    SourceObject ="frmGone"
                End
                Begin Subform
                    Name ="subReport"
                    SourceObject ="Report.rptSales"
                End
            End
        End
    End
End
)txt";

inline constexpr const char kOrderLinesForm[] = R"txt(Version =19
VersionRequired =19
Begin Form
    DefaultView =1
    Begin
        Begin Section
            Height =300
            Name ="Detail"
            Begin
                Begin TextBox
                    Name ="Qty"
                End
            End
        End
    End
End
)txt";

// A report: its header and footer blocks are FormHeader/FormFooter as Access
// writes them; two group levels, the second without a header of its own.
inline constexpr const char kSalesReport[] = R"txt(Version =20
VersionRequired =20
Begin Report
    LayoutForPrint = NotDefault
    Width =9360
    RecordSource ="qrySales"
    Caption ="Sales"
    PrtMip = Begin
        0x6801000068010000680100006801000000000000
    End
    Begin
        Begin Label
            BackStyle =0
        End
        Begin BreakLevel
            GroupHeader = NotDefault
            GroupFooter = NotDefault
            ControlSource ="Region"
        End
        Begin BreakLevel
            SortOrder = NotDefault
            GroupOn =1
            GroupInterval =5
            KeepTogether =2
            ControlSource ="Customer"
        End
        Begin FormHeader
            KeepTogether = NotDefault
            Height =600
            Name ="ReportHeader"
            Begin
                Begin Label
                    Name ="lblTitle"
                    Caption ="Sales"
                End
            End
        End
        Begin PageHeader
            Height =400
            Name ="PageHeaderSection"
        End
        Begin BreakHeader
            KeepTogether = NotDefault
            Height =300
            Name ="GroupHeader0"
            OnFormat ="[Event Procedure]"
            Begin
                Begin TextBox
                    Name ="Region"
                    ControlSource ="Region"
                End
            End
        End
        Begin BreakHeader
            Height =250
            BreakLevel =1
            Name ="GroupHeader1"
        End
        Begin Section
            Height =300
            Name ="Detail"
            Begin
                Begin TextBox
                    Name ="Amount"
                    ControlSource ="Amount"
                End
                Begin Subform
                    Name ="subDetail"
                    SourceObject ="Report.rptDetail"
                End
            End
        End
        Begin BreakFooter
            Height =300
            Name ="GroupFooter0"
            Begin
                Begin TextBox
                    Name ="RegionTotal"
                    ControlSource ="=Sum([Amount])"
                End
            End
        End
        Begin PageFooter
            Height =300
            Name ="PageFooterSection"
        End
        Begin FormFooter
            Height =200
            Name ="ReportFooter"
        End
    End
End
CodeBehindForm
Attribute VB_GlobalNameSpace = False
Option Compare Database
)txt";

// The later format: theme and layout keys, a key holding an unknown value
// block, sections beside the default block, and control types that Access
// 2000 does not have.
inline constexpr const char kLaterForm[] = R"txt(Version =21
VersionRequired =20
Checksum =-123456
Begin Form
    AllowDesignChanges = NotDefault
    Width =6000
    DatasheetFontName ="Calibri"
    FilterOnLoad =0
    ShowPageMargins =0
    DatasheetGridlinesColor12 =0
    NameMap = Begin
        0x0acc0e55
    End
    Odd = {E3A0B5C2} Begin
        Begin
        End
    End
    Begin
        Begin Label
            BackStyle =0
            FontSize =11
            FontName ="Calibri"
            ThemeFontIndex =1
            ForeTint =75.0
        End
    End
    Begin Section
        Height =3000
        Name ="Detail"
        AlternateBackThemeColorIndex =1
        Begin
            Begin Label
                OverlapFlags =85
                Left =360
                Width =1800
                Height =315
                Name ="lblName"
                Caption ="Name"
                LayoutCachedLeft =360
                LayoutCachedWidth =2160
                LayoutCachedHeight =315
                GroupTable =1
            End
            Begin EmptyCell
                Left =2200
                Name ="EmptyCell7"
                GroupTable =1
            End
            Begin NavigationControl
                Name ="NavigationControl0"
                Begin
                    Begin NavigationButton
                        Name ="NavigationButton1"
                        Caption ="Home"
                    End
                End
            End
            Begin Attachment
                Name ="attFiles"
                ControlSource ="Files"
            End
        End
    End
End
)txt";

}  // namespace morvane::test

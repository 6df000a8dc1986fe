Attribute VB_Name = "MorvaneConversionCode"
' Run-time support for a project converted from Microsoft Access.
'
' The converted code calls this module for what Access offered and Visual
' Basic lacks. The converter appends to it GetFormFromName for the converted
' forms, Sub Main (which opens the database and shows the first form), and
' those helpers the code really calls: list filling, SysCmdVB,
' OptionGroupValue and the domain aggregate functions. What those helpers
' have in common is written once, here.
Option Explicit

' The one database of the application, opened by Sub Main. Every CurrentDb
' of the Access code has become this variable. Nothing when the project was
' converted from an Access data project.
Public db As DAO.Database
' The workspace a secured database is opened in (see Sub Main).
Public wks As DAO.Workspace
' The ADO connection that list filling and the data environment use.
Public pConn As ADODB.Connection

' State of Eval while it reads one expression.
Private mstrEvalText As String
Private mlngEvalPos As Long

' Returns token number lngIndex (from 1) of strText, the tokens being
' separated by strDelimiter; Null past the last token. An empty text has no
' tokens, and a delimiter at the very end does not start an empty token, so
' "a;b;" holds two tokens. Tokens are returned as they stand, blanks and
' quotes included.
Public Function GetToken(ByVal strText As String, ByVal lngIndex As Long, ByVal strDelimiter As String) As Variant
    Dim lngStart As Long
    Dim lngEnd As Long
    Dim lngToken As Long

    GetToken = Null
    If Len(strText) = 0 Or Len(strDelimiter) = 0 Or lngIndex < 1 Then Exit Function
    lngStart = 1
    For lngToken = 1 To lngIndex - 1
        lngEnd = InStr(lngStart, strText, strDelimiter)
        If lngEnd = 0 Then Exit Function
        lngStart = lngEnd + Len(strDelimiter)
    Next lngToken
    If lngStart > Len(strText) Then Exit Function
    lngEnd = InStr(lngStart, strText, strDelimiter)
    If lngEnd = 0 Then lngEnd = Len(strText) + 1
    GetToken = Mid$(strText, lngStart, lngEnd - lngStart)
End Function

' Stands in for an expression of a block line (If, ElseIf, Select Case,
' Case, With, For, Do, Loop, While) that could not be translated, so that the
' block around it still compiles. It raises an error whenever it runs: the
' line is named in the conversion analysis under the module's name and
' its line number, with the Access code kept as a comment beside it.
Public Function NotTranslated(ByVal strModule As String, ByVal lngLine As Long) As Variant
    Err.Raise vbObjectError + 31006, strModule, _
        "Line " & lngLine & " of " & strModule & " was not translated; see the conversion analysis."
End Function

' The value of the first row that "Select <strSelect> From <strDomain>"
' returns, with " Where <strCriteria>" behind it unless strCriteria is
' empty; Null when no row comes back. The domain aggregate functions (DSum,
' DLookup and their kin) are made of it. It asks the DAO database, or the ADO
' connection in a project converted from an Access data project, which
' opens no DAO database; both recordsets answer EOF, (0) and Close alike.
Private Function DomainLookup(ByVal strSelect As String, ByVal strDomain As String, ByVal strCriteria As String) As Variant
    Dim strSql As String
    Dim rec As Object

    strSql = "Select " & strSelect & " From " & strDomain
    If strCriteria <> vbNullString Then strSql = strSql & " Where " & strCriteria
    If db Is Nothing Then
        Set rec = New ADODB.Recordset
        rec.Open strSql, pConn, adOpenForwardOnly, adLockReadOnly
    Else
        Set rec = db.OpenRecordset(strSql, dbOpenForwardOnly)
    End If
    If rec.EOF Then
        DomainLookup = Null
    Else
        DomainLookup = rec(0).Value
    End If
    rec.Close
End Function

' The SysCmd actions that need no status bar, for SysCmdVB with or without
' one: 13, the workgroup information file, and 10, the state of an object,
' known here for forms only: 1 when a form of the name vValueOrObjectName is
' loaded, else 0. Any other action or object type raises error 5.
Private Function SysCmdQuery(ByVal iAction As Integer, vTextOrObjectType As Variant, vValueOrObjectName As Variant) As Variant
    Dim frm As Form

    Select Case iAction
        Case 13
#If Win16 Then
            SysCmdQuery = DBEngine.IniPath
#Else
            SysCmdQuery = DBEngine.SystemDB
#End If
        Case 10
            If CInt(vTextOrObjectType) = 2 Then
                SysCmdQuery = 0
                For Each frm In Forms
                    If LCase$(frm.Name) = LCase$(CStr(vValueOrObjectName)) Then
                        SysCmdQuery = 1
                        Exit For
                    End If
                Next frm
            Else
                Err.Raise 5
            End If
        Case Else
            Err.Raise 5
    End Select
End Function

' ---------------------------------------------------------------------------
' List filling: AddItems and its kin fill list and combo boxes of different
' makes from a saved query, an SQL statement or a value list. Each walks the
' rows its own way; taking the source and stepping through it is done here.
' ---------------------------------------------------------------------------

' Takes the source of a list. A qryName that begins with "Jet  " or
' "SQLPassthrough  " (from the control's tag) loses that prefix, which
' overrides strDBType2; the type that holds, "Jet", "SQL" or "String", is
' returned. For "Jet" and "SQL" the saved query or SQL statement is opened
' into rec, forward only, with varParam1 and varParam2, as many as are
' given, as its parameters. rec is a new recordset in any case, open only
' when the source gave rows. An error does not stop the steps after it; the
' number of the last one is left in lngError, 0 when there was none.
Private Function OpenListSource(qryName As String, ByVal strDBType2 As String, rec As ADODB.Recordset, lngError As Long, Optional varParam1 As Variant, Optional varParam2 As Variant) As String
    Dim strDBType As String
    Dim intParamCount As Integer
    Dim qry As ADODB.Command

    strDBType = strDBType2
    If Left$(qryName, 5) = "Jet  " Then
        strDBType = "Jet"
        qryName = Mid$(qryName, 6)
    ElseIf Left$(qryName, 16) = "SQLPassthrough  " Then
        strDBType = "SQL"
        qryName = Mid$(qryName, 17)
    End If
    OpenListSource = strDBType

    If Not IsMissing(varParam1) Then intParamCount = intParamCount + 1
    If Not IsMissing(varParam2) Then intParamCount = intParamCount + 1

    Set rec = New ADODB.Recordset
    lngError = 0
    If strDBType <> "Jet" And strDBType <> "SQL" Then Exit Function
    On Error Resume Next
    If intParamCount = 0 Then
        rec.Open qryName, pConn, adOpenForwardOnly
    Else
        Set qry = New ADODB.Command
        Set qry.ActiveConnection = pConn
        qry.CommandText = qryName
        qry.Parameters(0).Value = varParam1
        If intParamCount = 2 Then qry.Parameters(1).Value = varParam2
        Set rec = qry.Execute
    End If
    lngError = Err.Number
End Function

' Steps a list filler through the rows of rec, as the condition of its Do
' While loop: the first call stays on the first row, each later one moves to
' the next. True while there is a row, each row counted in intcount. A row
' the control refused loses only itself, but a move that fails ends the
' walk, as does a recordset that is not open; rec is closed at the end.
Private Function NextListRow(rec As ADODB.Recordset, intcount As Integer) As Boolean
    Dim blnRow As Boolean

    On Error Resume Next
    If rec.State = adStateOpen Then
        If intcount > 0 Then rec.MoveNext
        If Err.Number = 0 Then blnRow = Not rec.EOF
        If blnRow Then
            intcount = intcount + 1
        Else
            rec.Close
        End If
    End If
    NextListRow = blnRow
End Function

' The fields of the current row of rec as one text, joined by strSeparator.
' A field that cannot be read counts as empty.
Private Function ListRowText(rec As ADODB.Recordset, ByVal strSeparator As String) As String
    Dim X As Integer

    On Error Resume Next
    For X = 0 To rec.Fields.Count - 1
        If X > 0 Then ListRowText = ListRowText & strSeparator
        ListRowText = ListRowText & rec(X)
    Next X
End Function

' Sets the sub-items of objItem, an item of a ListItems collection
' (GreenTree DataList, ListView), to the fields of the current row of rec
' from field intFrom on: sub-item X holds field X. A sub-item the item
' refuses loses only itself.
Private Sub SetListSubItems(ByVal objItem As Object, rec As ADODB.Recordset, ByVal intFrom As Integer)
    Dim X As Integer

    On Error Resume Next
    For X = intFrom To rec.Fields.Count - 1
        objItem.SubItems(X) = rec(X) & ""
    Next X
End Sub

' Steps a list filler through the value list strList two entries at a time,
' as the condition of its Do While loop: the entries of pair intcount + 1 go
' into vntFirst and vntSecond, as items (see ValueListItem), and the pair is
' counted in intcount. False when no entry is left, or when an error has
' been raised since the pair before: a row the control refuses ends the walk.
Private Function NextValueListPair(strList As String, intcount As Integer, vntFirst As Variant, vntSecond As Variant) As Boolean
    If Err.Number <> 0 Then Exit Function
    vntFirst = GetToken(strList, 2 * intcount + 1, ";")
    If IsNull(vntFirst) Then Exit Function
    vntFirst = ValueListItem(vntFirst)
    vntSecond = ValueListItem(GetToken(strList, 2 * intcount + 2, ";"))
    intcount = intcount + 1
    NextValueListPair = True
End Function

' The entries of the value list strList, split at every ";", as an array
' (from 0) of items (see ValueListItem).
Private Function ValueListEntries(ByVal strList As String) As Variant
    Dim vntEntries As Variant
    Dim lngEntry As Long

    vntEntries = Split(strList, ";")
    For lngEntry = 0 To UBound(vntEntries)
        vntEntries(lngEntry) = ValueListItem(vntEntries(lngEntry))
    Next lngEntry
    ValueListEntries = vntEntries
End Function

' An entry of a value list as the item it stands for. Access writes entries
' in double quotes ("North";"South" or 1;"North"): one pair around the entry
' is dropped, and a doubled quote inside it stands for one. An entry without
' quotes is taken as it stands, and Null (no entry) stays Null.
Private Function ValueListItem(ByVal vntEntry As Variant) As Variant
    Dim strEntry As String

    ValueListItem = vntEntry
    If IsNull(vntEntry) Then Exit Function
    strEntry = Trim$(vntEntry)
    If Len(strEntry) >= 2 And Left$(strEntry, 1) = """" And Right$(strEntry, 1) = """" Then
        ValueListItem = Replace(Mid$(strEntry, 2, Len(strEntry) - 2), """""", """")
    End If
End Function

' ---------------------------------------------------------------------------
' Eval: works out an expression given as text at run time. The converted
' macros hand over conditions and arguments that could not be rewritten into
' Visual Basic when the project was made.
'
' Understood, with Visual Basic's precedence (highest first):
'   literals   numbers (12, 1.5, 2E3, &H1F), strings in double quotes with ""
'              for a quote inside, dates between # signs (#12/31/2001#,
'              month first), True, False, Null
'   functions  Date, Now and Time, with or without ()
'   ( )        grouping
'   ^          power
'   - +        sign
'   * /        multiplication and division
'   \          integer division
'   Mod        remainder
'   + -        addition and subtraction
'   &          concatenation
'   = <> < > <= >=   comparison
'   Not, And, Or, Xor
'
'   x Is [Not] Null, x [Not] Like "pattern", x [Not] Between a And b,
'   x [Not] In (a, b, ...)   as in Access, at the level of comparisons
'   names      Forms!Form!Control (brackets and "." allowed: [Forms]![F]![C]),
'              the value of that control of the open form of that name;
'              a name alone ([Total]) is a control of the active form
'
' Limits: fields, variables and Me!... references, report references and
' calls of any other function (IIf, Nz, DLookup, ...) are not understood,
' and neither are Eqv and Imp. Such an expression, and any text that is not a
' complete expression, raises error vbObjectError + 31005. Null takes part in
' operations by Visual Basic's own rules.
' ---------------------------------------------------------------------------
Public Function Eval(ByVal strExpr As String) As Variant
    mstrEvalText = strExpr
    mlngEvalPos = 1
    Eval = EvalLevel(1)
    EvalSkipBlanks
    If mlngEvalPos <= Len(mstrEvalText) Then EvalFail
End Function

Private Sub EvalFail()
    Err.Raise vbObjectError + 31005, "Eval", "Cannot evaluate the expression: " & mstrEvalText
End Sub

Private Sub EvalSkipBlanks()
    Do While mlngEvalPos <= Len(mstrEvalText)
        Select Case Mid$(mstrEvalText, mlngEvalPos, 1)
            Case " ", vbTab
                mlngEvalPos = mlngEvalPos + 1
            Case Else
                Exit Do
        End Select
    Loop
End Sub

Private Function EvalIsNameChar(ByVal strChar As String) As Boolean
    EvalIsNameChar = (strChar Like "[A-Za-z0-9_]")
End Function

' Takes the operator symbol strSymbol when it comes next.
Private Function EvalSymbol(ByVal strSymbol As String) As Boolean
    EvalSkipBlanks
    If Mid$(mstrEvalText, mlngEvalPos, Len(strSymbol)) = strSymbol Then
        mlngEvalPos = mlngEvalPos + Len(strSymbol)
        EvalSymbol = True
    End If
End Function

' Takes the keyword strWord when it comes next as a whole word.
Private Function EvalWord(ByVal strWord As String) As Boolean
    EvalSkipBlanks
    If StrComp(Mid$(mstrEvalText, mlngEvalPos, Len(strWord)), strWord, vbTextCompare) = 0 Then
        If Not EvalIsNameChar(Mid$(mstrEvalText, mlngEvalPos + Len(strWord), 1)) Then
            mlngEvalPos = mlngEvalPos + Len(strWord)
            EvalWord = True
        End If
    End If
End Function

' The binary operators by level, loosest first: 1 Xor, 2 Or, 3 And, 4 &,
' 5 + and -, 6 Mod, 7 \, 8 * and /. Not and the comparisons bind between
' And and &, signs and ^ more tightly than * and /. Operators of one level
' apply from left to right.
Private Function EvalLevel(ByVal intLevel As Integer) As Variant
    Dim vntValue As Variant
    Dim strOperator As String

    vntValue = EvalOperand(intLevel)
    Do
        strOperator = EvalOperator(Choose(intLevel, "Xor", "Or", "And", "&", "+ -", "Mod", "\", "* /"))
        If Len(strOperator) = 0 Then Exit Do
        vntValue = EvalApply(vntValue, strOperator, EvalOperand(intLevel))
    Loop
    EvalLevel = vntValue
End Function

' An operand of the operators of level intLevel: an expression of the next
' level, a Not expression for And, a signed power for * and /.
Private Function EvalOperand(ByVal intLevel As Integer) As Variant
    Select Case intLevel
        Case 3
            EvalOperand = EvalNot()
        Case 8
            EvalOperand = EvalSign()
        Case Else
            EvalOperand = EvalLevel(intLevel + 1)
    End Select
End Function

' Takes the first of the operators strOperators (separated by blanks) that
' comes next, a word (Mod, And, ...) only as a whole word, and returns it as
' written there; "" when none comes next.
Private Function EvalOperator(ByVal strOperators As String) As String
    Dim vntOperator As Variant
    Dim blnTaken As Boolean

    For Each vntOperator In Split(strOperators, " ")
        If EvalIsNameChar(Left$(vntOperator, 1)) Then
            blnTaken = EvalWord(CStr(vntOperator))
        Else
            blnTaken = EvalSymbol(CStr(vntOperator))
        End If
        If blnTaken Then
            EvalOperator = vntOperator
            Exit Function
        End If
    Next vntOperator
End Function

' The value of vntLeft strOperator vntRight, by Visual Basic's own rules.
Private Function EvalApply(ByVal vntLeft As Variant, ByVal strOperator As String, ByVal vntRight As Variant) As Variant
    Select Case strOperator
        Case "Xor": EvalApply = vntLeft Xor vntRight
        Case "Or": EvalApply = vntLeft Or vntRight
        Case "And": EvalApply = vntLeft And vntRight
        Case "&": EvalApply = vntLeft & vntRight
        Case "+": EvalApply = vntLeft + vntRight
        Case "-": EvalApply = vntLeft - vntRight
        Case "Mod": EvalApply = vntLeft Mod vntRight
        Case "\": EvalApply = vntLeft \ vntRight
        Case "*": EvalApply = vntLeft * vntRight
        Case "/": EvalApply = vntLeft / vntRight
        Case "=": EvalApply = (vntLeft = vntRight)
        Case "<>": EvalApply = (vntLeft <> vntRight)
        Case "<": EvalApply = (vntLeft < vntRight)
        Case ">": EvalApply = (vntLeft > vntRight)
        Case "<=": EvalApply = (vntLeft <= vntRight)
        Case ">=": EvalApply = (vntLeft >= vntRight)
    End Select
End Function

Private Function EvalNot() As Variant
    Dim lngNots As Long
    Dim vntValue As Variant

    Do While EvalWord("Not")
        lngNots = lngNots + 1
    Loop
    vntValue = EvalCompare()
    If lngNots Mod 2 = 1 Then vntValue = Not vntValue
    EvalNot = vntValue
End Function

Private Function EvalCompare() As Variant
    Dim vntValue As Variant
    Dim strOperator As String

    vntValue = EvalLevel(4)
    Do
        strOperator = EvalOperator("<> <= >= = < >")
        If Len(strOperator) > 0 Then
            vntValue = EvalApply(vntValue, strOperator, EvalLevel(4))
        ElseIf Not EvalAccessOperator(vntValue) Then
            Exit Do
        End If
    Loop
    EvalCompare = vntValue
End Function

' Is [Not] Null, [Not] Like, [Not] Between ... And ..., [Not] In (...):
' replaces vntValue with the result when one of them comes next.
Private Function EvalAccessOperator(vntValue As Variant) As Boolean
    Dim lngStart As Long
    Dim blnNot As Boolean
    Dim vntLow As Variant
    Dim vntHigh As Variant
    Dim vntItem As Variant
    Dim blnFound As Boolean

    lngStart = mlngEvalPos
    If EvalWord("Is") Then
        blnNot = EvalWord("Not")
        If Not EvalWord("Null") Then EvalFail
        vntValue = (IsNull(vntValue) <> blnNot)
        EvalAccessOperator = True
        Exit Function
    End If
    blnNot = EvalWord("Not")
    If EvalWord("Like") Then
        vntItem = EvalLevel(4)
        If IsNull(vntValue) Or IsNull(vntItem) Then
            vntValue = Null
        Else
            vntValue = ((LCase$(CStr(vntValue)) Like LCase$(CStr(vntItem))) <> blnNot)
        End If
    ElseIf EvalWord("Between") Then
        vntLow = EvalLevel(4)
        If Not EvalWord("And") Then EvalFail
        vntHigh = EvalLevel(4)
        vntValue = ((vntValue >= vntLow And vntValue <= vntHigh) <> blnNot)
    ElseIf EvalWord("In") Then
        If Not EvalSymbol("(") Then EvalFail
        Do
            vntItem = EvalLevel(4)
            If Not IsNull(vntValue) And Not IsNull(vntItem) Then
                If vntValue = vntItem Then blnFound = True
            End If
        Loop While EvalSymbol(",")
        If Not EvalSymbol(")") Then EvalFail
        vntValue = (blnFound <> blnNot)
    Else
        mlngEvalPos = lngStart
        Exit Function
    End If
    EvalAccessOperator = True
End Function

' One part of a name: [anything but a bracket] or letters, digits and "_".
Private Function EvalNamePart() As String
    Dim lngStart As Long

    EvalSkipBlanks
    If Mid$(mstrEvalText, mlngEvalPos, 1) = "[" Then
        lngStart = InStr(mlngEvalPos, mstrEvalText, "]")
        If lngStart = 0 Then EvalFail
        EvalNamePart = Mid$(mstrEvalText, mlngEvalPos + 1, lngStart - mlngEvalPos - 1)
        mlngEvalPos = lngStart + 1
    Else
        lngStart = mlngEvalPos
        Do While EvalIsNameChar(Mid$(mstrEvalText, mlngEvalPos, 1))
            mlngEvalPos = mlngEvalPos + 1
        Loop
        If mlngEvalPos = lngStart Then EvalFail
        EvalNamePart = Mid$(mstrEvalText, lngStart, mlngEvalPos - lngStart)
    End If
End Function

' Forms!Form!Control or a control of the active form. Converted forms carry
' their Access names with blanks and signs turned into "_".
Private Function EvalReference() As Variant
    Dim strFirst As String
    Dim strForm As String
    Dim strControl As String
    Dim frmFound As Object
    Dim frmEach As Object

    strFirst = EvalNamePart()
    If StrComp(strFirst, "Forms", vbTextCompare) <> 0 Then
        EvalReference = Screen.ActiveForm.Controls(strFirst)
        Exit Function
    End If
    If Not (EvalSymbol("!") Or EvalSymbol(".")) Then EvalFail
    strForm = EvalNamePart()
    If Not (EvalSymbol("!") Or EvalSymbol(".")) Then EvalFail
    strControl = EvalNamePart()
    For Each frmEach In Forms
        If StrComp(frmEach.Name, EvalSafeName(strForm), vbTextCompare) = 0 Then
            Set frmFound = frmEach
        End If
    Next
    If frmFound Is Nothing Then EvalFail
    EvalReference = frmFound.Controls(EvalSafeName(strControl))
End Function

Private Function EvalSafeName(ByVal strName As String) As String
    Dim lngChar As Long
    Dim strChar As String

    For lngChar = 1 To Len(strName)
        strChar = Mid$(strName, lngChar, 1)
        If Not EvalIsNameChar(strChar) Then strChar = "_"
        EvalSafeName = EvalSafeName & strChar
    Next
End Function

' A sign binds less tightly than ^, so -2 ^ 2 is -4 as in Visual Basic.
Private Function EvalSign() As Variant
    Dim blnNegative As Boolean
    Dim vntValue As Variant

    Do
        If EvalSymbol("-") Then
            blnNegative = Not blnNegative
        ElseIf Not EvalSymbol("+") Then
            Exit Do
        End If
    Loop
    vntValue = EvalPower()
    If blnNegative Then vntValue = -vntValue
    EvalSign = vntValue
End Function

Private Function EvalPower() As Variant
    Dim vntValue As Variant

    vntValue = EvalPrimary()
    Do While EvalSymbol("^")
        If EvalSymbol("-") Then
            vntValue = vntValue ^ -EvalPrimary()
        Else
            vntValue = vntValue ^ EvalPrimary()
        End If
    Loop
    EvalPower = vntValue
End Function

Private Function EvalPrimary() As Variant
    Dim strChar As String

    EvalSkipBlanks
    If mlngEvalPos > Len(mstrEvalText) Then EvalFail
    strChar = Mid$(mstrEvalText, mlngEvalPos, 1)
    If strChar = "(" Then
        mlngEvalPos = mlngEvalPos + 1
        EvalPrimary = EvalLevel(1)
        If Not EvalSymbol(")") Then EvalFail
    ElseIf strChar Like "[0-9.]" Then
        EvalPrimary = EvalNumber(True)
    ElseIf EvalSymbol("&H") Then
        EvalPrimary = EvalNumber(False)
    ElseIf strChar = """" Then
        EvalPrimary = EvalString()
    ElseIf strChar = "#" Then
        EvalPrimary = EvalDate()
    ElseIf EvalWord("True") Then
        EvalPrimary = True
    ElseIf EvalWord("False") Then
        EvalPrimary = False
    ElseIf EvalWord("Null") Then
        EvalPrimary = Null
    ElseIf EvalWord("Date") Then
        EvalEmptyArguments
        EvalPrimary = Date
    ElseIf EvalWord("Now") Then
        EvalEmptyArguments
        EvalPrimary = Now
    ElseIf EvalWord("Time") Then
        EvalEmptyArguments
        EvalPrimary = Time
    ElseIf strChar = "[" Or strChar Like "[A-Za-z]" Then
        EvalPrimary = EvalReference()
    Else
        EvalFail
    End If
End Function

' Takes an optional "()" behind Date, Now or Time.
Private Sub EvalEmptyArguments()
    If EvalSymbol("(") Then
        If Not EvalSymbol(")") Then EvalFail
    End If
End Sub

' A decimal number, or the digits of a hexadecimal one whose "&H" has been
' taken. Val reads both the same way on every locale.
Private Function EvalNumber(ByVal blnDecimal As Boolean) As Variant
    Dim lngStart As Long

    lngStart = mlngEvalPos
    If blnDecimal Then
        Do While Mid$(mstrEvalText, mlngEvalPos, 1) Like "[0-9.]"
            mlngEvalPos = mlngEvalPos + 1
        Loop
        If Mid$(mstrEvalText, mlngEvalPos, 1) Like "[Ee]" Then
            mlngEvalPos = mlngEvalPos + 1
            If Mid$(mstrEvalText, mlngEvalPos, 1) Like "[+-]" Then mlngEvalPos = mlngEvalPos + 1
            Do While Mid$(mstrEvalText, mlngEvalPos, 1) Like "[0-9]"
                mlngEvalPos = mlngEvalPos + 1
            Loop
        End If
        If Mid$(mstrEvalText, lngStart, mlngEvalPos - lngStart) = "." Then EvalFail
        EvalNumber = Val(Mid$(mstrEvalText, lngStart, mlngEvalPos - lngStart))
    Else
        Do While Mid$(mstrEvalText, mlngEvalPos, 1) Like "[0-9A-Fa-f]"
            mlngEvalPos = mlngEvalPos + 1
        Loop
        If mlngEvalPos = lngStart Then EvalFail
        EvalNumber = Val("&H" & Mid$(mstrEvalText, lngStart, mlngEvalPos - lngStart))
    End If
End Function

Private Function EvalString() As Variant
    Dim strValue As String
    Dim strChar As String

    mlngEvalPos = mlngEvalPos + 1
    Do
        If mlngEvalPos > Len(mstrEvalText) Then EvalFail
        strChar = Mid$(mstrEvalText, mlngEvalPos, 1)
        mlngEvalPos = mlngEvalPos + 1
        If strChar = """" Then
            If Mid$(mstrEvalText, mlngEvalPos, 1) <> """" Then Exit Do
            mlngEvalPos = mlngEvalPos + 1
        End If
        strValue = strValue & strChar
    Loop
    EvalString = strValue
End Function

' A date literal, month first as in Visual Basic code: #m/d/yyyy#, with an
' optional time behind a blank.
Private Function EvalDate() As Variant
    Dim lngEnd As Long
    Dim strText As String
    Dim strTime As String
    Dim vntParts As Variant
    Dim vntDate As Variant

    lngEnd = InStr(mlngEvalPos + 1, mstrEvalText, "#")
    If lngEnd = 0 Then EvalFail
    strText = Trim$(Mid$(mstrEvalText, mlngEvalPos + 1, lngEnd - mlngEvalPos - 1))
    mlngEvalPos = lngEnd + 1
    If InStr(strText, " ") > 0 Then
        strTime = Mid$(strText, InStr(strText, " ") + 1)
        strText = Left$(strText, InStr(strText, " ") - 1)
    End If
    vntParts = Split(strText, "/")
    If UBound(vntParts) = 2 Then
        vntDate = DateSerial(Val(vntParts(2)), Val(vntParts(0)), Val(vntParts(1)))
        If Len(strTime) > 0 Then vntDate = vntDate + TimeValue(strTime)
    ElseIf Len(strTime) > 0 Then
        vntDate = CDate(strText & " " & strTime)
    Else
        vntDate = CDate(strText)
    End If
    EvalDate = vntDate
End Function


// The event code of a form. Events are handled in a fixed order, which is
// the order of the new procedures in the output file: the plain form events,
// Load and Open, Unload and Close, Resize, the timer, the data control's
// Error, the record events and Current.
#include "events/form_events.h"

#include <vector>

#include "design/form_design.h"
#include "session/conversion_session.h"
#include "session/naming.h"

namespace morvane {

namespace {

// A plain form event: "Private Sub Form_" + Tail is the form's procedure,
// cleaned name + "_SubForm_" + Tail the name a subform's procedure takes.
struct PlainFormEvent {
  std::string_view property;
  std::string_view tail;
};

constexpr PlainFormEvent kPlainFormEvents[] = {
    {"OnClick", "Click()"},
    {"OnDblClick", "DblClick()"},
    {"OnMouseDown", "MouseDown(Button As Integer, Shift As Integer, X As Single, Y As Single)"},
    {"OnMouseMove", "MouseMove(Button As Integer, Shift As Integer, X As Single, Y As Single)"},
    {"OnMouseUp", "MouseUp(Button As Integer, Shift As Integer, X As Single, Y As Single)"},
    {"OnKeyDown", "KeyDown(KeyCode As Integer, Shift As Integer)"},
    {"OnKeyPress", "KeyPress(KeyAscii As Integer)"},
    {"OnKeyUp", "KeyUp(KeyCode As Integer, Shift As Integer)"},
    {"OnGotFocus", "GotFocus()"},
    {"OnLostFocus", "LostFocus()"},
    {"OnActivate", "Activate()"},
    {"OnDeactivate", "Deactivate()"},
};

// A record event of the form, which the data control takes over. A Before
// event's procedure in the module answers true to cancel; on a subform it is
// renamed to the cleaned name + Suffix and called as prefix + cleaned name +
// subformTail.
struct RecordEvent {
  std::string_view property;
  std::string_view oldHeader;
  std::string_view suffix;
  std::string_view subformPrefix;
  std::string_view subformTail;
  std::string_view mainLine;
  bool before;
};

constexpr RecordEvent kBeforeInsert{"BeforeInsert",
                                    "Private Sub Form_BeforeInsert(Cancel As Integer)",
                                    "_SubForm_BeforeInsert(Cancel As Integer)",
                                    "If ",
                                    "_SubForm_BeforeInsert() Then",
                                    "If Form_BeforeInsert() Then",
                                    true};
constexpr RecordEvent kDelete{"OnDelete",
                              "Private Sub Form_Delete(Cancel As Integer)",
                              "_SubForm_Delete(Cancel As Integer)",
                              "If ",
                              "_SubForm_Delete() Then",
                              "If Form_Delete() Then",
                              true};
constexpr RecordEvent kBeforeDelConfirm{
    "BeforeDelConfirm",
    "Private Sub Form_BeforeDelConfirm(Cancel As Integer, Response As Integer)",
    "_SubForm_BeforeDelConfirm(Response As Integer)",
    "If ",
    "_SubForm_BeforeDelConfirm(0) Then",
    "If Form_BeforeDelConfirm(0) Then",
    true};
constexpr RecordEvent kBeforeUpdate{"BeforeUpdate",
                                    "Private Sub Form_BeforeUpdate(Cancel As Integer)",
                                    "_SubForm_BeforeUpdate(Cancel As Integer)",
                                    "If ",
                                    "_SubForm_BeforeUpdate() Then",
                                    "If Form_BeforeUpdate() Then",
                                    true};
constexpr RecordEvent kAfterInsert{
    "AfterInsert", "Private Sub Form_AfterInsert()", "_SubForm_AfterInsert()",
    "Call ",       "_SubForm_AfterInsert()",         "Call Form_AfterInsert",
    false};
constexpr RecordEvent kAfterDelConfirm{"AfterDelConfirm",
                                       "Private Sub Form_AfterDelConfirm(Status As Integer)",
                                       "_SubForm_AfterDelConfirm(Status As Integer)",
                                       "Call ",
                                       "_SubForm_AfterDelConfirm(0)",
                                       "Call Form_AfterDelConfirm(0)",
                                       false};
constexpr RecordEvent kAfterUpdate{
    "AfterUpdate", "Private Sub Form_AfterUpdate()", "_SubForm_AfterUpdate()",
    "Call ",       "_SubForm_AfterUpdate()",         "Call Form_AfterUpdate",
    false};

constexpr std::string_view kAdoWillChange =
    "_WillChangeRecord(ByVal adReason As ADODB.EventReasonEnum, ByVal cRecords As Long, adStatus "
    "As ADODB.EventStatusEnum, ByVal pRecordset As ADODB.Recordset)";
constexpr std::string_view kAdoChangeComplete =
    "_RecordChangeComplete(ByVal adReason As ADODB.EventReasonEnum, ByVal cRecords As Long, ByVal "
    "pError As ADODB.Error, adStatus As ADODB.EventStatusEnum, ByVal pRecordset As "
    "ADODB.Recordset)";
constexpr std::string_view kDaoValidate = "_Validate(Action As Integer, Save As Integer)";
// The hint processor shortens "ADODB.Recordset20" once the form is complete.
constexpr std::string_view kAdoMoveComplete =
    "_MoveComplete(ByVal adReason As ADODB.EventReasonEnum, ByVal pError As ADODB.Error, adStatus "
    "As ADODB.EventStatusEnum, ByVal pRecordset As ADODB.Recordset20)";
constexpr std::string_view kDaoReposition = "_Reposition()";
constexpr std::string_view kAdoError =
    "_Error(ByVal ErrorNumber As Long, Description As String, ByVal Scode As Long, ByVal Source "
    "As String, ByVal HelpFile As String, ByVal HelpContext As Long, fCancelDisplay As Boolean)";
constexpr std::string_view kDaoError = "_Error(DataErr As Integer, Response As Integer)";

bool IsMacroOrExpression(const std::string& value) {
  const EventValue kind = ClassifyEvent(value);
  return kind == EventValue::Expression || kind == EventValue::Macro;
}

class FormEventWriter {
 public:
  FormEventWriter(const EventCode& code, const DesignObject& form, const DesignObject* hintForm,
                  bool isSubform)
      : code_(code),
        form_(form),
        hintForm_(hintForm),
        isSubform_(isSubform),
        clean_(SafeName(code.FormName())),
        dataControl_("dat" + clean_),
        useAdo_(code.Session().Options.UseAdo) {}

  void Write() {
    for (const PlainFormEvent& e : kPlainFormEvents) PlainEvent(e);
    LoadAndOpen();
    UnloadAndClose();
    Resize();
    Timer();
    Error();
    if (useAdo_)
      AdoRecordEvents();
    else
      DaoRecordEvents();
    Current();
  }

 private:
  std::string Value(std::string_view property) const { return form_.Text(property).value_or(""); }
  // Whether the form this one is merged into handles one of the two events.
  bool Merging(std::string_view first, std::string_view second) const {
    if (!isSubform_ || !hintForm_) return false;
    return !hintForm_->Text(first).value_or("").empty() ||
           !hintForm_->Text(second).value_or("").empty();
  }
  void InsertAtEnd(const std::string& header, const std::vector<std::string>& lines) const {
    for (const auto& line : lines) code_.InsertLine(header, line, kEndOfProcedure);
  }
  // A new procedure; a subform whose procedure another form on the same
  // form wrote already joins its lines to that one, since a module takes a
  // procedure name once.
  void AppendOrJoin(const std::string& header, const std::vector<std::string>& lines) const {
    if (isSubform_ && code_.IsDuplicateLine(header) > 0) {
      InsertAtEnd(header, lines);
    } else {
      code_.SetAsideDuplicate(header);
      code_.AppendProc(header, lines);
    }
  }
  // The macro's call or the expression's: an event value that is neither
  // empty nor "[Event Procedure]".
  std::string CallLine(const std::string& value) const {
    return ClassifyEvent(value) == EventValue::Macro ? code_.MacroCallText(value)
                                                     : ExpressionCall(value);
  }

  void PlainEvent(const PlainFormEvent& e) const {
    const std::string value = Value(e.property);
    const std::string header = "Private Sub Form_" + std::string(e.tail);
    if (IsMacroOrExpression(value)) {
      if (isSubform_ && code_.IsDuplicateLine(header) > 0)
        code_.InsertLine(header, code_.EventLine(value, ""), kEndOfProcedure);
      else
        code_.WriteEventProc(header, {code_.EventLine(value, "")});
    } else if (ClassifyEvent(value) == EventValue::EventProcedure && isSubform_) {
      const std::string renamed = clean_ + "_SubForm_" + std::string(e.tail);
      code_.RenameProcLine(header, "Private Sub " + renamed);
      code_.InsertLine(header, ForwardCall(renamed), kEndOfProcedure);
    }
  }

  // The lines that run the Open event ahead of Load's. A merging subform's
  // Open procedure takes a name of its own first.
  std::vector<std::string> OpenLines(const std::string& open, bool merging) const {
    switch (ClassifyEvent(open)) {
      case EventValue::Empty:
        return {};
      case EventValue::EventProcedure:
        if (!merging) return {"If Form_Open() Then", "Unload Me", "End If"};
        code_.RenameProcLine("Private Sub Form_Open()",
                             "Private Sub " + clean_ + "_SubForm_Open()");
        return {"If " + clean_ + "_SubForm_Open() Then", "Unload Me", "End If"};
      default:
        return {CallLine(open)};
    }
  }

  void LoadAndOpen() const {
    const std::string load = Value("OnLoad");
    const std::string open = Value("OnOpen");
    const std::string header = "Private Sub Form_Load()";
    const bool merging = Merging("OnLoad", "OnOpen");
    const EventValue loadKind = ClassifyEvent(load);
    auto forwardLoad = [&] {
      code_.RenameProcLine(header, "Private Sub " + clean_ + "_SubForm_Load()");
      code_.InsertLine(header, "Call " + clean_ + "_SubForm_Load()", kEndOfProcedure);
    };
    if (IsMacroOrExpression(load)) {
      if (merging) {
        InsertAtEnd(header, OpenLines(open, true));
        code_.InsertLine(header, code_.EventLine(load, ""), kEndOfProcedure);
      } else {
        std::vector<std::string> body = OpenLines(open, false);
        if (!open.empty()) body.emplace_back();
        body.push_back(code_.EventLine(load, ""));
        AppendOrJoin(header, body);
      }
    } else if (loadKind == EventValue::Empty && !open.empty()) {
      if (merging)
        InsertAtEnd(header, OpenLines(open, true));
      else
        AppendOrJoin(header, OpenLines(open, false));
    } else if (loadKind == EventValue::EventProcedure && !open.empty()) {
      if (merging) {
        forwardLoad();
        InsertAtEnd(header, OpenLines(open, true));
      } else {
        // The Open code opens the existing procedure, an empty line behind it.
        code_.InsertLine(header, "", kBehindHeader);
        const std::vector<std::string> lines = OpenLines(open, false);
        for (auto it = lines.rbegin(); it != lines.rend(); ++it)
          code_.InsertLine(header, *it, kBehindHeader);
      }
    } else if (merging && loadKind == EventValue::EventProcedure) {
      forwardLoad();
    }
  }

  // The lines that run the Close event of a merging subform; `bare` leaves
  // "Call " off the call of its renamed procedure.
  std::vector<std::string> MergedCloseLines(const std::string& close, bool bare) const {
    switch (ClassifyEvent(close)) {
      case EventValue::Empty:
        return {};
      case EventValue::EventProcedure:
        code_.RenameProcLine("Private Sub Form_Close()",
                             "Private Sub " + clean_ + "_SubForm_Close()");
        return {(bare ? "" : "Call ") + clean_ + "_SubForm_Close()"};
      default:
        return {CallLine(close)};
    }
  }

  void UnloadAndClose() const {
    const std::string unload = Value("OnUnload");
    const std::string close = Value("OnClose");
    const std::string header = "Private Sub Form_Unload(Cancel As Integer)";
    const bool merging = Merging("OnUnload", "OnClose");
    const EventValue unloadKind = ClassifyEvent(unload);
    auto closeLine = [&] { return code_.EventLine(close, "Call Form_Close"); };
    auto forwardUnload = [&] {
      code_.RenameProcLine(header, "Private Sub " + clean_ + "_SubForm_Unload(Cancel As Integer)");
      code_.InsertLine(header, "Call " + clean_ + "_SubForm_Unload(0)", kEndOfProcedure);
    };
    if (IsMacroOrExpression(unload)) {
      // Unload's own line comes ahead of Close's in a new procedure.
      if (merging) {
        InsertAtEnd(header, MergedCloseLines(close, false));
        code_.InsertLine(header, code_.EventLine(unload, ""), kEndOfProcedure);
      } else {
        std::vector<std::string> body{code_.EventLine(unload, "")};
        if (!close.empty()) body.push_back(closeLine());
        AppendOrJoin(header, body);
      }
    } else if (unloadKind == EventValue::EventProcedure && !close.empty()) {
      if (merging) {
        forwardUnload();
        InsertAtEnd(header, MergedCloseLines(close, false));
      } else {
        code_.InsertLine(header, closeLine(), kEndOfProcedure);
      }
    } else if (unloadKind == EventValue::Empty && !close.empty()) {
      if (merging)
        InsertAtEnd(header, MergedCloseLines(close, true));
      else
        AppendOrJoin(header, {closeLine()});
    } else if (merging && unloadKind == EventValue::EventProcedure) {
      forwardUnload();
    }
  }

  void Resize() const {
    const std::string value = Value("OnResize");
    if (IsMacroOrExpression(value))
      AppendOrJoin("Private Sub Form_Resize()", {code_.EventLine(value, "")});
  }

  // The form writer names the form's timer control Timer1.
  void Timer() const {
    const std::string value = Value("OnTimer");
    if (!value.empty())
      AppendOrJoin("Private Sub Timer1_Timer()", {code_.EventLine(value, "Call Form_Timer")});
  }

  // The data control's Error event; the form's Form_Error answers the
  // response the data control expects.
  void Error() const {
    const std::string value = Value("OnError");
    if (value.empty()) return;
    code_.Append(
        {"", "Private Sub " + dataControl_ + std::string(useAdo_ ? kAdoError : kDaoError)});
    const std::string response = useAdo_ ? "fCancelDisplay" : "Response";
    const std::string error = useAdo_ ? "ErrorNumber" : "DataErr";
    std::string line;
    if (ClassifyEvent(value) != EventValue::EventProcedure) {
      line = CallLine(value);
    } else if (isSubform_) {
      code_.RenameProcLine(
          "Private Sub Form_Error(DataErr As Integer, Response As Integer)",
          "Private Sub " + clean_ + "_Subform_Error(DataErr As Integer, Response As Integer)");
      line = response + " = " + clean_ + "_Subform_Error(" + error + ")";
    } else {
      line = response + " = Form_Error(" + error + ")";
    }
    code_.Append({line, "End Sub"});
  }

  // The lines of one record event inside the data control's procedure; a
  // Before event's procedure cancels the change when it answers true.
  void AddRecordLines(const RecordEvent& e, std::vector<std::string>& out) const {
    const std::string value = Value(e.property);
    if (value.empty()) return;
    if (ClassifyEvent(value) != EventValue::EventProcedure) {
      out.push_back(CallLine(value));
      return;
    }
    std::string line;
    if (isSubform_) {
      code_.RenameProcLine(std::string(e.oldHeader),
                           "Private Sub " + clean_ + std::string(e.suffix));
      line = std::string(e.subformPrefix) + clean_ + std::string(e.subformTail);
    } else {
      line = std::string(e.mainLine);
    }
    out.push_back(line);
    if (e.before) {
      out.push_back(useAdo_ ? "adStatus = adStatusCancel" : "Action = vbDataActionCancel");
      out.push_back("Exit Sub");
      out.push_back("End If");
    }
  }

  // A group of the Select Case, written when one of its events is not empty.
  void AddCase(std::string_view caseLine, std::initializer_list<const RecordEvent*> events,
               std::vector<std::string>& out) const {
    bool any = false;
    for (const RecordEvent* e : events) any = any || !Value(e->property).empty();
    if (!any) return;
    out.emplace_back(caseLine);
    for (const RecordEvent* e : events) AddRecordLines(*e, out);
  }

  void WriteSelectProc(std::string_view suffix, std::string_view selector,
                       const std::vector<std::string>& cases) const {
    if (cases.empty()) return;
    std::vector<std::string> text{"", "Private Sub " + dataControl_ + std::string(suffix), "",
                                  std::string(selector)};
    text.insert(text.end(), cases.begin(), cases.end());
    text.insert(text.end(), {"Case Else", "End Select", "End Sub"});
    code_.Append(text);
  }

  void AdoRecordEvents() const {
    std::vector<std::string> willChange;
    AddCase("Case adRsnAddNew", {&kBeforeInsert}, willChange);
    AddCase("Case adRsnDelete", {&kDelete, &kBeforeDelConfirm}, willChange);
    AddCase("Case adRsnUpdate", {&kBeforeUpdate}, willChange);
    WriteSelectProc(kAdoWillChange, "Select Case adReason", willChange);

    std::vector<std::string> complete;
    AddCase("Case adRsnAddNew", {&kAfterInsert}, complete);
    AddCase("Case adRsnDelete", {&kAfterDelConfirm}, complete);
    AddCase("Case adRsnUpdate", {&kAfterUpdate}, complete);
    WriteSelectProc(kAdoChangeComplete, "Select Case adReason", complete);
  }

  void DaoRecordEvents() const {
    std::vector<std::string> cases;
    AddCase("Case vbDataActionAddNew", {&kBeforeInsert, &kAfterInsert}, cases);
    AddCase("Case vbDataActionUpdate", {&kBeforeUpdate, &kAfterUpdate}, cases);
    AddCase("Case vbDataActionDelete", {&kDelete, &kBeforeDelConfirm, &kAfterDelConfirm}, cases);
    WriteSelectProc(kDaoValidate, "Select Case Action", cases);
  }

  // Current runs when the data control moves to another record, in the
  // procedure the data control's refresh code may have made already.
  void Current() const {
    const std::string value = Value("OnCurrent");
    if (value.empty()) return;
    std::string line;
    if (ClassifyEvent(value) != EventValue::EventProcedure) {
      line = CallLine(value);
    } else if (isSubform_) {
      code_.RenameProcLine("Private Sub Form_Current()",
                           "Private Sub " + clean_ + "_Subform_Current()");
      line = "Call " + clean_ + "_Subform_Current";
    } else {
      line = "Call Form_Current";
    }
    const std::string target =
        "Private Sub " + dataControl_ + std::string(useAdo_ ? kAdoMoveComplete : kDaoReposition);
    if (code_.IsDuplicateLine(target) > 0)
      code_.InsertLine(target, line, kEndOfProcedure);
    else
      code_.Append({target, line, "End sub"});
  }

  const EventCode& code_;
  const DesignObject& form_;
  const DesignObject* hintForm_;
  bool isSubform_;
  std::string clean_;
  std::string dataControl_;
  bool useAdo_;
};

}  // namespace

std::string ForwardCall(const std::string& procedure) {
  const size_t open = procedure.find('(');
  const size_t close = procedure.rfind(')');
  if (open == std::string::npos || close == std::string::npos || close < open)
    return "Call " + procedure;
  std::string names;
  const std::string params = procedure.substr(open + 1, close - open - 1);
  size_t start = 0;
  while (start <= params.size() && !TrimBlanks(params).empty()) {
    size_t comma = params.find(',', start);
    std::string param = TrimBlanks(
        params.substr(start, comma == std::string::npos ? std::string::npos : comma - start));
    for (std::string_view word : {"Optional ", "ByVal ", "ByRef "})
      if (StartsWithNoCase(param, word)) param = TrimBlanks(param.substr(word.size()));
    if (size_t as = FindNoCase(param, " As "); as != std::string::npos) param.resize(as);
    names += (names.empty() ? "" : ", ") + param;
    if (comma == std::string::npos) break;
    start = comma + 1;
  }
  return "Call " + procedure.substr(0, open) + "(" + names + ")";
}

void FormCode(const EventCode& code, const DesignObject& form, const DesignObject* hintForm,
              bool isSubform) {
  FormEventWriter(code, form, hintForm, isSubform).Write();
}

}  // namespace morvane

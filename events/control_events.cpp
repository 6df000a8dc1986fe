// The event writers of command buttons, check boxes, images and labels,
// option groups, text boxes and bound object frames, and the steps that all
// control writers share.
#include "events/control_events.h"

#include <utility>

#include "design/control_defaults.h"
#include "design/form_design.h"
#include "session/analysis_writers.h"
#include "session/conversion_session.h"
#include "session/naming.h"

namespace morvane {

namespace {

// An Access event property and the suffix of its Visual Basic procedure.
struct PlainEvent {
  std::string_view property;
  std::string_view suffix;
};

constexpr PlainEvent kClick{"OnClick", "_Click()"};
constexpr PlainEvent kDblClick{"OnDblClick", "_DblClick()"};
constexpr PlainEvent kMouseDown{
    "OnMouseDown", "_MouseDown(Button As Integer, Shift As Integer, X As Single, Y As Single)"};
constexpr PlainEvent kMouseMove{
    "OnMouseMove", "_MouseMove(Button As Integer, Shift As Integer, X As Single, Y As Single)"};
constexpr PlainEvent kMouseUp{
    "OnMouseUp", "_MouseUp(Button As Integer, Shift As Integer, X As Single, Y As Single)"};
constexpr PlainEvent kKeyDown{"OnKeyDown", "_KeyDown(KeyCode As Integer, Shift As Integer)"};
constexpr PlainEvent kKeyPress{"OnKeyPress", "_KeyPress(KeyAscii As Integer)"};
constexpr PlainEvent kKeyUp{"OnKeyUp", "_KeyUp(KeyCode As Integer, Shift As Integer)"};
constexpr PlainEvent kChange{"OnChange", "_Change()"};
constexpr PlainEvent kUpdated{"OnUpdated", "_Updated(Code As Integer)"};

// The mouse and key events in the order the writers handle them.
constexpr PlainEvent kMouseEvents[] = {kMouseDown, kMouseMove, kMouseUp};
constexpr PlainEvent kKeyEvents[] = {kKeyDown, kKeyPress, kKeyUp};

constexpr std::string_view kValidateSuffix = "_Validate(Cancel As Boolean)";
constexpr std::string_view kBeforeUpdateSuffix = "_BeforeUpdate(Cancel As Integer)";

void Plain(const ControlEventWriter& w, const PlainEvent& e, bool rename = true) {
  w.Plain(e.property, e.suffix, rename);
}

template <size_t N>
void PlainAll(const ControlEventWriter& w, const PlainEvent (&events)[N]) {
  for (const PlainEvent& e : events) Plain(w, e);
}

// The line of an event for a procedure of the Visual Basic control, or an
// empty line where the property is empty.
std::string LineOrBlank(const ControlEventWriter& w, std::string_view property,
                        std::string_view ownSuffix) {
  return w.Code().EventLine(w.Value(property), w.OwnCall(ownSuffix));
}

// Further LostFocus lines: those of the non-empty properties for an existing
// procedure, one line per property (empty where the property is) for a new
// one.
struct FurtherLines {
  std::vector<std::string> existing;
  std::vector<std::string> fresh;
  bool any = false;
};

FurtherLines UpdateLines(
    const ControlEventWriter& w,
    std::initializer_list<std::pair<std::string_view, std::string_view>> events) {
  FurtherLines f;
  for (const auto& [property, ownSuffix] : events) {
    std::string line = LineOrBlank(w, property, ownSuffix);
    if (!w.Value(property).empty()) {
      f.existing.push_back(line);
      f.any = true;
    }
    f.fresh.push_back(std::move(line));
  }
  return f;
}

}  // namespace

ControlEventWriter::ControlEventWriter(const EventCode& code, const DesignObject& control,
                                       std::string vbName)
    : code_(code),
      control_(control),
      vbName_(std::move(vbName)),
      safeAccessName_(SafeName(control.Name())),
      mayReadEvents_(control.MayReadEvents()) {}

std::string ControlEventWriter::Value(std::string_view property) const {
  // Most controls have no events; one look at the control answers for all.
  if (!mayReadEvents_ && IsEventPropertyName(property)) return std::string();
  return control_.Text(property).value_or("");
}

std::string ControlEventWriter::Header(std::string_view suffix) const {
  return "Private Sub " + vbName_ + std::string(suffix);
}

std::string ControlEventWriter::AccessHeader(std::string_view suffix) const {
  return "Private Sub " + safeAccessName_ + std::string(suffix);
}

std::string ControlEventWriter::OwnCall(std::string_view suffix) const {
  return "Call " + vbName_ + std::string(suffix);
}

void ControlEventWriter::Plain(std::string_view property, std::string_view suffix,
                               bool rename) const {
  const std::string value = Value(property);
  const EventValue kind = ClassifyEvent(value);
  if (kind == EventValue::Expression || kind == EventValue::Macro)
    code_.WriteEventProc(Header(suffix), {code_.EventLine(value, "")});
  else if (kind == EventValue::EventProcedure && rename && NamesDiffer())
    code_.RenameProcLine(AccessHeader(suffix), Header(suffix));
}

void ControlEventWriter::PlainUnchecked(std::string_view property, std::string_view suffix) const {
  const std::string value = Value(property);
  const EventValue kind = ClassifyEvent(value);
  if (kind == EventValue::Expression || kind == EventValue::Macro)
    code_.AppendProc(Header(suffix), {code_.EventLine(value, "")});
}

void ControlEventWriter::DblClickIntoClick() const {
  const std::string dblClick = Value("OnDblClick");
  if (dblClick.empty()) return;
  const std::string line = code_.EventLine(dblClick, OwnCall("_DblClick"));
  if (!Value("OnClick").empty())
    code_.InsertLine(Header(kClick.suffix), line, kEndOfProcedure);
  else
    code_.WriteEventProc(Header(kClick.suffix), {line});
}

void ControlEventWriter::GotFocusWithEnter() const {
  const std::string header = Header("_GotFocus()");
  const std::string gotFocus = Value("OnGotFocus");
  const std::string enter = Value("OnEnter");
  const std::string enterLine = code_.EventLine(enter, OwnCall("_Enter"));
  if (ClassifyEvent(gotFocus) == EventValue::EventProcedure) {
    if (NamesDiffer()) code_.RenameProcLine(AccessHeader("_GotFocus()"), header);
    if (!enter.empty()) code_.InsertLine(header, enterLine, kBehindHeader);
  } else if (!gotFocus.empty() || !enter.empty()) {
    // The Enter line comes first, an empty line when there is none.
    std::vector<std::string> body{enterLine};
    if (!gotFocus.empty()) body.push_back(code_.EventLine(gotFocus, ""));
    code_.WriteEventProc(header, body);
  }
}

std::vector<std::string> ControlEventWriter::ExitBlock() const {
  const std::string exit = Value("OnExit");
  switch (ClassifyEvent(exit)) {
    case EventValue::Empty:
      return {};
    case EventValue::EventProcedure:
      return {"If " + vbName_ + "_Exit() Then", vbName_ + ".SetFocus", "Exit Sub", "End If"};
    default:
      return {code_.EventLine(exit, "")};
  }
}

void ControlEventWriter::LostFocusWithExit(const std::vector<std::string>& existing,
                                           const std::vector<std::string>& fresh,
                                           bool further) const {
  const std::string header = Header("_LostFocus()");
  const std::string lostFocus = Value("OnLostFocus");
  const std::vector<std::string> exitBlock = ExitBlock();
  if (ClassifyEvent(lostFocus) == EventValue::EventProcedure) {
    if (NamesDiffer()) code_.RenameProcLine(AccessHeader("_LostFocus()"), header);
    // Lines behind the header go in last line first.
    for (auto it = exitBlock.rbegin(); it != exitBlock.rend(); ++it)
      code_.InsertLine(header, *it, kBehindHeader);
    for (auto it = existing.rbegin(); it != existing.rend(); ++it)
      code_.InsertLine(header, *it, kBehindHeader);
  } else if (!lostFocus.empty() || !exitBlock.empty() || further) {
    std::vector<std::string> body = fresh;
    body.insert(body.end(), exitBlock.begin(), exitBlock.end());
    if (!lostFocus.empty()) body.push_back(code_.EventLine(lostFocus, ""));
    code_.WriteEventProc(header, body);
  }
}

void ControlEventWriter::Validate(bool guard) const {
  const std::string beforeUpdate = Value("BeforeUpdate");
  if (beforeUpdate.empty() || !guard) return;
  if (ClassifyEvent(beforeUpdate) == EventValue::EventProcedure)
    code_.ChangeLine2(Header(kBeforeUpdateSuffix), Header(kValidateSuffix));
  else
    code_.AppendProc(Header(kValidateSuffix), {code_.EventLine(beforeUpdate, "")});
}

void ControlEventWriter::AfterUpdateFromValidate(bool validate) const {
  const std::string afterUpdate = Value("AfterUpdate");
  if (afterUpdate.empty()) return;
  const bool own = ClassifyEvent(afterUpdate) == EventValue::EventProcedure;
  if (own && NamesDiffer())
    code_.RenameProcLine(AccessHeader("_AfterUpdate()"), Header("_AfterUpdate()"));
  const std::string call = code_.EventLine(afterUpdate, OwnCall("_AfterUpdate"));
  const std::string header = Header(validate ? kValidateSuffix : "_LostFocus()");
  const std::string line =
      validate ? "If Not Cancel And " + vbName_ + ".DataChanged Then " + call : call;
  if (code_.IsDuplicateLine(header) > 0)
    code_.InsertLine(header, line, kEndOfProcedure);
  else
    code_.AppendProc(header, {line});
  // Access runs AfterUpdate once the value is saved; Visual Basic has no such
  // event, so the call stands where the value is checked.
  ReportLine(Session(), code_.FormName(), kReasonReview, "AfterUpdate of " + vbName_, 0, line, "");
}

void ButtonCode(const ControlEventWriter& w) {
  Plain(w, kClick);
  w.DblClickIntoClick();
  PlainAll(w, kKeyEvents);
  PlainAll(w, kMouseEvents);
  w.GotFocusWithEnter();
  w.LostFocusWithExit({}, {}, false);
}

void CheckBoxCode(const ControlEventWriter& w) {
  Plain(w, kClick);
  w.DblClickIntoClick();
  PlainAll(w, kKeyEvents);
  w.GotFocusWithEnter();
  w.Validate(!w.Session().Options.IsVb5);
  const FurtherLines f = UpdateLines(w, {{"AfterUpdate", "_AfterUpdate"}});
  w.LostFocusWithExit(f.existing, f.fresh, f.any);
}

void ImageCode(const ControlEventWriter& w) {
  Plain(w, kClick);
  w.DblClickIntoClick();
  PlainAll(w, kMouseEvents);
}

void OptionGroupCode(const ControlEventWriter& w) {
  Plain(w, kClick);
  Plain(w, kDblClick, false);
  PlainAll(w, kMouseEvents);

  // The options of a group become a control array: the procedures written
  // here carry its Index.
  const EventCode& code = w.Code();
  const std::string beforeUpdate = w.Value("BeforeUpdate");
  if (ClassifyEvent(beforeUpdate) == EventValue::EventProcedure)
    code.ChangeLine2(w.Header(kBeforeUpdateSuffix), w.Header(kValidateSuffix));
  else if (!beforeUpdate.empty())
    code.AppendProc(w.Header("_Validate(Index As Integer, Cancel As Boolean)"),
                    {code.EventLine(beforeUpdate, "")});
  // The translator's second pass gives the group's own Sub procedures the
  // Index parameter too, so the calls to them pass it on. A procedure the
  // module (or a macro's call) already gives the event takes the lines at
  // its end; a second procedure of that name would not compile.
  auto addTo = [&](std::string_view event, const std::vector<std::string>& lines) {
    const std::string own = w.Header(std::string(event) + "()");
    if (code.IsDuplicateLine(own) > 0) {
      for (const auto& line : lines) code.InsertLine(own, line, kEndOfProcedure);
    } else {
      code.AppendProc(w.Header(std::string(event) + "(Index As Integer)"), lines);
    }
  };
  if (const std::string v = w.Value("AfterUpdate"); !v.empty())
    addTo("_Click", {code.EventLine(v, w.OwnCall("_AfterUpdate") + "(Index)")});
  if (const std::string v = w.Value("OnEnter"); !v.empty())
    addTo("_GotFocus", {code.EventLine(v, w.OwnCall("_Enter") + "(Index)")});
  if (!w.Value("OnExit").empty()) {
    // The focus goes back to the option that lost it.
    std::vector<std::string> block = w.ExitBlock();
    for (auto& line : block)
      if (line.ends_with(".SetFocus")) line.insert(line.size() - 9, "(Index)");
    addTo("_LostFocus", block);
  }
}

void TextBoxCode(const ControlEventWriter& w) {
  Plain(w, kClick);
  Plain(w, kDblClick, false);
  PlainAll(w, kMouseEvents);
  PlainAll(w, kKeyEvents);
  Plain(w, kChange);
  w.Validate(!w.Session().Options.IsVb5);
  w.AfterUpdateFromValidate(!w.Session().Options.IsVb5);
  w.GotFocusWithEnter();
  w.LostFocusWithExit({}, {}, false);
}

void BoundObjectFrameCode(const ControlEventWriter& w) {
  Plain(w, kClick);
  Plain(w, kDblClick);
  PlainAll(w, kMouseEvents);
  PlainAll(w, kKeyEvents);
  w.PlainUnchecked(kUpdated.property, kUpdated.suffix);
  w.GotFocusWithEnter();
  const FurtherLines f =
      UpdateLines(w, {{"BeforeUpdate", "_BeforeUpdate(0)"}, {"AfterUpdate", "_AfterUpdate"}});
  w.LostFocusWithExit(f.existing, f.fresh, f.any);
}

namespace {

struct ControlFamily {
  std::string_view kind;
  void (*writer)(const ControlEventWriter&);
};

// The families the hint processor names, each with its writer; the combo box
// takes its kind as well and is dispatched apart.
constexpr ControlFamily kFamilies[] = {
    {"ListBox", ListBoxCode},
    {"Image", ImageCode},
    {"Button", ButtonCode},
    {"CheckBox", CheckBoxCode},
    {"OptionGroup", OptionGroupCode},
    {"TextBox", TextBoxCode},
    {"BoundObjectFrame", BoundObjectFrameCode},
};

}  // namespace

bool WriteControlEvents(std::string_view kind, const ControlEventWriter& w, int comboKind) {
  if (kind == "ComboBox") {
    ComboBoxCode(w, comboKind);
    return true;
  }
  for (const ControlFamily& f : kFamilies) {
    if (f.kind != kind) continue;
    f.writer(w);
    return true;
  }
  return false;
}

}  // namespace morvane

// The event writers of list boxes and combo boxes. Which Visual Basic control
// a list became decides where AfterUpdate, BeforeUpdate and DblClick go: the
// Sheridan lists keep those events under their own names, the two-column
// combo box and the Microsoft Forms combo box have signatures of their own,
// and the other lists fold them into Click.
#include <optional>

#include "events/control_events.h"
#include "session/conversion_session.h"

namespace morvane {

namespace {

constexpr std::string_view kClickSuffix = "_Click()";

constexpr std::string_view kListMouseAndKeyEvents[][2] = {
    {"OnMouseDown", "_MouseDown(Button As Integer, Shift As Integer, X As Single, Y As Single)"},
    {"OnMouseMove", "_MouseMove(Button As Integer, Shift As Integer, X As Single, Y As Single)"},
    {"OnMouseUp", "_MouseUp(Button As Integer, Shift As Integer, X As Single, Y As Single)"},
    {"OnKeyDown", "_KeyDown(KeyCode As Integer, Shift As Integer)"},
    {"OnKeyPress", "_KeyPress(KeyAscii As Integer)"},
    {"OnKeyUp", "_KeyUp(KeyCode As Integer, Shift As Integer)"},
};

// The key events of a combo box: the property, and its header around the
// type of the key argument.
constexpr std::string_view kComboKeyEvents[][3] = {
    {"OnKeyDown", "_KeyDown(KeyCode As ", "Integer, Shift As Integer)"},
    {"OnKeyPress", "_KeyPress(KeyAscii As ", "Integer)"},
    {"OnKeyUp", "_KeyUp(KeyCode As ", "Integer, Shift As Integer)"},
};

// ListboxType and ComboboxType: the Sheridan Data Widgets 2.0 and 3.0.
bool IsSheridan(int listType) { return listType == 2 || listType == 3; }

// ComboKind values of the combo box record.
constexpr int kTwoColumnCombo = 4;
constexpr int kFormsCombo = 5;

bool IsMacroOrExpression(const std::string& value) {
  const EventValue kind = ClassifyEvent(value);
  return kind == EventValue::Expression || kind == EventValue::Macro;
}

// A Sheridan list has BeforeUpdate and AfterUpdate events of its own.
void SheridanUpdateEvents(const ControlEventWriter& w) {
  const EventCode& code = w.Code();
  const std::string beforeUpdate = w.Value("BeforeUpdate");
  const std::string afterUpdate = w.Value("AfterUpdate");
  if (IsMacroOrExpression(beforeUpdate))
    code.AppendProc(w.Header("_BeforeUpdate(Cancel As Integer)"),
                    {code.EventLine(beforeUpdate, "")});
  if (IsMacroOrExpression(afterUpdate))
    code.AppendProc(w.Header("_AfterUpdate(RtnDispErrMsg As Integer)"),
                    {code.EventLine(afterUpdate, "")});
  else if (ClassifyEvent(afterUpdate) == EventValue::EventProcedure)
    code.ChangeLine("Sub " + w.VbName() + "_AfterUpdate()");
}

// Click, AfterUpdate and BeforeUpdate of a list box.
void ListBoxClick(const ControlEventWriter& w) {
  const EventCode& code = w.Code();
  const int listType = w.Session().Options.ListboxType;
  const std::string click = w.Value("OnClick");
  const std::string afterUpdate = w.Value("AfterUpdate");
  const bool updates = !afterUpdate.empty() || !w.Value("BeforeUpdate").empty();
  const std::string clickHeader = w.Header(kClickSuffix);
  auto afterUpdateLine = [&] { return code.EventLine(afterUpdate, w.OwnCall("_AfterUpdate")); };

  bool sheridanEvents = false;
  if (IsMacroOrExpression(click) || (click.empty() && updates && listType == 1)) {
    std::vector<std::string> body;
    if (!afterUpdate.empty() && !IsSheridan(listType)) body.push_back(afterUpdateLine());
    if (!click.empty()) body.push_back(code.EventLine(click, ""));
    code.WriteEventProc(clickHeader, body);
    sheridanEvents = IsSheridan(listType);
  } else if (ClassifyEvent(click) == EventValue::EventProcedure && !afterUpdate.empty() &&
             listType == 1) {
    if (w.NamesDiffer()) code.RenameProcLine(w.AccessHeader(kClickSuffix), clickHeader);
    code.InsertLine(clickHeader, afterUpdateLine(), kBehindHeader);
  } else {
    sheridanEvents = updates && IsSheridan(listType);
  }
  if (sheridanEvents) SheridanUpdateEvents(w);
}

}  // namespace

void ListBoxCode(const ControlEventWriter& w) {
  ListBoxClick(w);
  w.Plain("OnDblClick", "_DblClick()", false);
  for (const auto& [property, suffix] : kListMouseAndKeyEvents) w.Plain(property, suffix);
  w.GotFocusWithEnter();
  w.LostFocusWithExit({}, {}, false);
  w.Validate(!IsSheridan(w.Session().Options.ListboxType));
}

void ComboBoxCode(const ControlEventWriter& w, int comboKind) {
  const EventCode& code = w.Code();
  const std::string click = w.Value("OnClick");
  const std::string afterUpdate = w.Value("AfterUpdate");
  const std::string dblClick = w.Value("OnDblClick");
  const std::string clickHeader = w.Header(kClickSuffix);
  const bool clickProcedure = ClassifyEvent(click) == EventValue::EventProcedure;

  // AfterUpdate goes into Click, ahead of the Click event's own line.
  bool made = false;
  if (IsMacroOrExpression(click) || (click.empty() && !afterUpdate.empty())) {
    std::vector<std::string> body{code.EventLine(afterUpdate, w.OwnCall("_AfterUpdate"))};
    if (!click.empty()) body.push_back(code.EventLine(click, ""));
    code.WriteEventProc(clickHeader, body);
    made = true;
  } else if (clickProcedure && !afterUpdate.empty()) {
    if (w.NamesDiffer()) code.RenameProcLine(w.AccessHeader(kClickSuffix), clickHeader);
    code.InsertLine(clickHeader, code.EventLine(afterUpdate, w.OwnCall("_AfterUpdate")),
                    kBehindHeader);
  } else if (clickProcedure && w.NamesDiffer()) {
    code.RenameProcLine(w.AccessHeader(kClickSuffix), clickHeader);
  }
  if (comboKind == kTwoColumnCombo && (!click.empty() || !afterUpdate.empty()))
    code.RenameProcLine(clickHeader, w.Header("_Click(Area as Integer)"));

  // DblClick: folded into Click, except on the two combo boxes that have a
  // double click event of their own. A line for a Click procedure made above
  // waits for the end, behind everything else that goes into it.
  std::optional<std::string> keptDblClick;
  if (!dblClick.empty() && comboKind != kTwoColumnCombo && comboKind != kFormsCombo) {
    std::string line = code.EventLine(dblClick, w.OwnCall("_DblClick"));
    if (made)
      keptDblClick = std::move(line);
    else if (!click.empty())
      code.InsertLine(clickHeader, line, kEndOfProcedure);
    else
      code.WriteEventProc(clickHeader, {line});
  } else if (!dblClick.empty()) {
    const std::string header =
        w.Header(comboKind == kTwoColumnCombo ? "_DblClick(Area as Integer)"
                                              : "_DblClick(Cancel As MSForms.ReturnBoolean)");
    // The module holds the Access header, whose Cancel argument the two
    // combo boxes take in a type of their own.
    if (ClassifyEvent(dblClick) == EventValue::EventProcedure) {
      code.RenameProcLine(w.AccessHeader("_DblClick(Cancel As Integer)"), header);
      code.RenameProcLine(w.AccessHeader("_DblClick()"), header);
    } else
      code.AppendProc(header, {code.EventLine(dblClick, "")});
  }

  // The Microsoft Forms combo box passes its key codes by reference objects;
  // a procedure of the module takes that signature, or it would not match
  // the event.
  const std::string by = comboKind == kFormsCombo ? "MSForms.Return" : "";
  for (const auto& [property, head, tail] : kComboKeyEvents) {
    const std::string suffix = std::string(head) + by + std::string(tail);
    if (comboKind == kFormsCombo && ClassifyEvent(w.Value(property)) == EventValue::EventProcedure)
      code.RenameProcLine(w.AccessHeader(std::string(head) + std::string(tail)), w.Header(suffix));
    else
      w.Plain(property, suffix);
  }
  w.Validate(!w.Session().Options.IsVb5);
  w.Plain("OnChange", "_Change()");
  w.GotFocusWithEnter();

  // A Sheridan combo box tells on leaving whether its text is in the list.
  const std::string notInList = w.Value("OnNotInList");
  if (!notInList.empty() && IsSheridan(w.Session().Options.ComboboxType)) {
    const std::string vb = w.VbName();
    const std::vector<std::string> lines{
        "If Not " + vb + ".IsItemInList Then",
        code.EventLine(notInList, "Call " + vb + "_NotInList(" + vb + ".Text, 0)"), "End If"};
    w.LostFocusWithExit(lines, lines, true);
  } else {
    w.LostFocusWithExit({}, {}, false);
  }
  if (keptDblClick) code.InsertLine(clickHeader, *keptDblClick, kEndOfProcedure);
}

}  // namespace morvane

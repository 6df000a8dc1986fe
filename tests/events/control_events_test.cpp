// Control event code: the writers run on a form's controls over an output
// file holding the form's module, checked on the whole resulting text. The
// golden frmEvents shows a button's click and double click, an entered and
// left text box, a validated one, a check box's update, a macro run with
// its form and an embedded macro; these are the other cases.
#include "events/control_events.h"

#include "events/event_harness.h"

namespace morvane::test {
namespace {

class ControlEvents : public EventHarness {};

// The headers of the procedures in a text, in order.
std::vector<std::string> Headers(const std::string& text) {
  std::vector<std::string> headers;
  size_t at = 0;
  while ((at = text.find("Private Sub ", at)) != std::string::npos) {
    size_t end = text.find("\r\n", at);
    headers.push_back(text.substr(at + 12, end - at - 12));
    at = end;
  }
  return headers;
}

// Controls of one family on frmTest, the writers run on each in turn, and
// the module's code before and after.
struct CodeCase {
  const char* name;
  ControlEventKind kind;
  std::string controls;
  std::vector<const char*> run;
  const char* code;
  const char* result;
};

const CodeCase kCases[] = {
    {"ButtonMacroOnDoubleClickAloneRunsOnClick",
     ControlEventKind::Button,
     ControlBlock("CommandButton", "cmdGo", {{"OnDblClick", "mcrBeep"}}),
     {"cmdGo"},
     "",
     "\nPrivate Sub cmdGo_Click()\nCall mcrBeep\nEnd Sub\n"},
    {"MacroThatNeedsTheFormRunsWithItAlsoInAnExistingProcedure",
     ControlEventKind::Button,
     ControlBlock("CommandButton", "cmdGo",
                  {{"OnClick", "[Event Procedure]"}, {"OnDblClick", "mcrNav.Fill"}}),
     {"cmdGo"},
     "Private Sub cmdGo_Click()\nx = 1\nEnd Sub\n",
     "Private Sub cmdGo_Click()\nx = 1\nSet CodeContextObject = Me\nCall mcrNav_Fill\n"
     "Set CodeContextObject = Nothing\nEnd Sub\n"},
    {"EnterGoesAheadOfGotFocusAndAnEmptyOneLeavesAnEmptyLine",
     ControlEventKind::TextBox,
     ControlBlock("TextBox", "txtA", {{"OnGotFocus", "mcrBeep"}}) +
         ControlBlock("TextBox", "txtC",
                      {{"OnGotFocus", "[Event Procedure]"}, {"OnEnter", "=Go()"}}),
     {"txtA", "txtC"},
     "Private Sub txtC_GotFocus()\nx = 1\nEnd Sub\n",
     "Private Sub txtC_GotFocus()\nCall Go()\nx = 1\nEnd Sub\n"
     "\nPrivate Sub txtA_GotFocus()\n\nCall mcrBeep\nEnd Sub\n"},
    {"ExitProcedureOpensTheExistingLostFocus",
     ControlEventKind::TextBox,
     ControlBlock("TextBox", "txtB",
                  {{"OnExit", "[Event Procedure]"}, {"OnLostFocus", "[Event Procedure]"}}),
     {"txtB"},
     "Private Sub txtB_LostFocus()\nx = 1\nEnd Sub\n",
     "Private Sub txtB_LostFocus()\nIf txtB_Exit() Then\ntxtB.SetFocus\nExit Sub\nEnd If\nx = 1\n"
     "End Sub\n"},
    {"RenamedControlChangesOnlyItsOwnHeaders",
     ControlEventKind::TextBox,
     ControlBlock("TextBox", "txtName",
                  {{"OnClick", "[Event Procedure]"},
                   {"OnDblClick", "[Event Procedure]"},
                   {"OnKeyDown", "[Event Procedure]"},
                   {"OnLostFocus", "[Event Procedure]"}}),
     {"txtName1"},
     "Private Sub txtName_Click()\nEnd Sub\nPrivate Sub txtName_DblClick(Cancel As Integer)\n"
     "End Sub\nPrivate Sub txtName_KeyDown(KeyCode As Integer, Shift As Integer)\nEnd Sub\n"
     "Private Sub txtName_LostFocus()\nEnd Sub\n'MORVANE Form Code for frmOther\n"
     "Private Sub txtName_Click()\nEnd Sub\n'MORVANE End Form Code for frmOther\n",
     "Private Sub txtName1_Click()\nEnd Sub\nPrivate Sub txtName_DblClick(Cancel As Integer)\n"
     "End Sub\nPrivate Sub txtName1_KeyDown(KeyCode As Integer, Shift As Integer)\nEnd Sub\n"
     "Private Sub txtName1_LostFocus()\nEnd Sub\n'MORVANE Form Code for frmOther\n"
     "Private Sub txtName_Click()\nEnd Sub\n'MORVANE End Form Code for frmOther\n"},
    {"CheckBoxAfterUpdateRunsOnLosingTheFocus",
     ControlEventKind::CheckBox,
     ControlBlock("CheckBox", "chkA",
                  {{"AfterUpdate", "[Event Procedure]"}, {"OnExit", "mcrBeep"}}) +
         ControlBlock("CheckBox", "chkB", {{"OnLostFocus", "=Lost()"}}) +
         ControlBlock("CheckBox", "chkC",
                      {{"AfterUpdate", "=Recalc()"},
                       {"OnExit", "[Event Procedure]"},
                       {"OnLostFocus", "[Event Procedure]"}}),
     {"chkA", "chkB", "chkC"},
     "Private Sub chkC_LostFocus()\nx = 1\nEnd Sub\n",
     "Private Sub chkC_LostFocus()\nCall Recalc()\nIf chkC_Exit() Then\nchkC.SetFocus\nExit Sub\n"
     "End If\nx = 1\nEnd Sub\n"
     "\nPrivate Sub chkA_LostFocus()\nCall chkA_AfterUpdate\nCall mcrBeep\nEnd Sub\n"
     // An empty AfterUpdate leaves an empty line in a new procedure.
     "\nPrivate Sub chkB_LostFocus()\n\nCall Lost()\nEnd Sub\n"},
    {"BoundObjectFrameUpdatesRunOnLosingTheFocus",
     ControlEventKind::BoundObjectFrame,
     ControlBlock("BoundObjectFrame", "olePhoto",
                  {{"BeforeUpdate", "[Event Procedure]"}, {"OnUpdated", "=Refresh()"}}) +
         ControlBlock("BoundObjectFrame", "oleDoc",
                      {{"BeforeUpdate", "=Check()"},
                       {"AfterUpdate", "[Event Procedure]"},
                       {"OnLostFocus", "[Event Procedure]"}}),
     {"olePhoto", "oleDoc"},
     "Private Sub olePhoto_Updated(Code As Integer)\nEnd Sub\nPrivate Sub oleDoc_LostFocus()\n"
     "End Sub\n",
     "Private Sub olePhoto_Updated(Code As Integer)\nEnd Sub\n"
     "Private Sub oleDoc_LostFocus()\nCall Check()\nCall oleDoc_AfterUpdate\nEnd Sub\n"
     // Updated is written without looking for its header.
     "\nPrivate Sub olePhoto_Updated(Code As Integer)\nCall Refresh()\nEnd Sub\n"
     "\nPrivate Sub olePhoto_LostFocus()\nCall olePhoto_BeforeUpdate(0)\n\nEnd Sub\n"},
    {"OptionGroupProceduresTakeTheIndexOfTheControlArray",
     ControlEventKind::OptionGroup,
     ControlBlock("OptionGroup", "grpShip",
                  {{"BeforeUpdate", "=Check()"},
                   {"AfterUpdate", "[Event Procedure]"},
                   {"OnEnter", "mcrBeep"},
                   {"OnExit", "[Event Procedure]"}}) +
         ControlBlock("OptionGroup", "grpPay", {{"BeforeUpdate", "[Event Procedure]"}}),
     {"grpShip", "grpPay"},
     "Private Sub grpPay_BeforeUpdate(Cancel As Integer)\nEnd Sub\n",
     "Private Sub grpPay_Validate(Cancel As Boolean)\nEnd Sub\n"
     "\nPrivate Sub grpShip_Validate(Index As Integer, Cancel As Boolean)\nCall Check()\nEnd Sub\n"
     "\nPrivate Sub grpShip_Click(Index As Integer)\nCall grpShip_AfterUpdate(Index)\nEnd Sub\n"
     "\nPrivate Sub grpShip_GotFocus(Index As Integer)\nCall mcrBeep\nEnd Sub\n"
     "\nPrivate Sub grpShip_LostFocus(Index As Integer)\nIf grpShip_Exit() Then\n"
     "grpShip(Index).SetFocus\nExit Sub\nEnd If\nEnd Sub\n"},
    {"LabelOnTheFormFoldsDoubleClickIntoItsNewClick",
     ControlEventKind::Image,
     ControlBlock("Label", "lblTitle",
                  {{"OnClick", "=Foo()"}, {"OnDblClick", "[Event Procedure]"}}),
     {"lblTitle"},
     "",
     "\nPrivate Sub lblTitle_Click()\nCall Foo()\nCall lblTitle_DblClick\nEnd Sub\n"},
};

TEST_F(ControlEvents, WritersOnExistingAndNewProcedures) {
  for (const CodeCase& c : kCases) {
    SCOPED_TRACE(c.name);
    AddTestForm(c.controls);
    Reload();
    SetCode(c.code);
    // A Visual Basic name that differs from the Access one ends in "1".
    for (std::string vbName : c.run)
      Control(c.kind, vbName.ends_with("1") ? vbName.substr(0, vbName.size() - 1) : vbName, vbName);
    EXPECT_EQ(Output(), Crlf(kFrmHead + std::string(c.result)));
    EXPECT_TRUE(Rows().empty());
  }
}

// Every event of a family set to an expression: the new procedures, in the
// order the file must show them.
struct FamilyOrder {
  const char* kind;
  const char* type;
  std::vector<std::string> headers;
};

const Properties kEveryEvent = {
    {"OnClick", "=C()"},      {"OnDblClick", "=D()"},    {"OnMouseDown", "=MD()"},
    {"OnMouseMove", "=MM()"}, {"OnMouseUp", "=MU()"},    {"OnKeyDown", "=KD()"},
    {"OnKeyPress", "=KP()"},  {"OnKeyUp", "=KU()"},      {"OnChange", "=CH()"},
    {"OnGotFocus", "=G()"},   {"OnLostFocus", "=L()"},   {"OnEnter", "=E()"},
    {"OnExit", "=X()"},       {"BeforeUpdate", "=BU()"}, {"AfterUpdate", "=AU()"},
    {"OnUpdated", "=UP()"},   {"OnNotInList", "=NI()"},
};

const std::string kMouse[] = {
    "x_MouseDown(Button As Integer, Shift As Integer, X As Single, Y As Single)",
    "x_MouseMove(Button As Integer, Shift As Integer, X As Single, Y As Single)",
    "x_MouseUp(Button As Integer, Shift As Integer, X As Single, Y As Single)"};
const std::string kKeys[] = {"x_KeyDown(KeyCode As Integer, Shift As Integer)",
                             "x_KeyPress(KeyAscii As Integer)",
                             "x_KeyUp(KeyCode As Integer, Shift As Integer)"};

const FamilyOrder kFamilyOrders[] = {
    {"Button",
     "CommandButton",
     {"x_Click()", kKeys[0], kKeys[1], kKeys[2], kMouse[0], kMouse[1], kMouse[2], "x_GotFocus()",
      "x_LostFocus()"}},
    {"CheckBox",
     "CheckBox",
     {"x_Click()", kKeys[0], kKeys[1], kKeys[2], "x_GotFocus()", "x_Validate(Cancel As Boolean)",
      "x_LostFocus()"}},
    {"Image", "Image", {"x_Click()", kMouse[0], kMouse[1], kMouse[2]}},
    {"OptionGroup",
     "OptionGroup",
     {"x_Click()", "x_DblClick()", kMouse[0], kMouse[1], kMouse[2],
      // AfterUpdate joins the Click the group has: one Click procedure.
      "x_Validate(Index As Integer, Cancel As Boolean)", "x_GotFocus(Index As Integer)",
      "x_LostFocus(Index As Integer)"}},
    {"TextBox",
     "TextBox",
     {"x_Click()", "x_DblClick()", kMouse[0], kMouse[1], kMouse[2], kKeys[0], kKeys[1], kKeys[2],
      "x_Change()", "x_Validate(Cancel As Boolean)", "x_GotFocus()", "x_LostFocus()"}},
    {"ListBox",
     "ListBox",
     {"x_Click()", "x_DblClick()", kMouse[0], kMouse[1], kMouse[2], kKeys[0], kKeys[1], kKeys[2],
      "x_GotFocus()", "x_LostFocus()", "x_Validate(Cancel As Boolean)"}},
    {"ComboBox",
     "ComboBox",
     {"x_Click()", kKeys[0], kKeys[1], kKeys[2], "x_Validate(Cancel As Boolean)", "x_Change()",
      "x_GotFocus()", "x_LostFocus()"}},
    {"BoundObjectFrame",
     "BoundObjectFrame",
     {"x_Click()", "x_DblClick()", kMouse[0], kMouse[1], kMouse[2], kKeys[0], kKeys[1], kKeys[2],
      "x_Updated(Code As Integer)", "x_GotFocus()", "x_LostFocus()"}},
};

TEST_F(ControlEvents, EachFamilyWritesItsProceduresInItsOwnOrder) {
  std::string controls;
  for (const auto& f : kFamilyOrders)
    controls += ControlBlock(f.type, std::string("x") + f.kind, kEveryEvent);
  AddTestForm(controls);
  s_.Options.ListboxType = 1;
  s_.Options.ComboboxType = 4;
  for (const auto& f : kFamilyOrders) {
    SetCode("");
    Control(f.kind, std::string("x") + f.kind, "x");
    const std::string added = Added("");
    EXPECT_EQ(Headers(added), f.headers) << f.kind;
    // A button's click ends with its double click, Enter and Exit open
    // GotFocus and LostFocus.
    if (f.kind != std::string("Button")) continue;
    for (const char* body :
         {"Call C()\r\nCall D()", "Call E()\r\nCall G()", "Call X()\r\nCall L()"})
      EXPECT_NE(added.find(body), std::string::npos) << body;
  }
}

TEST_F(ControlEvents, RenamesKeepToTheSectionOfTheFormThatHoldsTheControl) {
  AddTestForm(ControlBlock("CommandButton", "cmdGo", {{"OnClick", "[Event Procedure]"}}));
  // A form that is not the one of the file owns only its marked section.
  AddForm("frmSub",
          FormText({}, ControlBlock("CommandButton", "cmdGo", {{"OnClick", "[Event Procedure]"}})));
  SetCode(
      "Private Sub cmdGo_Click()\nEnd Sub\n'MORVANE Form Code for frmSub\n"
      "Private Sub cmdGo_Click()\nEnd Sub\n'MORVANE End Form Code for frmSub\n"
      "Private Sub cmdGo_Click()\nEnd Sub\n");
  Actions().ControlEvents(s_, "frmTest",
                          Hint(ControlEventKind::Button, "frmSub", "cmdGo", "cmdGo2"));
  EXPECT_EQ(Output(), Crlf(std::string(kFrmHead) +
                           "Private Sub cmdGo_Click()\nEnd Sub\n'MORVANE Form Code for frmSub\n"
                           "Private Sub cmdGo2_Click()\nEnd Sub\n"
                           "'MORVANE End Form Code for frmSub\n"
                           "Private Sub cmdGo2_Click()\nEnd Sub\n"));
}

TEST_F(ControlEvents, ControlOfASubformIsReachedThroughItsSubformControl) {
  AddTestForm(ControlBlock("Subform", "sfrmLines", {{"SourceObject", "Form.frmLines"}}));
  AddForm("frmLines",
          FormText({}, ControlBlock("TextBox", "txtQty",
                                    {{"OnChange", "[Event Procedure]"}, {"OnClick", "=Qty()"}})));
  const std::string code =
      "Private Sub txtQty_Change()\nEnd Sub\n'MORVANE Form Code for frmLines\n"
      "Private Sub txtQty_Change()\nEnd Sub\n'MORVANE End Form Code for frmLines\n";
  SetCode(code);
  Actions().ControlEvents(
      s_, "frmTest",
      Hint(ControlEventKind::TextBox, "frmTest", "txtQty", "txtQty1", 0, "sfrmLines"));
  EXPECT_EQ(Output(), Crlf(std::string(kFrmHead) +
                           "Private Sub txtQty_Change()\nEnd Sub\n'MORVANE Form Code for frmLines\n"
                           "Private Sub txtQty1_Change()\nEnd Sub\n"
                           "'MORVANE End Form Code for frmLines\n"
                           "\nPrivate Sub txtQty1_Click()\nCall Qty()\nEnd Sub\n"));
}

TEST_F(ControlEvents, ValidateIsWrittenOnlyOutsideVisualBasic5) {
  AddTestForm(ControlBlock("TextBox", "txtA", {{"BeforeUpdate", "mcrBeep"}}) +
              ControlBlock("TextBox", "txtB", {{"BeforeUpdate", "[Event Procedure]"}}));
  const std::string code = "Private Sub txtB_BeforeUpdate(Cancel As Integer)\nEnd Sub\n";
  for (bool vb5 : {true, false}) {
    SetCode(code);
    s_.Options.IsVb5 = vb5;
    Control(ControlEventKind::TextBox, "txtA", "txtA");
    Control(ControlEventKind::TextBox, "txtB", "txtB");
    EXPECT_EQ(Output(), Crlf(kFrmHead + (vb5 ? code
                                             : "Private Sub txtB_Validate(Cancel As Boolean)\n"
                                               "End Sub\n\nPrivate Sub txtA_Validate(Cancel As "
                                               "Boolean)\nCall mcrBeep\nEnd Sub\n")));
  }
}

TEST_F(ControlEvents, ControlThatIsNotThereIsNotedAndLeavesTheFileAsItIs) {
  AddTestForm(ControlBlock("CommandButton", "cmdGo", {{"OnClick", "=Foo()"}}));
  SetCode("");
  Control(ControlEventKind::Button, "cmdGone", "cmdGone");
  EXPECT_EQ(Output(), Crlf(kFrmHead));
  auto notes = db_->RunNotes();
  ASSERT_EQ(notes.size(), 1u);
  EXPECT_EQ(notes[0].first, "frmTest.cmdGone");
}

}  // namespace
}  // namespace morvane::test

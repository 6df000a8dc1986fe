// Control event code: the writers run on a form's controls over an output
// file holding the form's module, checked on the whole resulting text.
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

TEST_F(ControlEvents, ButtonExpressionInClickBecomesANewProcedureAtTheEnd) {
  AddTestForm(ControlBlock("CommandButton", "cmdGo", {{"OnClick", "=Foo()"}}));
  SetCode("Option Explicit\n");
  Control(ControlEventKind::Button, "cmdGo", "cmdGo");
  EXPECT_EQ(Added("Option Explicit\n"), Crlf("\nPrivate Sub cmdGo_Click()\nCall Foo()\nEnd Sub\n"));
  EXPECT_TRUE(Rows().empty());
}

TEST_F(ControlEvents, ButtonDoubleClickBecomesTheLastLineOfItsClick) {
  AddTestForm(
      ControlBlock("CommandButton", "cmdGo",
                   {{"OnClick", "[Event Procedure]"}, {"OnDblClick", "[Event Procedure]"}}));
  SetCode(
      "Private Sub cmdGo_Click()\nMsgBox 1\nEnd Sub\nPrivate Sub cmdGo_DblClick(Cancel As "
      "Integer)\nEnd Sub\n");
  Control(ControlEventKind::Button, "cmdGo", "cmdGo");
  EXPECT_EQ(Output(), Crlf(std::string(kFrmHead) +
                           "Private Sub cmdGo_Click()\nMsgBox 1\nCall cmdGo_DblClick\nEnd Sub\n"
                           "Private Sub cmdGo_DblClick(Cancel As Integer)\nEnd Sub\n"));
}

TEST_F(ControlEvents, ButtonMacroOnDoubleClickAloneRunsOnClick) {
  AddTestForm(ControlBlock("CommandButton", "cmdGo", {{"OnDblClick", "mcrBeep"}}));
  SetCode("");
  Control(ControlEventKind::Button, "cmdGo", "cmdGo");
  EXPECT_EQ(Added(""), Crlf("\nPrivate Sub cmdGo_Click()\nCall mcrBeep\nEnd Sub\n"));
}

TEST_F(ControlEvents, MacroThatNeedsTheFormRunsWithTheFormAsContextAlsoWhenInserted) {
  AddTestForm(ControlBlock("CommandButton", "cmdGo",
                           {{"OnClick", "[Event Procedure]"}, {"OnDblClick", "mcrNav.Fill"}}) +
              ControlBlock("CommandButton", "cmdNext", {{"OnClick", "mcrNav.Fill"}}) +
              ControlBlock("CommandButton", "cmdBeep", {{"OnClick", "mcrBeep"}}));
  SetCode("Private Sub cmdGo_Click()\nx = 1\nEnd Sub\n");
  Control(ControlEventKind::Button, "cmdGo", "cmdGo");
  Control(ControlEventKind::Button, "cmdNext", "cmdNext");
  Control(ControlEventKind::Button, "cmdBeep", "cmdBeep");
  EXPECT_EQ(Output(),
            Crlf(std::string(kFrmHead) + "Private Sub cmdGo_Click()\nx = 1\n"
                                         "Set CodeContextObject = Me\nCall mcrNav_Fill\n"
                                         "Set CodeContextObject = Nothing\nEnd Sub\n"
                                         "\nPrivate Sub cmdNext_Click()\n"
                                         "Set CodeContextObject = Me\nCall mcrNav_Fill\n"
                                         "Set CodeContextObject = Nothing\nEnd Sub\n"
                                         "\nPrivate Sub cmdBeep_Click()\nCall mcrBeep\nEnd Sub\n"));
}

TEST_F(ControlEvents, EmbeddedMacroCountsAsAMacroOfTheControl) {
  AddTestForm(
      "        Begin CommandButton\n            Name =\"cmdGo\"\n"
      "            OnClickEmMacro = Begin\n                Version =196611\n"
      "                Begin\n                    Action =\"Beep\"\n                End\n"
      "            End\n        End\n");
  SetCode("");
  Control(ControlEventKind::Button, "cmdGo", "cmdGo");
  const std::string added = Added("");
  EXPECT_EQ(Headers(added), std::vector<std::string>{"cmdGo_Click()"});
  EXPECT_NE(added.find("\r\nCall frmTest_cmdGo"), std::string::npos) << added;
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
    EXPECT_EQ(Headers(Added("")), f.headers) << f.kind;
  }
}

TEST_F(ControlEvents, ButtonBodiesFoldDoubleClickEnterAndExit) {
  AddTestForm(ControlBlock("CommandButton", "cmdGo", kEveryEvent));
  SetCode("");
  Control(ControlEventKind::Button, "cmdGo", "cmdGo");
  EXPECT_EQ(Added(""),
            Crlf("\nPrivate Sub cmdGo_Click()\nCall C()\nCall D()\nEnd Sub\n"
                 "\nPrivate Sub cmdGo_KeyDown(KeyCode As Integer, Shift As Integer)\n"
                 "Call KD()\nEnd Sub\n"
                 "\nPrivate Sub cmdGo_KeyPress(KeyAscii As Integer)\nCall KP()\nEnd Sub\n"
                 "\nPrivate Sub cmdGo_KeyUp(KeyCode As Integer, Shift As Integer)\n"
                 "Call KU()\nEnd Sub\n"
                 "\nPrivate Sub cmdGo_MouseDown(Button As Integer, Shift As Integer, "
                 "X As Single, Y As Single)\nCall MD()\nEnd Sub\n"
                 "\nPrivate Sub cmdGo_MouseMove(Button As Integer, Shift As Integer, "
                 "X As Single, Y As Single)\nCall MM()\nEnd Sub\n"
                 "\nPrivate Sub cmdGo_MouseUp(Button As Integer, Shift As Integer, "
                 "X As Single, Y As Single)\nCall MU()\nEnd Sub\n"
                 "\nPrivate Sub cmdGo_GotFocus()\nCall E()\nCall G()\nEnd Sub\n"
                 "\nPrivate Sub cmdGo_LostFocus()\nCall X()\nCall L()\nEnd Sub\n"));
}

TEST_F(ControlEvents, RenamedControlChangesOnlyItsOwnHeaders) {
  AddTestForm(ControlBlock("TextBox", "txtName",
                           {{"OnClick", "[Event Procedure]"},
                            {"OnDblClick", "[Event Procedure]"},
                            {"OnKeyDown", "[Event Procedure]"},
                            {"OnChange", "[Event Procedure]"},
                            {"OnGotFocus", "[Event Procedure]"},
                            {"OnLostFocus", "[Event Procedure]"}}));
  const std::string other =
      "'MORVANE Form Code for frmOther\nPrivate Sub txtName_Click()\nEnd Sub\n"
      "'MORVANE End Form Code for frmOther\n";
  SetCode(
      "Private Sub txtName_Click()\nEnd Sub\nPrivate Sub txtName_DblClick(Cancel As Integer)\n"
      "End Sub\nPrivate Sub txtName_KeyDown(KeyCode As Integer, Shift As Integer)\nEnd Sub\n"
      "Private Sub txtName_Change()\nEnd Sub\nPrivate Sub txtName_GotFocus()\nEnd Sub\n"
      "Private Sub txtName_LostFocus()\nEnd Sub\n" +
      other);
  Control(ControlEventKind::TextBox, "txtName", "txtName1");
  EXPECT_EQ(Output(),
            Crlf(std::string(kFrmHead) +
                 "Private Sub txtName1_Click()\nEnd Sub\n"
                 "Private Sub txtName_DblClick(Cancel As Integer)\nEnd Sub\n"
                 "Private Sub txtName1_KeyDown(KeyCode As Integer, Shift As Integer)\nEnd Sub\n"
                 "Private Sub txtName1_Change()\nEnd Sub\nPrivate Sub txtName1_GotFocus()\n"
                 "End Sub\nPrivate Sub txtName1_LostFocus()\nEnd Sub\n" +
                 other));
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

TEST_F(ControlEvents, EnterAndGotFocus) {
  AddTestForm(
      ControlBlock("TextBox", "txtA", {{"OnGotFocus", "mcrBeep"}}) +
      ControlBlock("TextBox", "txtB", {{"OnEnter", "[Event Procedure]"}}) +
      ControlBlock("TextBox", "txtC", {{"OnGotFocus", "[Event Procedure]"}, {"OnEnter", "=Go()"}}));
  SetCode("Private Sub txtC_GotFocus()\nx = 1\nEnd Sub\n");
  Control(ControlEventKind::TextBox, "txtA", "txtA");
  Control(ControlEventKind::TextBox, "txtB", "txtB");
  Control(ControlEventKind::TextBox, "txtC", "txtC");
  EXPECT_EQ(Output(), Crlf(std::string(kFrmHead) +
                           "Private Sub txtC_GotFocus()\nCall Go()\nx = 1\nEnd Sub\n"
                           // An empty Enter leaves an empty first line.
                           "\nPrivate Sub txtA_GotFocus()\n\nCall mcrBeep\nEnd Sub\n"
                           "\nPrivate Sub txtB_GotFocus()\nCall txtB_Enter\nEnd Sub\n"));
}

TEST_F(ControlEvents, ExitProcedureReturnsTheFocusWhenItAnswersTrue) {
  AddTestForm(
      ControlBlock("TextBox", "txtA", {{"OnExit", "[Event Procedure]"}}) +
      ControlBlock("TextBox", "txtB",
                   {{"OnExit", "[Event Procedure]"}, {"OnLostFocus", "[Event Procedure]"}}));
  SetCode("Private Sub txtB_LostFocus()\nx = 1\nEnd Sub\n");
  Control(ControlEventKind::TextBox, "txtA", "txtA");
  Control(ControlEventKind::TextBox, "txtB", "txtB");
  EXPECT_EQ(Output(), Crlf(std::string(kFrmHead) +
                           "Private Sub txtB_LostFocus()\nIf txtB_Exit() Then\ntxtB.SetFocus\n"
                           "Exit Sub\nEnd If\nx = 1\nEnd Sub\n"
                           "\nPrivate Sub txtA_LostFocus()\nIf txtA_Exit() Then\ntxtA.SetFocus\n"
                           "Exit Sub\nEnd If\nEnd Sub\n"));
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
    if (vb5)
      EXPECT_EQ(Output(), Crlf(kFrmHead + code));
    else
      EXPECT_EQ(Output(), Crlf(std::string(kFrmHead) +
                               "Private Sub txtB_Validate(Cancel As Boolean)\nEnd Sub\n"
                               "\nPrivate Sub txtA_Validate(Cancel As Boolean)\nCall mcrBeep\n"
                               "End Sub\n"));
  }
}

TEST_F(ControlEvents, NewProcedureWhoseHeaderStandsIsReportedAndWrittenAgain) {
  AddTestForm(ControlBlock("CommandButton", "cmdGo", {{"OnClick", "=Foo()"}}));
  SetCode("Private Sub cmdGo_Click()\nEnd Sub\n");
  Control(ControlEventKind::Button, "cmdGo", "cmdGo");
  EXPECT_EQ(Added("Private Sub cmdGo_Click()\nEnd Sub\n"),
            Crlf("\nPrivate Sub cmdGo_Click()\nCall Foo()\nEnd Sub\n"));
  auto rows = Rows();
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0].ModuleName, "frmTest");
  EXPECT_EQ(rows[0].ReasonID, 11);
  EXPECT_EQ(rows[0].CodeLine, "Private Sub cmdGo_Click()");
  EXPECT_EQ(rows[0].LineNumber, 1);
  EXPECT_EQ(rows[0].TranslatedLine, "Private Sub cmdGo_Click()");
  EXPECT_EQ(rows[0].Routine, "Private Sub cmdGo_Click()");
}

TEST_F(ControlEvents, CheckBoxAfterUpdateRunsOnLosingTheFocus) {
  AddTestForm(ControlBlock("CheckBox", "chkA",
                           {{"AfterUpdate", "[Event Procedure]"}, {"OnExit", "mcrBeep"}}) +
              ControlBlock("CheckBox", "chkB", {{"OnLostFocus", "=Lost()"}}) +
              ControlBlock("CheckBox", "chkC",
                           {{"AfterUpdate", "=Recalc()"},
                            {"OnExit", "[Event Procedure]"},
                            {"OnLostFocus", "[Event Procedure]"}}));
  SetCode("Private Sub chkC_LostFocus()\nx = 1\nEnd Sub\n");
  Control(ControlEventKind::CheckBox, "chkA", "chkA");
  Control(ControlEventKind::CheckBox, "chkB", "chkB");
  Control(ControlEventKind::CheckBox, "chkC", "chkC");
  EXPECT_EQ(Output(), Crlf(std::string(kFrmHead) +
                           "Private Sub chkC_LostFocus()\nCall Recalc()\nIf chkC_Exit() Then\n"
                           "chkC.SetFocus\nExit Sub\nEnd If\nx = 1\nEnd Sub\n"
                           "\nPrivate Sub chkA_LostFocus()\nCall chkA_AfterUpdate\nCall mcrBeep\n"
                           "End Sub\n"
                           // An empty AfterUpdate leaves an empty line in a new procedure.
                           "\nPrivate Sub chkB_LostFocus()\n\nCall Lost()\nEnd Sub\n"));
}

TEST_F(ControlEvents, BoundObjectFrameUpdatesRunOnLosingTheFocus) {
  AddTestForm(ControlBlock("BoundObjectFrame", "olePhoto",
                           {{"BeforeUpdate", "[Event Procedure]"}, {"OnUpdated", "=Refresh()"}}) +
              ControlBlock("BoundObjectFrame", "oleDoc",
                           {{"BeforeUpdate", "=Check()"},
                            {"AfterUpdate", "[Event Procedure]"},
                            {"OnLostFocus", "[Event Procedure]"}}));
  const std::string code =
      "Private Sub olePhoto_Updated(Code As Integer)\nEnd Sub\n"
      "Private Sub oleDoc_LostFocus()\nEnd Sub\n";
  SetCode(code);
  Control(ControlEventKind::BoundObjectFrame, "olePhoto", "olePhoto");
  Control(ControlEventKind::BoundObjectFrame, "oleDoc", "oleDoc");
  EXPECT_EQ(Output(), Crlf(std::string(kFrmHead) +
                           "Private Sub olePhoto_Updated(Code As Integer)\nEnd Sub\n"
                           "Private Sub oleDoc_LostFocus()\nCall Check()\nCall oleDoc_AfterUpdate\n"
                           "End Sub\n"
                           // Updated is written without looking for its header.
                           "\nPrivate Sub olePhoto_Updated(Code As Integer)\nCall Refresh()\n"
                           "End Sub\n"
                           "\nPrivate Sub olePhoto_LostFocus()\nCall olePhoto_BeforeUpdate(0)\n\n"
                           "End Sub\n"));
  EXPECT_TRUE(Rows().empty());
}

TEST_F(ControlEvents, OptionGroupProceduresTakeTheIndexOfTheControlArray) {
  AddTestForm(ControlBlock("OptionGroup", "grpShip",
                           {{"BeforeUpdate", "=Check()"},
                            {"AfterUpdate", "[Event Procedure]"},
                            {"OnEnter", "mcrBeep"},
                            {"OnExit", "[Event Procedure]"}}) +
              ControlBlock("OptionGroup", "grpPay", {{"BeforeUpdate", "[Event Procedure]"}}));
  SetCode("Private Sub grpPay_BeforeUpdate(Cancel As Integer)\nEnd Sub\n");
  Control(ControlEventKind::OptionGroup, "grpShip", "grpShip");
  Control(ControlEventKind::OptionGroup, "grpPay", "grpPay");
  EXPECT_EQ(Output(),
            Crlf(std::string(kFrmHead) +
                 "Private Sub grpPay_Validate(Cancel As Boolean)\nEnd Sub\n"
                 "\nPrivate Sub grpShip_Validate(Index As Integer, Cancel As Boolean)\n"
                 "Call Check()\nEnd Sub\n"
                 "\nPrivate Sub grpShip_Click(Index As Integer)\n"
                 "Call grpShip_AfterUpdate(Index)\nEnd Sub\n"
                 "\nPrivate Sub grpShip_GotFocus(Index As Integer)\nCall mcrBeep\n"
                 "End Sub\n"
                 "\nPrivate Sub grpShip_LostFocus(Index As Integer)\n"
                 "If grpShip_Exit() Then\ngrpShip(Index).SetFocus\nExit Sub\nEnd If\nEnd Sub\n"));
}

TEST_F(ControlEvents, LabelOnTheFormFoldsDoubleClickIntoItsNewClick) {
  AddTestForm(ControlBlock("Label", "lblTitle",
                           {{"OnClick", "=Foo()"}, {"OnDblClick", "[Event Procedure]"}}));
  SetCode("");
  Control(ControlEventKind::Image, "lblTitle", "lblTitle");
  EXPECT_EQ(Added(""),
            Crlf("\nPrivate Sub lblTitle_Click()\nCall Foo()\nCall lblTitle_DblClick\nEnd Sub\n"));
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

TEST_F(ControlEvents, PropertyTheControlDoesNotHaveWritesNothing) {
  // An image has no key events; a value written for one is no property of it.
  AddTestForm(ControlBlock("Image", "imgLogo", {{"OnMouseUp", "=Up()"}}));
  SetCode("");
  Control(ControlEventKind::Image, "imgLogo", "imgLogo");
  EXPECT_EQ(Headers(Added("")),
            std::vector<std::string>{
                "imgLogo_MouseUp(Button As Integer, Shift As Integer, X As Single, Y As Single)"});
}

}  // namespace
}  // namespace morvane::test

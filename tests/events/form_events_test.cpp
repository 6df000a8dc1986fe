// Form event code: the events of a main form and of a subform merged into
// it, Open and Close folded into Load and Unload, and the record events on
// the data control, checked on the whole text of the output file. The
// golden frmEvents shows a main form's procedures standing, Open and an
// expression folded into a new Load, a Close macro in a new Unload, and the
// ADO record and move procedures; these are the other cases.
#include "events/form_events.h"

#include "events/event_harness.h"
#include "platform/text_file.h"

namespace morvane::test {
namespace {

constexpr const char* kSubformControl =
    "        Begin Subform\n            Name =\"sfrmLines\"\n"
    "            SourceObject =\"Form.frmLines\"\n        End\n";

// The main form's code, then the subform's in its marked section.
std::string WithSubform(const std::string& main, const std::string& sub) {
  return main + "'MORVANE Form Code for frmLines\n" + sub + "'MORVANE End Form Code for frmLines\n";
}

class FormEventCode : public EventHarness {
 protected:
  // The main form frmTest, holding the subform control sfrmLines that shows
  // frmLines.
  void Forms(const Properties& main, const Properties& sub = {}) {
    AddTestForm(kSubformControl, main);
    AddForm("frmLines", FormText(sub));
  }
  void Main() { FormEvents("frmTest"); }
  void Sub() { FormEvents("frmLines", "sfrmLines"); }
  std::string File(const std::string& code) const { return Crlf(kFrmHead + code); }
};

TEST_F(FormEventCode, MacroOnAnExistingProcedureSetsItAsideOnAMainFormAndJoinsItOnASubform) {
  Forms({{"OnClick", "mcrBeep"}}, {{"OnClick", "=Sub1()"}});
  SetCode("Private Sub Form_Click()\nx = 1\nEnd Sub\n");
  Main();
  // Access ran the macro, never the module's procedure: that one keeps its
  // code under another name.
  const std::string setAside = "Private Sub Form_Click_NotEvent()\nx = 1\nEnd Sub\n";
  EXPECT_EQ(Output(), File(setAside + "\nPrivate Sub Form_Click()\nCall mcrBeep\nEnd Sub\n"));
  auto rows = Rows();
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0].ReasonID, 11);
  EXPECT_EQ(rows[0].ModuleName, "frmTest");
  EXPECT_EQ(rows[0].CodeLine, "Private Sub Form_Click()");
  EXPECT_EQ(rows[0].LineNumber, 1);
  EXPECT_EQ(rows[0].TranslatedLine, "Private Sub Form_Click_NotEvent()");

  // A subform's event joins the procedure the form already has.
  Sub();
  EXPECT_EQ(Output(),
            File(setAside + "\nPrivate Sub Form_Click()\nCall mcrBeep\nCall Sub1()\nEnd Sub\n"));
  EXPECT_EQ(Rows().size(), 1u);
}

// The events of the main form, or of the subform merged into it, and the
// code as it stood and as it stands after.
struct FoldCase {
  const char* name;
  Properties properties;
  std::string code, result;
  Properties subProperties = {};  // when given, the writers run on the subform
};

const FoldCase kFolds[] = {
    {"OpenProcedureOpensTheExistingLoad",
     {{"OnLoad", "[Event Procedure]"}, {"OnOpen", "[Event Procedure]"}},
     "Private Sub Form_Load()\nx = 1\nEnd Sub\n",
     "Private Sub Form_Load()\nIf Form_Open() Then\nUnload Me\nEnd If\n\nx = 1\nEnd Sub\n"},
    {"LoadMacroAloneHasNoEmptyLine",
     {{"OnLoad", "mcrBeep"}},
     "",
     "\nPrivate Sub Form_Load()\nCall mcrBeep\nEnd Sub\n"},
    {"OpenAheadOfLoadWithAnEmptyLineBetween",
     {{"OnLoad", "mcrBeep"}, {"OnOpen", "=Opening()"}},
     "",
     "\nPrivate Sub Form_Load()\nCall Opening()\n\nCall mcrBeep\nEnd Sub\n"},
    {"OpenAloneMakesTheLoad",
     {{"OnOpen", "[Event Procedure]"}},
     "",
     "\nPrivate Sub Form_Load()\nIf Form_Open() Then\nUnload Me\nEnd If\nEnd Sub\n"},
    {"CloseProcedureAloneMakesTheUnload",
     {{"OnClose", "[Event Procedure]"}},
     "",
     "\nPrivate Sub Form_Unload(Cancel As Integer)\nCall Form_Close\nEnd Sub\n"},
    {"UnloadAheadOfClose",
     {{"OnUnload", "mcrBeep"}, {"OnClose", "=Closing()"}},
     "",
     "\nPrivate Sub Form_Unload(Cancel As Integer)\nCall mcrBeep\nCall Closing()\nEnd Sub\n"},
    {"CloseEndsTheExistingUnload",
     {{"OnUnload", "[Event Procedure]"}, {"OnClose", "[Event Procedure]"}},
     "Private Sub Form_Unload(Cancel As Integer)\nx = 1\nEnd Sub\n",
     "Private Sub Form_Unload(Cancel As Integer)\nx = 1\nCall Form_Close\nEnd Sub\n"},
    {"ResizeAndTimer",
     {{"OnResize", "=Fit()"}, {"OnTimer", "[Event Procedure]"}},
     "",
     "\nPrivate Sub Form_Resize()\nCall Fit()\nEnd Sub\n"
     "\nPrivate Sub Timer1_Timer()\nCall Form_Timer\nEnd Sub\n"},
    // A subform's procedures are renamed and called from the parent's, where
    // the parent has one.
    {"SubformProceduresAreRenamedAndCalled",
     {},
     WithSubform(
         "Private Sub Form_Click()\nx = 1\nEnd Sub\n",
         "Private Sub Form_Click()\ny = 2\nEnd Sub\n"
         "Private Sub Form_MouseDown(Button As Integer, Shift As Integer, X As Single, Y As "
         "Single)\nEnd Sub\n"),
     WithSubform("Private Sub Form_Click()\nx = 1\nCall frmLines_SubForm_Click()\nEnd Sub\n",
                 "Private Sub frmLines_SubForm_Click()\ny = 2\nEnd Sub\n"
                 "Private Sub frmLines_SubForm_MouseDown(Button As Integer, Shift As Integer, "
                 "X As Single, Y As Single)\nEnd Sub\n"),
     {{"OnClick", "[Event Procedure]"}, {"OnMouseDown", "[Event Procedure]"}}},
    {"SubformLoadAndOpenFromTheParentsLoad",
     {{"OnLoad", "[Event Procedure]"}},
     WithSubform("Private Sub Form_Load()\nx = 1\nEnd Sub\n",
                 "Private Sub Form_Load()\nEnd Sub\nPrivate Sub Form_Open()\nEnd Sub\n"),
     WithSubform("Private Sub Form_Load()\nx = 1\nCall frmLines_SubForm_Load()\n"
                 "If frmLines_SubForm_Open() Then\nUnload Me\nEnd If\nEnd Sub\n",
                 "Private Sub frmLines_SubForm_Load()\nEnd Sub\n"
                 "Private Sub frmLines_SubForm_Open()\nEnd Sub\n"),
     {{"OnLoad", "[Event Procedure]"}, {"OnOpen", "[Event Procedure]"}}},
    {"SubformLoadMacroInTheParentsLoad",
     {{"OnOpen", "=Opening()"}},
     WithSubform("Private Sub Form_Load()\nCall Opening()\nEnd Sub\n", ""),
     WithSubform("Private Sub Form_Load()\nCall Opening()\nCall SubOpening()\nCall mcrBeep\n"
                 "End Sub\n",
                 ""),
     {{"OnLoad", "mcrBeep"}, {"OnOpen", "=SubOpening()"}}},
    // With no Unload of its own the subform's Close is called bare.
    {"SubformCloseFromTheParentsUnload",
     {{"OnClose", "=Closing()"}},
     WithSubform("Private Sub Form_Unload(Cancel As Integer)\nCall Closing()\nEnd Sub\n",
                 "Private Sub Form_Close()\nEnd Sub\n"),
     WithSubform("Private Sub Form_Unload(Cancel As Integer)\nCall Closing()\n"
                 "frmLines_SubForm_Close()\nEnd Sub\n",
                 "Private Sub frmLines_SubForm_Close()\nEnd Sub\n"),
     {{"OnClose", "[Event Procedure]"}}},
    {"SubformUnloadAndCloseFromTheParentsUnload",
     {{"OnUnload", "[Event Procedure]"}},
     WithSubform("Private Sub Form_Unload(Cancel As Integer)\nEnd Sub\n",
                 "Private Sub Form_Unload(Cancel As Integer)\nEnd Sub\n"),
     WithSubform("Private Sub Form_Unload(Cancel As Integer)\nCall frmLines_SubForm_Unload(0)\n"
                 "Call mcrBeep\nEnd Sub\n",
                 "Private Sub frmLines_SubForm_Unload(Cancel As Integer)\nEnd Sub\n"),
     {{"OnUnload", "[Event Procedure]"}, {"OnClose", "mcrBeep"}}},
    {"SubformCurrentIsCalledOnMoving",
     {},
     WithSubform("", "Private Sub Form_Current()\nEnd Sub\n"),
     WithSubform("", "Private Sub frmLines_Subform_Current()\nEnd Sub\n") +
         "Private Sub datfrmLines_MoveComplete(ByVal adReason As ADODB.EventReasonEnum, "
         "ByVal pError As ADODB.Error, adStatus As ADODB.EventStatusEnum, ByVal "
         "pRecordset As ADODB.Recordset20)\nCall frmLines_Subform_Current\nEnd sub\n",
     {{"OnCurrent", "[Event Procedure]"}}},
};

TEST_F(FormEventCode, FoldsAndForwards) {
  for (const auto& c : kFolds) {
    SCOPED_TRACE(c.name);
    Forms(c.properties, c.subProperties);
    Reload();
    SetCode(c.code);
    c.subProperties.empty() ? Main() : Sub();
    EXPECT_EQ(Output(), File(c.result));
    EXPECT_TRUE(Rows().empty());
  }
}

constexpr const char* kWillChange =
    "_WillChangeRecord(ByVal adReason As ADODB.EventReasonEnum, ByVal cRecords As Long, adStatus "
    "As ADODB.EventStatusEnum, ByVal pRecordset As ADODB.Recordset)\n";
constexpr const char* kChangeComplete =
    "_RecordChangeComplete(ByVal adReason As ADODB.EventReasonEnum, ByVal cRecords As Long, ByVal "
    "pError As ADODB.Error, adStatus As ADODB.EventStatusEnum, ByVal pRecordset As "
    "ADODB.Recordset)\n";

// Every record event of a subform: renamed procedures in its section and the
// data control's procedures, grouped as ADO and DAO group them.
TEST_F(FormEventCode, SubformRecordEventsUnderAdoAndDao) {
  Forms({}, {{"BeforeInsert", "=BI()"},
             {"OnDelete", "[Event Procedure]"},
             {"BeforeDelConfirm", "mcrBeep"},
             {"BeforeUpdate", "[Event Procedure]"},
             {"AfterInsert", "[Event Procedure]"},
             {"AfterDelConfirm", "=ADC()"},
             {"AfterUpdate", "[Event Procedure]"}});
  const std::string sub =
      "Private Sub Form_Delete(Cancel As Integer)\nEnd Sub\n"
      "Private Sub Form_BeforeUpdate(Cancel As Integer)\nEnd Sub\n"
      "Private Sub Form_AfterInsert()\nEnd Sub\nPrivate Sub Form_AfterUpdate()\nEnd Sub\n";
  const std::string renamed =
      WithSubform("",
                  "Private Sub frmLines_SubForm_Delete(Cancel As Integer)\nEnd Sub\n"
                  "Private Sub frmLines_SubForm_BeforeUpdate(Cancel As Integer)\nEnd Sub\n"
                  "Private Sub frmLines_SubForm_AfterInsert()\nEnd Sub\n"
                  "Private Sub frmLines_SubForm_AfterUpdate()\nEnd Sub\n");

  SetCode(WithSubform("", sub));
  Sub();
  EXPECT_EQ(Output(), File(renamed + "\nPrivate Sub datfrmLines" + kWillChange +
                           "\nSelect Case adReason\n"
                           "Case adRsnAddNew\nCall BI()\n"
                           "Case adRsnDelete\nIf frmLines_SubForm_Delete() Then\n"
                           "adStatus = adStatusCancel\nExit Sub\nEnd If\nCall mcrBeep\n"
                           "Case adRsnUpdate\nIf frmLines_SubForm_BeforeUpdate() Then\n"
                           "adStatus = adStatusCancel\nExit Sub\nEnd If\n"
                           "Case Else\nEnd Select\nEnd Sub\n"
                           "\nPrivate Sub datfrmLines" +
                           kChangeComplete +
                           "\nSelect Case adReason\n"
                           "Case adRsnAddNew\nCall frmLines_SubForm_AfterInsert()\n"
                           "Case adRsnDelete\nCall ADC()\n"
                           "Case adRsnUpdate\nCall frmLines_SubForm_AfterUpdate()\n"
                           "Case Else\nEnd Select\nEnd Sub\n"));

  s_.Options.UseAdo = false;
  SetCode(WithSubform("", sub));
  Sub();
  EXPECT_EQ(Output(),
            File(renamed + "\nPrivate Sub datfrmLines_Validate(Action As Integer, Save As "
                           "Integer)\n\nSelect Case Action\n"
                           "Case vbDataActionAddNew\nCall BI()\n"
                           "Call frmLines_SubForm_AfterInsert()\n"
                           "Case vbDataActionUpdate\nIf frmLines_SubForm_BeforeUpdate() Then\n"
                           "Action = vbDataActionCancel\nExit Sub\nEnd If\n"
                           "Call frmLines_SubForm_AfterUpdate()\n"
                           "Case vbDataActionDelete\nIf frmLines_SubForm_Delete() Then\n"
                           "Action = vbDataActionCancel\nExit Sub\nEnd If\nCall mcrBeep\n"
                           "Call ADC()\nCase Else\nEnd Select\nEnd Sub\n"));
}

TEST_F(FormEventCode, CurrentUnderDaoMakesTheRepositionProcedure) {
  Forms({{"OnCurrent", "[Event Procedure]"}});
  s_.Options.UseAdo = false;
  SetCode("");
  Main();
  // With no empty line ahead.
  EXPECT_EQ(Added(""), Crlf("Private Sub datfrmTest_Reposition()\nCall Form_Current\nEnd sub\n"));
}

TEST_F(FormEventCode, ErrorOfTheDataControlAsksTheFormsErrorProcedure) {
  Forms({{"OnError", "[Event Procedure]"}}, {{"OnError", "[Event Procedure]"}});
  SetCode("");
  Main();
  EXPECT_EQ(Added(""),
            Crlf("\nPrivate Sub datfrmTest_Error(ByVal ErrorNumber As Long, Description As "
                 "String, ByVal Scode As Long, ByVal Source As String, ByVal HelpFile As String, "
                 "ByVal HelpContext As Long, fCancelDisplay As Boolean)\n"
                 "fCancelDisplay = Form_Error(ErrorNumber)\nEnd Sub\n"));

  s_.Options.UseAdo = false;
  SetCode(WithSubform(
      "", "Private Sub Form_Error(DataErr As Integer, Response As Integer)\nEnd Sub\n"));
  Sub();
  EXPECT_EQ(Output(), File(WithSubform("",
                                       "Private Sub frmLines_Subform_Error(DataErr As Integer, "
                                       "Response As Integer)\nEnd Sub\n") +
                           "\nPrivate Sub datfrmLines_Error(DataErr As Integer, Response As "
                           "Integer)\nResponse = frmLines_Subform_Error(DataErr)\nEnd Sub\n"));
}

TEST_F(FormEventCode, NewProceduresFollowTheOrderOfTheEvents) {
  Properties all;
  for (const char* p : {"OnCurrent",   "AfterUpdate", "BeforeInsert", "OnError",      "OnTimer",
                        "OnResize",    "OnClose",     "OnOpen",       "OnDeactivate", "OnActivate",
                        "OnLostFocus", "OnGotFocus",  "OnKeyUp",      "OnKeyPress",   "OnKeyDown",
                        "OnMouseUp",   "OnMouseMove", "OnMouseDown",  "OnDblClick",   "OnClick"})
    all.push_back({p, "mcrBeep"});
  Forms(all);
  SetCode("");
  Main();
  std::vector<std::string> headers;
  for (const auto& line : SplitLines(Added("")))
    if (line.starts_with("Private Sub ")) headers.push_back(line.substr(12, line.find('(') - 12));
  EXPECT_EQ(headers, (std::vector<std::string>{"Form_Click",
                                               "Form_DblClick",
                                               "Form_MouseDown",
                                               "Form_MouseMove",
                                               "Form_MouseUp",
                                               "Form_KeyDown",
                                               "Form_KeyPress",
                                               "Form_KeyUp",
                                               "Form_GotFocus",
                                               "Form_LostFocus",
                                               "Form_Activate",
                                               "Form_Deactivate",
                                               "Form_Load",
                                               "Form_Unload",
                                               "Form_Resize",
                                               "Timer1_Timer",
                                               "datfrmTest_Error",
                                               "datfrmTest_WillChangeRecord",
                                               "datfrmTest_RecordChangeComplete",
                                               "datfrmTest_MoveComplete"}));
}

TEST(ForwardCall, HandsTheParametersOnByName) {
  EXPECT_EQ(ForwardCall("S_SubForm_Click()"), "Call S_SubForm_Click()");
  EXPECT_EQ(ForwardCall("S_SubForm_KeyDown(KeyCode As Integer, Shift As Integer)"),
            "Call S_SubForm_KeyDown(KeyCode, Shift)");
  EXPECT_EQ(ForwardCall("S_Error(ByVal ErrorNumber As Long,  fCancel As Boolean)"),
            "Call S_Error(ErrorNumber, fCancel)");
}

}  // namespace
}  // namespace morvane::test

// Form event code: the events of a main form and of a subform merged into
// it, Open and Close folded into Load and Unload, and the record events on
// the data control, checked on the whole text of the output file.
#include "events/form_events.h"

#include "events/event_harness.h"
#include "platform/line_editor.h"
#include "platform/text_file.h"
#include "session/naming.h"

namespace morvane::test {
namespace {

constexpr const char* kSubformControl =
    "        Begin Subform\n            Name =\"sfrmLines\"\n"
    "            SourceObject =\"Form.frmLines\"\n        End\n";

class FormEventCode : public EventHarness {
 protected:
  // The main form frmTest, holding the subform control sfrmLines that shows
  // frmLines.
  void Forms(const Properties& main, const Properties& sub = {}) {
    AddTestForm(kSubformControl, main);
    AddForm("frmLines", FormText(sub));
  }
  // The main form's code, then the subform's in its marked section.
  static std::string WithSubform(const std::string& main, const std::string& sub) {
    return main + "'MORVANE Form Code for frmLines\n" + sub +
           "'MORVANE End Form Code for frmLines\n";
  }
  void Main() { FormEvents("frmTest"); }
  void Sub() { FormEvents("frmLines", "sfrmLines"); }
  std::string File(const std::string& code) const { return Crlf(kFrmHead + code); }
};

TEST_F(FormEventCode, MainFormEventProcedureStandsAsItIs) {
  Forms({{"OnClick", "[Event Procedure]"}, {"OnMouseDown", "[Event Procedure]"}});
  const std::string code = "Private Sub Form_Click()\nEnd Sub\n";
  SetCode(code);
  Main();
  EXPECT_EQ(Output(), File(code));
}

TEST_F(FormEventCode, SubformProcedureIsRenamedAndCalledFromTheParents) {
  Forms({}, {{"OnClick", "[Event Procedure]"}, {"OnMouseDown", "[Event Procedure]"}});
  SetCode(WithSubform(
      "Private Sub Form_Click()\nx = 1\nEnd Sub\n"
      "Private Sub Form_MouseDown(Button As Integer, Shift As Integer, X As Single, Y As Single)\n"
      "End Sub\n",
      "Private Sub Form_Click()\ny = 2\nEnd Sub\n"
      "Private Sub Form_MouseDown(Button As Integer, Shift As Integer, X As Single, Y As Single)\n"
      "End Sub\n"));
  Sub();
  EXPECT_EQ(Output(),
            File(WithSubform(
                "Private Sub Form_Click()\nx = 1\nCall frmLines_SubForm_Click()\nEnd Sub\n"
                "Private Sub Form_MouseDown(Button As Integer, Shift As Integer, X As Single, Y "
                "As Single)\nCall frmLines_SubForm_MouseDown(Button, Shift, X, Y)\nEnd Sub\n",
                "Private Sub frmLines_SubForm_Click()\ny = 2\nEnd Sub\n"
                "Private Sub frmLines_SubForm_MouseDown(Button As Integer, Shift As Integer, X As "
                "Single, Y As Single)\nEnd Sub\n")));
}

TEST_F(FormEventCode, SubformCallHasNoAnchorWithoutTheParentsProcedure) {
  Forms({}, {{"OnClick", "[Event Procedure]"}});
  SetCode(WithSubform("", "Private Sub Form_Click()\nEnd Sub\n"));
  Sub();
  EXPECT_EQ(Output(), File(WithSubform("", "Private Sub frmLines_SubForm_Click()\nEnd Sub\n")));
}

TEST_F(FormEventCode, MacroOnAnExistingProcedureIsReportedOnAMainFormAndAddedOnASubform) {
  Forms({{"OnClick", "mcrBeep"}}, {{"OnClick", "=Sub1()"}});
  const std::string code = "Private Sub Form_Click()\nx = 1\nEnd Sub\n";
  SetCode(code);
  Main();
  EXPECT_EQ(Output(), File(code));
  auto rows = Rows();
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0].ReasonID, 11);
  EXPECT_EQ(rows[0].ModuleName, "frmTest");
  EXPECT_EQ(rows[0].CodeLine, "Private Sub Form_Click()");
  EXPECT_EQ(rows[0].LineNumber, 1);

  Sub();
  EXPECT_EQ(Output(), File("Private Sub Form_Click()\nx = 1\nCall Sub1()\nEnd Sub\n"));
  EXPECT_EQ(Rows().size(), 1u);
}

TEST_F(FormEventCode, NewPlainProcedureOfAMainForm) {
  Forms({{"OnKeyPress", "mcrNav.Fill"}});
  SetCode("");
  Main();
  EXPECT_EQ(Added(""), Crlf("\nPrivate Sub Form_KeyPress(KeyAscii As Integer)\n"
                            "Set CodeContextObject = Me\nCall mcrNav_Fill\n"
                            "Set CodeContextObject = Nothing\nEnd Sub\n"));
}

// Load and Open of a main form, as the code stood and as it stands after.
struct FoldCase {
  const char* name;
  Properties properties;
  const char* code;
  const char* result;
};

const FoldCase kMainFormFolds[] = {
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
    {"ResizeProcedureStands",
     {{"OnResize", "[Event Procedure]"}},
     "Private Sub Form_Resize()\nEnd Sub\n",
     "Private Sub Form_Resize()\nEnd Sub\n"},
};

TEST_F(FormEventCode, OpenAndCloseFoldIntoLoadAndUnloadOfAMainForm) {
  for (const auto& c : kMainFormFolds) {
    SCOPED_TRACE(c.name);
    Forms(c.properties);
    Reload();
    SetCode(c.code);
    Main();
    EXPECT_EQ(Output(), File(c.result));
  }
}

TEST_F(FormEventCode, MergingSubformForwardsLoadAndOpenFromTheParentsLoad) {
  Forms({{"OnLoad", "[Event Procedure]"}},
        {{"OnLoad", "[Event Procedure]"}, {"OnOpen", "[Event Procedure]"}});
  SetCode(WithSubform("Private Sub Form_Load()\nx = 1\nEnd Sub\n",
                      "Private Sub Form_Load()\nEnd Sub\nPrivate Sub Form_Open()\nEnd Sub\n"));
  Sub();
  EXPECT_EQ(Output(), File(WithSubform("Private Sub Form_Load()\nx = 1\n"
                                       "Call frmLines_SubForm_Load()\n"
                                       "If frmLines_SubForm_Open() Then\nUnload Me\nEnd If\n"
                                       "End Sub\n",
                                       "Private Sub frmLines_SubForm_Load()\nEnd Sub\n"
                                       "Private Sub frmLines_SubForm_Open()\nEnd Sub\n")));
}

TEST_F(FormEventCode, MergingSubformAddsItsLoadMacroToTheParentsLoad) {
  Forms({{"OnOpen", "=Opening()"}}, {{"OnLoad", "mcrBeep"}, {"OnOpen", "=SubOpening()"}});
  SetCode(WithSubform("Private Sub Form_Load()\nCall Opening()\nEnd Sub\n", ""));
  Sub();
  EXPECT_EQ(Output(), File(WithSubform("Private Sub Form_Load()\nCall Opening()\n"
                                       "Call SubOpening()\nCall mcrBeep\nEnd Sub\n",
                                       "")));
}

TEST_F(FormEventCode, MergingSubformForwardsUnloadAndClose) {
  Forms({{"OnClose", "=Closing()"}}, {{"OnClose", "[Event Procedure]"}});
  SetCode(WithSubform("Private Sub Form_Unload(Cancel As Integer)\nCall Closing()\nEnd Sub\n",
                      "Private Sub Form_Close()\nEnd Sub\n"));
  Sub();
  // With no Unload of its own the subform's Close is called bare.
  EXPECT_EQ(Output(),
            File(WithSubform("Private Sub Form_Unload(Cancel As Integer)\nCall Closing()\n"
                             "frmLines_SubForm_Close()\nEnd Sub\n",
                             "Private Sub frmLines_SubForm_Close()\nEnd Sub\n")));

  Forms({{"OnUnload", "[Event Procedure]"}},
        {{"OnUnload", "[Event Procedure]"}, {"OnClose", "mcrBeep"}});
  Reload();
  SetCode(WithSubform("Private Sub Form_Unload(Cancel As Integer)\nEnd Sub\n",
                      "Private Sub Form_Unload(Cancel As Integer)\nEnd Sub\n"));
  Sub();
  EXPECT_EQ(Output(),
            File(WithSubform("Private Sub Form_Unload(Cancel As Integer)\n"
                             "Call frmLines_SubForm_Unload(0)\nCall mcrBeep\nEnd Sub\n",
                             "Private Sub frmLines_SubForm_Unload(Cancel As Integer)\nEnd Sub\n")));
}

constexpr const char* kWillChange =
    "_WillChangeRecord(ByVal adReason As ADODB.EventReasonEnum, ByVal cRecords As Long, adStatus "
    "As ADODB.EventStatusEnum, ByVal pRecordset As ADODB.Recordset)\n";
constexpr const char* kChangeComplete =
    "_RecordChangeComplete(ByVal adReason As ADODB.EventReasonEnum, ByVal cRecords As Long, ByVal "
    "pError As ADODB.Error, adStatus As ADODB.EventStatusEnum, ByVal pRecordset As "
    "ADODB.Recordset)\n";

TEST_F(FormEventCode, AfterUpdateAloneUnderAdoCompletesTheUpdate) {
  Forms({{"AfterUpdate", "[Event Procedure]"}});
  SetCode("");
  Main();
  EXPECT_EQ(Added(""), Crlf(std::string("\nPrivate Sub datfrmTest") + kChangeComplete +
                            "\nSelect Case adReason\nCase adRsnUpdate\nCall Form_AfterUpdate\n"
                            "Case Else\nEnd Select\nEnd Sub\n"));
}

TEST_F(FormEventCode, BeforeInsertAloneUnderDaoCancelsTheAddition) {
  Forms({{"BeforeInsert", "[Event Procedure]"}});
  s_.Options.UseAdo = false;
  SetCode("");
  Main();
  EXPECT_EQ(Added(""), Crlf("\nPrivate Sub datfrmTest_Validate(Action As Integer, Save As "
                            "Integer)\n\nSelect Case Action\nCase vbDataActionAddNew\n"
                            "If Form_BeforeInsert() Then\nAction = vbDataActionCancel\nExit Sub\n"
                            "End If\nCase Else\nEnd Select\nEnd Sub\n"));
}

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

TEST_F(FormEventCode, CurrentJoinsTheMoveProcedureTheDataControlHas) {
  Forms({{"OnCurrent", "[Event Procedure]"}});
  SetCode("");
  AddDataCtlEntry2(s_.Form().Text, "datfrmTest", "datfrmTest.Caption = \"x\"");
  const std::string before = Output();
  Main();
  const std::string header =
      "Private Sub datfrmTest_MoveComplete(ByVal adReason As ADODB.EventReasonEnum, ByVal pError "
      "As ADODB.Error, adStatus As ADODB.EventStatusEnum, ByVal pRecordset As "
      "ADODB.Recordset20)";
  EXPECT_EQ(IsDuplicateLine(s_.Form().Text, header, 0), 1);
  EXPECT_EQ(Output(), ReplaceAllText(before, "End Sub\r\n", "Call Form_Current\r\nEnd Sub\r\n"));

  // Without one, the procedure is made, with no empty line ahead.
  s_.Options.UseAdo = false;
  SetCode("");
  Main();
  EXPECT_EQ(Added(""), Crlf("Private Sub datfrmTest_Reposition()\nCall Form_Current\nEnd sub\n"));
}

TEST_F(FormEventCode, SubformCurrentIsRenamedAndCalledOnMoving) {
  Forms({}, {{"OnCurrent", "[Event Procedure]"}});
  SetCode(WithSubform("", "Private Sub Form_Current()\nEnd Sub\n"));
  Sub();
  EXPECT_EQ(Output(),
            File(WithSubform("", "Private Sub frmLines_Subform_Current()\nEnd Sub\n") +
                 "Private Sub datfrmLines_MoveComplete(ByVal adReason As ADODB.EventReasonEnum, "
                 "ByVal pError As ADODB.Error, adStatus As ADODB.EventStatusEnum, ByVal "
                 "pRecordset As ADODB.Recordset20)\nCall frmLines_Subform_Current\nEnd sub\n"));
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

// The records of a hint file reach the writers through the hint processor,
// which also gives the data control's procedure its final recordset type.
TEST_F(FormEventCode, HintRecordsRunTheWritersOnTheFormsFile) {
  AddTestForm(ControlBlock("CommandButton", "cmd Go", {{"OnClick", "=Go()"}}),
              {{"OnCurrent", "=Moved()"}});
  SetCode("");
  s_.Form().Hints = {FormCodeHint{"frmTest", ""},
                     Hint(ControlEventKind::Button, "frmTest", "cmd Go", "cmd_Go")};
  ProcessHints(s_, "frmTest", Actions());
  EXPECT_EQ(Added(""),
            Crlf("Private Sub datfrmTest_MoveComplete(ByVal adReason As ADODB.EventReasonEnum, "
                 "ByVal pError As ADODB.Error, adStatus As ADODB.EventStatusEnum, ByVal "
                 "pRecordset As ADODB.Recordset)\nCall Moved()\nEnd sub\n"
                 "\nPrivate Sub cmd_Go_Click()\nCall Go()\nEnd Sub\n"));
}

}  // namespace
}  // namespace morvane::test

// List box and combo box event code: where Click, AfterUpdate, BeforeUpdate,
// DblClick and NotInList go for each kind of Visual Basic list. The cases the
// list golden runs show (a Sheridan list's own AfterUpdate, AfterUpdate ahead
// of an existing Click, a Sheridan combo's NotInList on leaving) are left to
// them.
#include "events/event_harness.h"

namespace morvane::test {
namespace {

struct ListCase {
  const char* name;
  int listType;  // ListboxType, or ComboboxType for a combo box
  int comboKind;
  const char* vbName;
  Properties properties;
  const char* code;    // the module's code ahead of the writer
  const char* result;  // the code afterwards
};

const ListCase kListBoxCases[] = {
    {"AfterUpdateRunsInANewClick",
     1,
     0,
     "lst",
     {{"AfterUpdate", "=AU()"}},
     "",
     "\nPrivate Sub lst_Click()\nCall AU()\nEnd Sub\n"},
    {"ListViewHasNoPlaceForAfterUpdate", 5, 0, "lst", {{"AfterUpdate", "=AU()"}}, "", ""},
    {"AfterUpdateAheadOfClick",
     1,
     0,
     "lst",
     {{"OnClick", "=C()"}, {"AfterUpdate", "=AU()"}},
     "",
     "\nPrivate Sub lst_Click()\nCall AU()\nCall C()\nEnd Sub\n"},
    {"SheridanClickThenAfterUpdate",
     3,
     0,
     "lst",
     {{"OnClick", "=C()"}, {"AfterUpdate", "=AU()"}},
     "",
     "\nPrivate Sub lst_Click()\nCall C()\nEnd Sub\n"
     "\nPrivate Sub lst_AfterUpdate(RtnDispErrMsg As Integer)\nCall AU()\nEnd Sub\n"},
    {"ListViewClickTakesAfterUpdate",
     5,
     0,
     "lst",
     {{"OnClick", "=C()"}, {"AfterUpdate", "=AU()"}},
     "",
     "\nPrivate Sub lst_Click()\nCall AU()\nCall C()\nEnd Sub\n"},
    {"RenamedClickTakesAfterUpdate",
     1,
     0,
     "lstB",
     {{"OnClick", "[Event Procedure]"}, {"AfterUpdate", "=AU()"}},
     "Private Sub lst_Click()\nx = 1\nEnd Sub\n",
     "Private Sub lstB_Click()\nCall AU()\nx = 1\nEnd Sub\n"},
    {"SheridanAfterUpdateProcedureTakesItsSignature",
     2,
     0,
     "lst",
     {{"AfterUpdate", "[Event Procedure]"}, {"BeforeUpdate", "[Event Procedure]"}},
     "Sub lst_AfterUpdate()\nEnd Sub\nPrivate Sub lst_BeforeUpdate(Cancel As Integer)\nEnd Sub\n",
     "Sub lst_AfterUpdate(RtnDispErrMsg As Integer)\nEnd Sub\n"
     "Private Sub lst_BeforeUpdate(Cancel As Integer)\nEnd Sub\n"},
    {"BeforeUpdateAloneMakesAnEmptyClickAndValidates",
     1,
     0,
     "lst",
     {{"BeforeUpdate", "=BU()"}},
     "",
     "\nPrivate Sub lst_Click()\nEnd Sub\n"
     "\nPrivate Sub lst_Validate(Cancel As Boolean)\nCall BU()\nEnd Sub\n"},
    {"SheridanKeepsBeforeUpdateAndDoesNotValidate",
     2,
     0,
     "lst",
     {{"BeforeUpdate", "=BU()"}},
     "",
     "\nPrivate Sub lst_BeforeUpdate(Cancel As Integer)\nCall BU()\nEnd Sub\n"},
    {"DoubleClickStaysAnEventOfItsOwn",
     1,
     0,
     "lst",
     {{"OnDblClick", "mcrBeep"}},
     "",
     "\nPrivate Sub lst_DblClick()\nCall mcrBeep\nEnd Sub\n"},
};

const ListCase kComboBoxCases[] = {
    {"AfterUpdateAndDoubleClickGoIntoClick",
     4,
     3,
     "cbo",
     {{"AfterUpdate", "[Event Procedure]"}, {"OnDblClick", "=D()"}, {"OnChange", "=Ch()"}},
     "",
     "\nPrivate Sub cbo_Click()\nCall cbo_AfterUpdate\nCall D()\nEnd Sub\n"
     "\nPrivate Sub cbo_Change()\nCall Ch()\nEnd Sub\n"},
    {"ExistingClickOpensWithAfterUpdateAndEndsWithDoubleClick",
     4,
     3,
     "cbo",
     {{"OnClick", "[Event Procedure]"},
      {"AfterUpdate", "=AU()"},
      {"OnDblClick", "[Event Procedure]"}},
     "Private Sub cbo_Click()\nx = 1\nEnd Sub\n",
     "Private Sub cbo_Click()\nCall AU()\nx = 1\nCall cbo_DblClick\nEnd Sub\n"},
    {"RenamedClickTakesTheDoubleClick",
     4,
     3,
     "cboB",
     {{"OnClick", "[Event Procedure]"}, {"OnDblClick", "=D()"}},
     "Private Sub cbo_Click()\nx = 1\nEnd Sub\n",
     "Private Sub cboB_Click()\nx = 1\nCall D()\nEnd Sub\n"},
    {"NewClickOfTheTwoColumnComboTakesTheArea",
     4,
     4,
     "cbo",
     {{"OnClick", "=C()"}},
     "",
     "\nPrivate Sub cbo_Click(Area as Integer)\n\nCall C()\nEnd Sub\n"},
    {"TwoColumnComboKeepsItsClickAndDoubleClick",
     4,
     4,
     "cbo",
     {{"OnClick", "[Event Procedure]"}, {"OnDblClick", "[Event Procedure]"}},
     "Private Sub cbo_Click()\nEnd Sub\nPrivate Sub cbo_DblClick()\nEnd Sub\n",
     "Private Sub cbo_Click(Area as Integer)\nEnd Sub\n"
     "Private Sub cbo_DblClick(Area as Integer)\nEnd Sub\n"},
    {"FormsComboHasItsOwnDoubleClickAndKeyCodes",
     4,
     5,
     "cbo",
     {{"OnDblClick", "=D()"}, {"OnKeyPress", "mcrBeep"}},
     "",
     "\nPrivate Sub cbo_DblClick(Cancel As MSForms.ReturnBoolean)\nCall D()\nEnd Sub\n"
     "\nPrivate Sub cbo_KeyPress(KeyAscii As MSForms.ReturnInteger)\nCall mcrBeep\nEnd Sub\n"},
    {"FormsComboTakesTheModulesKeyAndDoubleClickProceduresWithItsSignatures",
     4,
     5,
     "cbo",
     {{"OnDblClick", "[Event Procedure]"}, {"OnKeyDown", "[Event Procedure]"}},
     "Private Sub cbo_DblClick(Cancel As Integer)\nEnd Sub\n"
     "Private Sub cbo_KeyDown(KeyCode As Integer, Shift As Integer)\nEnd Sub\n",
     "Private Sub cbo_DblClick(Cancel As MSForms.ReturnBoolean)\nEnd Sub\n"
     "Private Sub cbo_KeyDown(KeyCode As MSForms.ReturnInteger, Shift As Integer)\nEnd Sub\n"},
    {"OtherCombosDropNotInList", 4, 3, "cbo", {{"OnNotInList", "[Event Procedure]"}}, "", ""},
    {"NotInListStandsAboveTheExitLines",
     3,
     2,
     "cbo",
     {{"OnNotInList", "=NotIn()"}, {"OnExit", "=Ex()"}, {"OnLostFocus", "[Event Procedure]"}},
     "Private Sub cbo_LostFocus()\nx = 1\nEnd Sub\n",
     "Private Sub cbo_LostFocus()\nIf Not cbo.IsItemInList Then\nCall NotIn()\nEnd If\n"
     "Call Ex()\nx = 1\nEnd Sub\n"},
};

// Each case runs on a form that holds its one control, whose Access name is
// "lst" or "cbo".
class ListEvents : public EventHarness {
 protected:
  void Check(const ListCase& c, const std::string& type, const std::string& kind,
             const std::string& accessName) {
    SCOPED_TRACE(c.name);
    AddTestForm(ControlBlock(type, accessName, c.properties));
    Reload();
    SetCode(c.code);
    if (kind == "ListBox")
      s_.Options.ListboxType = c.listType;
    else
      s_.Options.ComboboxType = c.listType;
    Control(kind, accessName, c.vbName, c.comboKind);
    EXPECT_EQ(Output(), Crlf(std::string(kFrmHead) + c.result));
    EXPECT_TRUE(Rows().empty());
  }
};

TEST_F(ListEvents, ListBoxRulesPerListKind) {
  for (const auto& c : kListBoxCases) Check(c, "ListBox", "ListBox", "lst");
}

TEST_F(ListEvents, ComboBoxRulesPerComboKind) {
  for (const auto& c : kComboBoxCases) Check(c, "ComboBox", "ComboBox", "cbo");
}

}  // namespace
}  // namespace morvane::test

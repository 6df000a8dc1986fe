// A source tree of forms and macros in a temporary directory, the form's
// output file with its translated code, and the event writers run on them
// as the hint processor runs them. Shared by the control and form event
// tests.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "design/design_store.h"
#include "events/event_writer.h"
#include "platform/source_tree.h"
#include "platform/support_db.h"
#include "session/conversion_session.h"
#include "session/hint_processor.h"
#include "support/temp_dir.h"

namespace morvane::test {

using Properties = std::vector<std::pair<std::string, std::string>>;

// Property lines of a design block; values are written quoted, as Access
// writes event properties.
inline std::string PropertyLines(const Properties& properties) {
  std::string out;
  for (const auto& [key, value] : properties) {
    std::string quoted;
    for (char c : value) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
    out += "            " + key + " =\"" + quoted + "\"\n";
  }
  return out;
}

inline std::string ControlBlock(const std::string& type, const std::string& name,
                                const Properties& properties = {}) {
  return "        Begin " + type + "\n            Name =\"" + name + "\"\n" +
         PropertyLines(properties) + "        End\n";
}

// A form of one detail section holding `controls`.
inline std::string FormText(const Properties& formProperties, const std::string& controls = "") {
  return "Version =20\nVersionRequired =20\nBegin Form\n    Width =6000\n" +
         PropertyLines(formProperties) +
         "    Begin Section\n        Height =3000\n        Name =\"Detail\"\n        Begin\n" +
         controls + "        End\n    End\nEnd\n";
}

// A macro's saved text: rows of actions, "Begin"/"End" pairs.
inline std::string MacroRow(const std::string& action, const std::string& argument = "") {
  std::string row = "Begin\n    Action =\"" + action + "\"\n";
  if (!argument.empty()) row += "    Argument =\"" + argument + "\"\n";
  return row + "End\n";
}
inline std::string MacroName(const std::string& name) {
  return "Begin\n    MacroName =\"" + name + "\"\nEnd\n";
}
inline constexpr const char* kMacroSeparator = "Begin\nEnd\n";

// The designer part of the output file ahead of the code.
inline constexpr const char* kFrmHead =
    "VERSION 5.00\nBegin VB.Form frmTest\nEnd\nAttribute VB_Name = \"frmTest\"\n";

class EventHarness : public ::testing::Test {
 protected:
  EventHarness() {
    std::filesystem::create_directories(dir_ / "src" / "forms");
    std::filesystem::create_directories(dir_ / "out");
    s_.OutputPath = (dir_ / "out").string() + "/";
    // A macro group whose first macro sets a value on the form, and a plain
    // macro that only beeps.
    AddMacro("mcrNav", MacroName("Fill") + MacroRow("SetValue", "[Total]") + kMacroSeparator +
                           MacroName("Done") + MacroRow("Beep") + kMacroSeparator);
    AddMacro("mcrBeep", MacroRow("Beep"));
  }

  void AddForm(const std::string& name, const std::string& text) {
    WriteFile(dir_ / "src" / "forms" / (name + ".txt"), Crlf(text));
  }
  void AddMacro(const std::string& name, const std::string& text) {
    WriteFile(dir_ / "src" / "macros" / (name + ".txt"),
              Crlf("Version =196611\nColumnsShown =0\n" + text));
  }
  // The form frmTest holding `controls`.
  void AddTestForm(const std::string& controls, const Properties& formProperties = {}) {
    AddForm("frmTest", FormText(formProperties, controls));
  }
  // The output file: the designer part, then `code` (lines with "\n").
  void SetCode(const std::string& code) {
    s_.Form().Text = TextDocument::FromBytes(Crlf(kFrmHead + code));
  }
  std::string Output() const { return s_.Form().Text.Bytes(); }
  // What the writers added behind the code the test set.
  std::string Added(const std::string& code) const {
    const std::string before = Crlf(kFrmHead + code);
    const std::string now = Output();
    if (now.compare(0, before.size(), before) != 0) return "<changed above the end>\n" + now;
    return now.substr(before.size());
  }

  EventHintActions& Actions() {
    if (!actions_) {
      std::string err;
      tree_ = SourceTree::Open(dir_ / "src", "", &err);
      EXPECT_TRUE(tree_) << err;
      store_ = std::make_unique<DesignStore>(*tree_);
      if (!db_) db_ = SupportDatabase::Open(dir_ / "out" / "morvane.db", MORVANE_DATA_DIR, &err);
      EXPECT_TRUE(db_) << err;
      s_.AccessApp = tree_.get();
      s_.SupportDb = db_.get();
      actions_ = std::make_unique<EventHintActions>(*store_);
    }
    return *actions_;
  }

  // Reads the source tree again on the next use, after a test rewrote it.
  void Reload() {
    actions_.reset();
    store_.reset();
    tree_.reset();
  }

  // The control record of `kind` for a control of frmTest.
  void Control(ControlEventKind kind, const std::string& accessName, const std::string& vbName,
               int comboKind = 0) {
    s_.Form().CurrentControlName = vbName;
    Actions().ControlEvents(s_, "frmTest", Hint(kind, "frmTest", accessName, vbName, comboKind));
  }
  // The same by the family's name ("Button", "ListBox" ...).
  void Control(const std::string& kind, const std::string& accessName, const std::string& vbName,
               int comboKind = 0) {
    for (int k = 0; k <= static_cast<int>(ControlEventKind::BoundObjectFrame); ++k)
      if (kind == ControlEventKindName(static_cast<ControlEventKind>(k)))
        return Control(static_cast<ControlEventKind>(k), accessName, vbName, comboKind);
    ADD_FAILURE() << "no event writer family " << kind;
  }
  static ControlCodeHint Hint(ControlEventKind kind, const std::string& form,
                              const std::string& accessName, const std::string& vbName,
                              int comboKind = 0, const std::string& subformControl = "") {
    ControlCodeHint hint;
    hint.Kind = kind;
    hint.FormName = form;
    hint.AccessName = accessName;
    hint.VbName = vbName;
    hint.ComboKind = comboKind;
    hint.SubformControl = subformControl;
    return hint;
  }
  void FormEvents(const std::string& formName, const std::string& subformControl = "") {
    Actions().FormEvents(s_, formName, "frmTest", subformControl);
  }
  std::vector<ReportOutputRow> Rows() {
    return db_ ? db_->ReportOutput() : std::vector<ReportOutputRow>{};
  }

  TempDir dir_;
  ConversionSession s_;
  std::unique_ptr<SourceTree> tree_;
  std::unique_ptr<DesignStore> store_;
  std::unique_ptr<SupportDatabase> db_;
  std::unique_ptr<EventHintActions> actions_;
};

}  // namespace morvane::test

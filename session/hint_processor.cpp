// Writing hint records and processing a form's hint file.
#include "session/hint_processor.h"

#include <cstdlib>
#include <filesystem>
#include <string_view>

#include "platform/line_editor.h"
#include "platform/support_db.h"
#include "platform/text_file.h"
#include "session/conversion_session.h"
#include "session/naming.h"
#include "session/strings.h"
#include "session/user_interface.h"

namespace morvane {

namespace fs = std::filesystem;

namespace {

enum class Record {
  AddDataCtlEntry,
  AddListboxEntry,
  AddComboboxEntry,
  ControlCode,
  ComboBoxCode,
  OutputCode,
  AddToReport,
  FormCode,
  AddDataMove,
  CForm,
  DBGrid,
  FLS,
  CtlCounts,
  TooManyControls,
  FormImage,
  LabelCaptionFromCode,
  RenameCFormProgID,
};

struct RecordKind {
  std::string_view keyword;
  int fields;
  Record record;
  std::string_view controlKind;  // the event writer of a "...Code" record
};

// The keyword alone tells how many field lines follow it.
constexpr RecordKind kRecords[] = {
    {"AddDataCtlEntry", 2, Record::AddDataCtlEntry, ""},
    {"AddListboxEntry", 5, Record::AddListboxEntry, ""},
    {"ListBoxCode", 4, Record::ControlCode, "ListBox"},
    {"AddComboboxEntry", 5, Record::AddComboboxEntry, ""},
    {"ComboBoxCode", 5, Record::ComboBoxCode, "ComboBox"},
    {"OutputCode", 2, Record::OutputCode, ""},
    {"AddToReport", 6, Record::AddToReport, ""},
    {"FormCode", 2, Record::FormCode, ""},
    {"ImageCode", 4, Record::ControlCode, "Image"},
    {"ButtonCode", 4, Record::ControlCode, "Button"},
    {"CheckBoxCode", 4, Record::ControlCode, "CheckBox"},
    {"OptionGroupCode", 4, Record::ControlCode, "OptionGroup"},
    {"TextBoxCode", 4, Record::ControlCode, "TextBox"},
    {"BoundObjectFrameCode", 4, Record::ControlCode, "BoundObjectFrame"},
    {"AddDataMove", 2, Record::AddDataMove, ""},
    {"CForm", 2, Record::CForm, ""},
    {"DBGrid", 1, Record::DBGrid, ""},
    {"FLS", 1, Record::FLS, ""},
    {"CtlCounts", 2, Record::CtlCounts, ""},
    {"TooManyControls", 1, Record::TooManyControls, ""},
    {"FormImage", 2, Record::FormImage, ""},
    {"LabelCaptionFromCode", 2, Record::LabelCaptionFromCode, ""},
    {"RenameCFormProgID", 2, Record::RenameCFormProgID, ""},
};

constexpr bool KeywordsAreDistinct() {
  for (size_t i = 0; i < std::size(kRecords); ++i)
    for (size_t j = i + 1; j < std::size(kRecords); ++j)
      if (kRecords[i].keyword == kRecords[j].keyword) return false;
  return true;
}
static_assert(KeywordsAreDistinct(), "each record kind has a keyword of its own");

const RecordKind* FindRecord(const std::string& line) {
  for (const auto& r : kRecords)
    if (r.keyword == line) return &r;  // keywords compare case-sensitively
  return nullptr;
}

long Number(const std::string& field) { return std::strtol(field.c_str(), nullptr, 10); }
bool Flag(const std::string& field) { return field == "True"; }

void OpenSubformOnce(ConversionSession& s, HintActions& actions, const std::string& name) {
  for (const auto& open : s.OpenedSubforms)
    if (open == name) return;
  actions.OpenSubform(s, name);
  if (s.OpenedSubforms.size() == 1 && s.OpenedSubforms[0].empty())
    s.OpenedSubforms[0] = name;
  else
    s.OpenedSubforms.push_back(name);
}

void CloseOpenedSubforms(ConversionSession& s, HintActions& actions) {
  for (const auto& name : s.OpenedSubforms)
    if (!name.empty()) actions.CloseSubform(s, name);
}

// The data control's caption refresh: a function that moves the recordset
// once, so that the caption shows the first record.
void AddDataMove(ConversionSession& s, const std::string& dataControl) {
  const std::string header = "Private Function InitialDataCtlCaptions()";
  if (IsDuplicateLine(s.CurrentFile, header, 0) < 1) {
    AppendFileBytes(s.CurrentFile,
                    JoinCrLf({header, "On Error Resume Next", dataControl + ".Recordset.movenext",
                              dataControl + ".Recordset.moveFirst", "End Function"}),
                    nullptr);
    s.InitCalls[2] = true;
  } else {
    InsertLine(s.CurrentFile, header, dataControl + ".Recordset.movenext", 1);
    InsertLine(s.CurrentFile, header, dataControl + ".Recordset.moveFirst", 1);
  }
}

// The form text is complete: names that were long while it was built take
// their final spelling.
void FinishFormText(ConversionSession& s) {
  const std::string copy = s.CurrentFile + "1";
  std::error_code ec;
  fs::rename(s.CurrentFile, copy, ec);
  if (ec) return;
  std::vector<std::string> lines;
  if (ReadTextLines(copy, &lines, nullptr)) {
    for (auto& line : lines)
      for (size_t pos; (pos = line.find("ADODB.Recordset20")) != std::string::npos;)
        line.erase(pos + 15, 2);
    WriteTextLines(s.CurrentFile, lines, nullptr);
  }
  fs::remove(copy, ec);
}

void Act(ConversionSession& s, HintActions& actions, const std::string& hintForm,
         const RecordKind& kind, const std::vector<std::string>& f) {
  switch (kind.record) {
    case Record::AddDataCtlEntry:
      if (s.UseAdo)
        AddDataCtlEntry2(s.CurrentFile, f[0], f[1]);
      else
        AddDataCtlEntry(s.CurrentFile, f[0], f[1]);
      break;
    case Record::AddListboxEntry:
      s.PlainListControl = Flag(f[4]);
      actions.WriteListBoxInit(s, f[1], f[2], Flag(f[3]));
      break;
    case Record::AddComboboxEntry:
      s.PlainListControl = Flag(f[4]);
      actions.WriteComboBoxInit(s, f[1], f[2], Flag(f[3]));
      break;
    case Record::ControlCode:
    case Record::ComboBoxCode: {
      ControlHint c{f[0], f[1], f[2], 0, f[3]};
      if (kind.record == Record::ComboBoxCode) {
        c.ComboKind = static_cast<int>(Number(f[3]));
        c.SubformControl = f[4];
      }
      s.CurrentControlName = c.VbName;
      if (c.FormName != hintForm) OpenSubformOnce(s, actions, c.FormName);
      actions.ControlEvents(s, std::string(kind.controlKind), hintForm, c);
      break;
    }
    case Record::OutputCode:
      OpenSubformOnce(s, actions, f[0]);
      actions.ExportModuleText(s, f[0], Flag(f[1]) ? 1 : 2);
      break;
    case Record::AddToReport:
      if (s.SupportDb)
        s.SupportDb->AddReportOutput(
            {f[0], Number(f[1]), f[2], static_cast<int>(Number(f[3])), f[4], f[5]});
      break;
    case Record::FormCode:
      actions.FormEvents(s, f[0], hintForm, f[1]);
      break;
    case Record::AddDataMove:
      AddDataMove(s, f[1]);
      break;
    case Record::CForm: {
      std::string shown = actions.ConvertContinuousForm(s, f[0], f[1]);
      if (!shown.empty()) ProcessHints(s, shown, actions);
      break;
    }
    case Record::DBGrid:
      if (s.DatasheetForms.empty() || s.DatasheetForms[0].empty())
        s.DatasheetForms.assign(1, f[0]);
      else
        s.DatasheetForms.push_back(f[0]);
      break;
    case Record::FLS:
      s.FormLoadCode += "\r\n" + f[0];
      break;
    case Record::CtlCounts:
      s.ControlCount = static_cast<int>(Number(f[0]));
      s.PartialControlCount = static_cast<int>(Number(f[1]));
      break;
    case Record::TooManyControls:
      s.FormFailed = actions.ReduceControlCount(s, hintForm);
      break;
    case Record::FormImage:
      if (Number(f[0]) == 1) s.FormPictureStretched = true;
      if (Flag(f[1])) s.FormPictureTiled = true;
      break;
    case Record::LabelCaptionFromCode:
      s.LabelCaptionCode += "\r\nMe." + f[0] + ".Caption = \"" + f[1] + "\"";
      break;
    case Record::RenameCFormProgID: {
      const std::string prefix = "Name = \"" + SafeName(s.ProjectName) + "_CF.";
      ChangeLine2(s.CurrentFile, prefix + f[0] + "\"", prefix + f[1] + "\"");
      break;
    }
  }
}

}  // namespace

void AddHint(ConversionSession& s, std::initializer_list<std::string> keywordAndFields) {
  for (const auto& field : keywordAndFields) s.HintText += field + "\r\n";
}

void ProcessHints(ConversionSession& s, const std::string& formName, HintActions& actions) {
  s.OpenedSubforms.assign(1, "");
  const std::string hintFile = s.OutputPath + SafeName(formName) + ".hnt";
  std::vector<std::string> lines;
  if (!ReadTextLines(hintFile, &lines, nullptr)) return;
  for (size_t i = 0; i < lines.size(); ++i) {
    const RecordKind* kind = FindRecord(lines[i]);
    if (!kind) continue;  // a line of no record, such as a control's name ahead of a record
    std::vector<std::string> fields;
    for (int k = 0; k < kind->fields; ++k)
      fields.push_back(i + 1 < lines.size() ? lines[++i] : std::string());
    Act(s, actions, formName, *kind, fields);
  }
  std::error_code ec;
  fs::remove(hintFile, ec);
  FinishFormText(s);
  CloseOpenedSubforms(s, actions);
}

void HintActions::NotAvailable(ConversionSession& s, const std::string& object,
                               const std::string& what) {
  if (s.SupportDb) s.SupportDb->AddRunNote(object, what + " is not available in this version");
}

void HintActions::ControlEvents(ConversionSession& s, const std::string& kind, const std::string&,
                                const ControlHint& control) {
  NotAvailable(s, control.FormName + "." + control.AccessName, kind + " event code");
}

void HintActions::FormEvents(ConversionSession& s, const std::string& formName, const std::string&,
                             const std::string&) {
  NotAvailable(s, formName, "Form event code");
}

void HintActions::WriteListBoxInit(ConversionSession& s, const std::string&,
                                   const std::string& controlName, bool) {
  NotAvailable(s, controlName, "List box filling");
}

void HintActions::WriteComboBoxInit(ConversionSession& s, const std::string&,
                                    const std::string& controlName, bool) {
  NotAvailable(s, controlName, "Combo box filling");
}

void HintActions::ExportModuleText(ConversionSession& s, const std::string& name, int) {
  NotAvailable(s, name, "The subform's code");
}

std::string HintActions::ConvertContinuousForm(ConversionSession& s, const std::string& formName,
                                               const std::string& controlName) {
  NotAvailable(s, formName + "." + controlName, "Continuous subform conversion");
  return "";
}

// Turning labels into control arrays is not built yet, so a form over the
// limit is left out of the project, with the message that says so.
bool HintActions::ReduceControlCount(ConversionSession& s, const std::string& formName) {
  const std::string text =
      FormatText(kMsgTooManyControls, {formName, std::to_string(s.ControlCount)});
  if (s.Ui) s.Ui->ShowMessage(text, MessageIcon::Stop);
  if (s.SupportDb) s.SupportDb->AddRunNote(formName, text);
  return true;
}

void HintActions::OpenSubform(ConversionSession&, const std::string&) {}
void HintActions::CloseSubform(ConversionSession&, const std::string&) {}

}  // namespace morvane

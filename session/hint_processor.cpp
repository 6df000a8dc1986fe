// Adding hint records and acting on them.
#include "session/hint_processor.h"

#include <type_traits>

#include "platform/line_editor.h"
#include "platform/support_db.h"
#include "platform/text_file.h"
#include "session/conversion_session.h"
#include "session/naming.h"
#include "session/strings.h"
#include "session/subform_code.h"
#include "session/user_interface.h"

namespace morvane {

namespace {

void OpenSubformOnce(ConversionSession& s, HintActions& actions, const std::string& name) {
  std::vector<std::string>& opened = s.Form().OpenedSubforms;
  for (const auto& open : opened)
    if (open == name) return;
  actions.OpenSubform(s, name);
  if (opened.size() == 1 && opened[0].empty())
    opened[0] = name;
  else
    opened.push_back(name);
}

void CloseOpenedSubforms(ConversionSession& s, HintActions& actions) {
  for (const auto& name : s.Form().OpenedSubforms)
    if (!name.empty()) actions.CloseSubform(s, name);
}

// The data control's caption refresh: a function that moves the recordset
// once, so that the caption shows the first record.
void AddDataMove(ConversionSession& s, const std::string& dataControl) {
  const std::string header = "Private Function InitialDataCtlCaptions()";
  TextDocument& text = s.Form().Text;
  if (IsDuplicateLine(text, header, 0) < 1) {
    text.Append(JoinCrLf({header, "On Error Resume Next", dataControl + ".Recordset.movenext",
                          dataControl + ".Recordset.moveFirst", "End Function"}));
    s.Form().InitCalls[2] = true;
  } else {
    InsertLine(text, header, dataControl + ".Recordset.movenext", 1);
    InsertLine(text, header, dataControl + ".Recordset.moveFirst", 1);
  }
}

// The form text is complete: names that were long while it was built take
// their final spelling.
void FinishFormText(ConversionSession& s) {
  TextDocument& text = s.Form().Text;
  for (auto& line : text.Lines())
    for (size_t pos; (pos = line.find("ADODB.Recordset20")) != std::string::npos;)
      line.erase(pos + 15, 2);
  text.CloseLastLine();
}

void ProcessRecords(ConversionSession& s, const std::string& hintForm, HintActions& actions,
                    const std::vector<HintRecord>& records);

// One visitor per record kind, in the order of the variant.
struct Act {
  ConversionSession& s;
  HintActions& actions;
  const std::string& hintForm;
  FormState& form;

  void operator()(const DataControlEntryHint& h) {
    if (s.Options.UseAdo)
      AddDataCtlEntry2(form.Text, h.DataControl, h.Line);
    else
      AddDataCtlEntry(form.Text, h.DataControl, h.Line);
  }
  void operator()(const ListEntryHint& h) {
    form.PlainListControl = h.PlainControl;
    if (h.Combo)
      actions.WriteComboBoxInit(s, h.RowSource, h.ControlName, h.IsValueList);
    else
      actions.WriteListBoxInit(s, h.RowSource, h.ControlName, h.IsValueList);
  }
  void operator()(const ControlCodeHint& h) {
    form.CurrentControlName = h.VbName;
    if (h.FormName != hintForm) OpenSubformOnce(s, actions, h.FormName);
    actions.ControlEvents(s, hintForm, h);
  }
  void operator()(const OutputCodeHint& h) {
    OpenSubformOnce(s, actions, h.FormName);
    actions.ExportModuleText(s, h.FormName, h.AsForm ? 1 : 2);
  }
  void operator()(const ReportRowHint& h) {
    if (s.SupportDb) s.SupportDb->AddReportOutput(h);
  }
  void operator()(const FormCodeHint& h) {
    actions.FormEvents(s, h.FormName, hintForm, h.SubformControl);
  }
  void operator()(const DataMoveHint& h) { AddDataMove(s, h.DataControl); }
  void operator()(const ContinuousFormHint& h) {
    const std::vector<HintRecord> records =
        actions.ConvertContinuousForm(s, h.FormName, h.ControlName);
    if (!records.empty()) ProcessRecords(s, h.FormName, actions, records);
  }
  void operator()(const DatasheetGridHint& h) {
    if (form.DatasheetForms.empty() || form.DatasheetForms[0].empty())
      form.DatasheetForms.assign(1, h.FormName);
    else
      form.DatasheetForms.push_back(h.FormName);
    form.DatasheetGrids.push_back(h);
  }
  void operator()(const FormLoadLineHint& h) { form.FormLoadCode += "\r\n" + h.Line; }
  void operator()(const ControlCountsHint& h) {
    form.ControlCount = h.Controls;
    form.PartialControlCount = h.PartiallyConverted;
  }
  void operator()(const TooManyControlsHint&) {
    form.FormFailed = actions.ReduceControlCount(s, hintForm);
  }
  void operator()(const FormImageHint& h) {
    if (std::strtol(h.SizeMode.c_str(), nullptr, 10) == 1) form.FormPictureStretched = true;
    if (h.Tiling == "True") form.FormPictureTiled = true;
  }
  void operator()(const LabelCaptionHint& h) {
    form.LabelCaptionCode += "\r\nMe." + h.ControlName + ".Caption = \"" + h.Caption + "\"";
  }
  void operator()(const RenameControlClassHint& h) {
    const std::string prefix = "Name = \"" + ControlProjectName(s.ProjectName) + ".";
    ChangeLine2(form.Text, prefix + h.OldName + "\"", prefix + h.NewName + "\"");
  }
};

void ProcessRecords(ConversionSession& s, const std::string& hintForm, HintActions& actions,
                    const std::vector<HintRecord>& records) {
  for (const HintRecord& record : records) std::visit(Act{s, actions, hintForm, s.Form()}, record);
}

}  // namespace

void AddHint(ConversionSession& s, HintRecord record) {
  s.Form().Hints.push_back(std::move(record));
}

const char* ControlEventKindName(ControlEventKind kind) {
  switch (kind) {
    case ControlEventKind::ListBox:
      return "ListBox";
    case ControlEventKind::ComboBox:
      return "ComboBox";
    case ControlEventKind::Image:
      return "Image";
    case ControlEventKind::Button:
      return "Button";
    case ControlEventKind::CheckBox:
      return "CheckBox";
    case ControlEventKind::OptionGroup:
      return "OptionGroup";
    case ControlEventKind::TextBox:
      return "TextBox";
    case ControlEventKind::BoundObjectFrame:
      return "BoundObjectFrame";
  }
  return "";
}

void ProcessHints(ConversionSession& s, const std::string& formName, HintActions& actions) {
  FormState& form = s.Form();
  form.OpenedSubforms.assign(1, "");
  // The records are taken out of the state first: an action may add records
  // of its own (a nested form's), which are processed where they arise.
  const std::vector<HintRecord> records = std::move(form.Hints);
  form.Hints.clear();
  ProcessRecords(s, formName, actions, records);
  SeparateSubformProcedures(s, formName);
  FinishFormText(s);
  CloseOpenedSubforms(s, actions);
}

void HintActions::NotAvailable(ConversionSession& s, const std::string& object,
                               const std::string& what) {
  if (s.SupportDb) s.SupportDb->AddRunNote(object, what + " is not available in this version");
}

void HintActions::ControlEvents(ConversionSession& s, const std::string&,
                                const ControlCodeHint& control) {
  NotAvailable(s, control.FormName + "." + control.AccessName,
               std::string(ControlEventKindName(control.Kind)) + " event code");
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

std::vector<HintRecord> HintActions::ConvertContinuousForm(ConversionSession& s,
                                                           const std::string& formName,
                                                           const std::string& controlName) {
  NotAvailable(s, formName + "." + controlName, "Continuous subform conversion");
  return {};
}

// Turning labels into control arrays is not built yet, so a form over the
// limit is left out of the project, with the message that says so.
bool HintActions::ReduceControlCount(ConversionSession& s, const std::string& formName) {
  const std::string text =
      FormatText(kMsgTooManyControls, {formName, std::to_string(s.Form().ControlCount)});
  if (s.SupportDb) s.SupportDb->AddRunNote(formName, text);
  return true;
}

void HintActions::OpenSubform(ConversionSession&, const std::string&) {}
void HintActions::CloseSubform(ConversionSession&, const std::string&) {}

}  // namespace morvane

// The hint actions of a whole form.
#include "app/form_actions.h"

#include <algorithm>

#include "cforms/continuous_forms.h"
#include "platform/source_tree.h"
#include "platform/text_file.h"
#include "session/conversion_session.h"
#include "session/form_finishing.h"

namespace morvane {

void FormHintActions::ExportModuleText(ConversionSession& s, const std::string& name, int mode) {
  ModuleCode code;
  const AccessObjectKind kind = mode == 2 ? AccessObjectKind::Module : AccessObjectKind::Form;
  if (!s.AccessApp || !s.AccessApp->LoadModule(kind, name, &code, nullptr)) return;
  if (code.Code.empty()) return;
  // The translator and the event writers find the subform's code by its
  // marks; the form's own name line stays the only one.
  std::vector<std::string> out = {"'MORVANE Form Code for " + name};
  const int declarations = std::clamp(code.CountOfDeclarationLines, 0, code.CountOfLines());
  if (declarations > 0) {
    out.push_back("'MORVANE Declarations Code for " + name);
    for (int i = 0; i < declarations; ++i) out.push_back(code.Code[static_cast<size_t>(i)]);
    out.push_back("'MORVANE End Declarations Code for " + name);
    out.emplace_back();
  }
  for (int i = declarations; i < code.CountOfLines(); ++i)
    out.push_back(code.Code[static_cast<size_t>(i)]);
  out.push_back("'MORVANE End Form Code for " + name);
  TextDocument& text = s.Form().Text;
  if (text.EndsOpen()) text.Append("\r\n");
  text.AppendLines(out);
}

std::vector<HintRecord> FormHintActions::ConvertContinuousForm(ConversionSession& s,
                                                               const std::string& formName,
                                                               const std::string& controlName) {
  return continuous_.Convert(s, formName, controlName);
}

bool FormHintActions::ReduceControlCount(ConversionSession& s, const std::string& formName) {
  return morvane::ReduceControlCount(s, formName);
}

}  // namespace morvane

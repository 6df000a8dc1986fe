// The driver's form converter over the form writer and the hint processor.
#include "forms/form_converter.h"

#include "design/design_store.h"
#include "forms/form_writer.h"
#include "platform/project_model.h"
#include "platform/support_db.h"
#include "session/conversion_session.h"
#include "session/form_finishing.h"
#include "session/hint_processor.h"

namespace morvane {

void DesignFormConverter::ConvertForm(ConversionSession& s, const std::string& name) {
  FormWriter writer(s, store_);
  std::string err;
  if (!writer.ConvertForm(name, &err)) {
    // The form has no text; it stays out of the project and the analysis
    // says why.
    s.Form().FormFailed = true;
    if (s.SupportDb) s.SupportDb->AddRunNote(name, err.empty() ? "the form was not written" : err);
  }
}

void DesignFormConverter::ProcessHints(ConversionSession& s, const std::string& name) {
  morvane::ProcessHints(s, name, actions_);
}

void DesignFormConverter::AddDatasheetGrids(ConversionSession& s, const std::string& name) {
  if (!s.ActiveProject) return;
  const ComponentName& names = s.Names.Name(ComponentRole::Form, name);
  if (const ProjectComponent* component = s.ActiveProject->Find(names.VbName))
    morvane::AddDatasheetGrids(s, *component);
}

std::string DesignFormConverter::RecordSource(ConversionSession&, const std::string& name) {
  const FormDesign* form = store_.OpenForm(name, nullptr);
  return form ? form->Text("RecordSource").value_or("") : std::string();
}

}  // namespace morvane

// Continuous forms: the user control of a continuous subform, written into
// the run's ActiveX control project, with class names unique within 39
// characters.
#include "cforms/continuous_forms.h"

#include "cforms/user_control_writer.h"
#include "design/design_store.h"
#include "design/form_design.h"
#include "platform/encoding.h"
#include "platform/line_editor.h"
#include "platform/output_directory.h"
#include "platform/project_model.h"
#include "platform/support_db.h"
#include "platform/text_document.h"
#include "session/conversion_session.h"
#include "session/naming.h"

namespace morvane {

namespace {

// The ActiveX control project type of the project model.
constexpr int kControlProjectType = 3;
constexpr size_t kProgIdLength = 39;

void Note(ConversionSession& s, const std::string& object, const std::string& text) {
  if (s.SupportDb) s.SupportDb->AddRunNote(object, text);
}

}  // namespace

ContinuousForms::ContinuousForms(DesignStore& store) : store_(store) {}

ContinuousForms::~ContinuousForms() = default;

std::string ContinuousForms::UniqueProgId(const std::string& name, const std::string& project) {
  // A class name that does not begin with a letter takes one ahead of it
  // (behind it, it would still be no name Visual Basic takes).
  std::string safe = SafeName(name);
  if (!StartsWithLetter(safe)) safe = "a" + safe;
  std::string full = (project + "." + safe).substr(0, kProgIdLength);
  int n = 0;
  while (usedProgIds_.count(ToLower(full))) {
    if (n > 26) {
      full = full.substr(0, kProgIdLength - 2) + "A";
      n = 0;
    }
    full = full.substr(0, kProgIdLength - 1) + static_cast<char>(65 + n);
    ++n;
  }
  usedProgIds_.insert(ToLower(full));
  return full.substr(project.size() + 1);
}

std::vector<HintRecord> ContinuousForms::Convert(ConversionSession& s,
                                                 const std::string& parentForm,
                                                 const std::string& controlName) {
  std::vector<HintRecord> records;
  const FormDesign* parent = store_.OpenForm(parentForm, nullptr);
  const ControlDesign* control = parent ? parent->Control(controlName) : nullptr;
  const FormDesign* f = control ? control->Form() : nullptr;
  if (!f) return records;
  const std::string first = "cf" + SafeName(f->Name());

  // A subform shown twice has one user control; each parent names it.
  const std::string key = ToLower(f->Name());
  if (auto known = classes_.find(key); known != classes_.end()) {
    if (known->second != first) records.push_back(RenameControlClassHint{first, known->second});
    return records;
  }
  const std::string projectName = ControlProjectName(s.ProjectName);
  if (!project_) {
    project_ = std::make_unique<ProjectModel>(kControlProjectType);
    project_->Name = projectName;
    s.ControlProject = project_.get();
  }
  const std::string className = UniqueProgId(first, projectName);
  classes_[key] = className;
  if (className != first) records.push_back(RenameControlClassHint{first, className});

  FormState& owner = s.Form();
  const std::string ctx = className + ".ctx";
  UserControlText control_text;
  std::string binary;
  {
    // The control's pictures go to its own binary file.
    FormScope scope(s, className);
    control_text = WriteUserControl(s, store_, *f, className, ctx);
    binary = std::move(scope.State().Binary);
  }
  records.insert(records.end(), control_text.Records.begin(), control_text.Records.end());
  for (const std::string& left : control_text.LeftOut) {
    ++owner.ControlsNotConverted;
    Note(s, parentForm,
         left + " (in the continuous subform " + f->Name() + ") is not converted: its user " +
             "control " + className + " holds no such control");
  }

  const std::string stem = Windows1252ToUtf8(className);
  std::string err;
  TextDocument text = TextDocument::FromBytes(control_text.Text);
  SilentIndent(text);
  const ProjectComponent* component = project_->Add(s.OutputPath + stem + ".ctl", std::move(text));
  if (s.Output && !project_->WriteComponent(component->Name, *s.Output, &err))
    Note(s, parentForm, err);
  if (!binary.empty() && s.Output && !s.Output->Write(stem + ".ctx", binary, &err))
    Note(s, parentForm, err);
  project_->MakeCompiledFile();
  return records;
}

}  // namespace morvane

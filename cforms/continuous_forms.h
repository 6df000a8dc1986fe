// Continuous forms: Visual Basic has no form that repeats its detail for
// each record, so the detail of a continuous subform becomes a user control
// that a data repeater on the parent repeats. The user controls of a run
// make one ActiveX control project, <Project>_CF, whose class names are
// unique within 39 characters of project and class.
#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "session/hint_records.h"

namespace morvane {

struct ConversionSession;
class DesignStore;
class ProjectModel;

class ContinuousForms {
 public:
  explicit ContinuousForms(DesignStore& store);
  ~ContinuousForms();

  // The user control of the subform shown by `controlName` on `parentForm`:
  // written once per subform form into the control project; the records
  // returned (the class renamed on the parent, analysis rows) are the
  // parent's to process.
  std::vector<HintRecord> Convert(ConversionSession& s, const std::string& parentForm,
                                  const std::string& controlName);

  // The class name for `name` in `project`: an identifier that begins with
  // a letter, unique among the run's classes, and within 39 characters
  // with the project's name and the point.
  std::string UniqueProgId(const std::string& name, const std::string& project);

 private:
  DesignStore& store_;
  std::unique_ptr<ProjectModel> project_;
  std::set<std::string> usedProgIds_;
  // Each subform's class: the name the parent's repeater first names it by,
  // and the name it has.
  std::map<std::string, std::string> classes_;
};

}  // namespace morvane

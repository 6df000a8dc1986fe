// The hint actions of a whole form: the event writers, and what subforms,
// continuous forms and the control limit ask of the finished form text.
#pragma once

#include <string>
#include <vector>

#include "events/event_writer.h"

namespace morvane {

class ContinuousForms;

class FormHintActions : public EventHintActions {
 public:
  FormHintActions(DesignStore& store, ContinuousForms& continuous)
      : EventHintActions(store), continuous_(continuous) {}

  // An embedded subform's module, in a marked section of the form's code:
  // its declarations marked to move to the form's declarations.
  void ExportModuleText(ConversionSession& s, const std::string& name, int mode) override;
  std::vector<HintRecord> ConvertContinuousForm(ConversionSession& s, const std::string& formName,
                                                const std::string& controlName) override;
  bool ReduceControlCount(ConversionSession& s, const std::string& formName) override;

 private:
  ContinuousForms& continuous_;
};

}  // namespace morvane

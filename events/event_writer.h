// Event code of controls and forms: the event properties of the design
// become Visual Basic event procedures in the form's output file, existing
// procedures are renamed to their Visual Basic names and signatures, and
// Access events that fold into one Visual Basic event get call lines.
#pragma once

#include <string>

#include "session/hint_processor.h"

namespace morvane {

class DesignStore;

// The hint actions of the event writers and the list initialisers; the
// other records keep the base behaviour until their converters exist.
class EventHintActions : public HintActions {
 public:
  explicit EventHintActions(DesignStore& store) : store_(store) {}
  void ControlEvents(ConversionSession& s, const std::string& hintForm,
                     const ControlCodeHint& control) override;
  void FormEvents(ConversionSession& s, const std::string& formName, const std::string& hintForm,
                  const std::string& subformControl) override;
  // The list initialisers of the conversion code.
  void WriteListBoxInit(ConversionSession& s, const std::string& rowSource,
                        const std::string& controlName, bool isValueList) override;
  void WriteComboBoxInit(ConversionSession& s, const std::string& rowSource,
                         const std::string& controlName, bool isValueList) override;

 protected:
  DesignStore& store_;
};

}  // namespace morvane

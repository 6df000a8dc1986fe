// The form converter the driver calls: the form writer over the designs of
// the source tree, then the hint records acted on by the given actions (the
// event writers and whatever else the build has).
#pragma once

#include <string>

#include "session/converters.h"

namespace morvane {

class DesignStore;
class HintActions;

class DesignFormConverter : public FormConverter {
 public:
  DesignFormConverter(DesignStore& store, HintActions& actions)
      : store_(store), actions_(actions) {}
  void ConvertForm(ConversionSession& s, const std::string& name) override;
  void ProcessHints(ConversionSession& s, const std::string& name) override;
  void AddDatasheetGrids(ConversionSession& s, const std::string& name) override;
  std::string RecordSource(ConversionSession& s, const std::string& name) override;

 private:
  DesignStore& store_;
  HintActions& actions_;
};

}  // namespace morvane

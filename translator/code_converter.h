// The translator as the driver sees it: module export, translation, the
// conversion code and the declaration clean-up behind one interface.
#pragma once

#include "session/converters.h"

namespace morvane {

class TranslatorCodeConverter : public CodeConverter {
 public:
  void ExportModuleText(ConversionSession& s, const std::string& name, int mode) override;
  void TranslateCode(ConversionSession& s, std::string& path, int mode) override;
  void MoveDeclarationBlocks(ConversionSession& s) override;
  void WriteFormLookup(ConversionSession& s) override;
  void WriteConversionCode(ConversionSession& s) override;
  std::vector<std::string> UnbuiltStages() const override;
};

}  // namespace morvane

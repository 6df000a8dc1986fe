// The translator as the driver sees it: module export, translation, the
// conversion code and the declaration clean-up behind one interface.
#pragma once

#include "session/converters.h"

namespace morvane {

class TranslatorCodeConverter : public CodeConverter {
 public:
  bool ExportModuleText(ConversionSession& s, const std::string& name, int mode,
                        TextDocument& into) override;
  TextDocument TranslateCode(ConversionSession& s, const TextDocument& input,
                             const std::string& moduleName, int mode) override;
  void MoveDeclarationBlocks(ConversionSession& s, const std::string& component) override;
  void WriteFormLookup(ConversionSession& s, TextDocument& conversionCode) override;
  void WriteConversionCode(ConversionSession& s, TextDocument& conversionCode) override;
  std::vector<std::string> UnbuiltStages() const override;
};

}  // namespace morvane

// Forwards the driver's calls to the translator's functions.
#include "translator/code_converter.h"

#include "translator/conversion_code.h"
#include "translator/module_export.h"
#include "translator/module_translator.h"
#include "translator/pipeline_stages.h"

namespace morvane {

bool TranslatorCodeConverter::ExportModuleText(ConversionSession& s, const std::string& name,
                                               int mode, TextDocument& into) {
  return morvane::ExportModuleText(s, name, mode, into);
}

TextDocument TranslatorCodeConverter::TranslateCode(ConversionSession& s, const TextDocument& input,
                                                    const std::string& moduleName, int mode) {
  return morvane::TranslateCode(s, input, moduleName, mode);
}

void TranslatorCodeConverter::MoveDeclarationBlocks(ConversionSession& s,
                                                    const std::string& component) {
  morvane::MoveDeclarationBlocks(s, component);
}

void TranslatorCodeConverter::WriteFormLookup(ConversionSession& s, TextDocument& conversionCode) {
  morvane::WriteFormLookup(s, conversionCode);
}

void TranslatorCodeConverter::WriteConversionCode(ConversionSession& s,
                                                  TextDocument& conversionCode) {
  morvane::WriteConversionCode(s, conversionCode);
}

std::vector<std::string> TranslatorCodeConverter::UnbuiltStages() const {
  return morvane::UnbuiltStages();
}

}  // namespace morvane

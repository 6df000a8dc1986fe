// Forwards the driver's calls to the translator's functions.
#include "translator/code_converter.h"

#include "translator/conversion_code.h"
#include "translator/module_export.h"
#include "translator/module_translator.h"
#include "translator/pipeline_stages.h"

namespace morvane {

void TranslatorCodeConverter::ExportModuleText(ConversionSession& s, const std::string& name,
                                               int mode) {
  morvane::ExportModuleText(s, name, mode);
}

void TranslatorCodeConverter::TranslateCode(ConversionSession& s, std::string& path, int mode) {
  morvane::TranslateCode(s, path, mode);
}

void TranslatorCodeConverter::MoveDeclarationBlocks(ConversionSession& s) {
  morvane::MoveDeclarationBlocks(s);
}

void TranslatorCodeConverter::WriteFormLookup(ConversionSession& s) { morvane::WriteFormLookup(s); }

void TranslatorCodeConverter::WriteConversionCode(ConversionSession& s) {
  morvane::WriteConversionCode(s);
}

std::vector<std::string> TranslatorCodeConverter::UnbuiltStages() const {
  return morvane::UnbuiltStages();
}

}  // namespace morvane

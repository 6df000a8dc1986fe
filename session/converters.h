// The converters the driver calls, one interface each, so that the form,
// report and macro walkers plug into the same run without changing the
// driver. A converter that is not present leaves its objects unconverted and
// the run says so in the analysis.
#pragma once

#include <string>
#include <vector>

namespace morvane {

struct ConversionSession;

// Modes of module text extraction and translation.
enum ModuleMode : int { kModeForm = 1, kModeModule = 2, kModeReport = 3 };

class CodeConverter {
 public:
  virtual ~CodeConverter() = default;
  virtual void ExportModuleText(ConversionSession& s, const std::string& name, int mode) = 0;
  // `path` in: the input file; out: the module's name.
  virtual void TranslateCode(ConversionSession& s, std::string& path, int mode) = 0;
  virtual void MoveDeclarationBlocks(ConversionSession& s) = 0;
  // Appends GetFormFromName to the conversion code in the output directory.
  virtual void WriteFormLookup(ConversionSession& s) = 0;
  // Adds the templates the run asked for and puts the module into the project.
  virtual void WriteConversionCode(ConversionSession& s) = 0;
  // Stages of the translation that this build does not carry out yet.
  virtual std::vector<std::string> UnbuiltStages() const = 0;
};

class FormConverter {
 public:
  virtual ~FormConverter() = default;
  virtual void ConvertForm(ConversionSession& s, const std::string& name) = 0;
  virtual void ProcessHints(ConversionSession& s, const std::string& name) = 0;
  virtual void AddDatasheetGrids(ConversionSession& s, const std::string& name) = 0;
  // The form's RecordSource as its design gives it.
  virtual std::string RecordSource(ConversionSession& s, const std::string& name) = 0;
};

class ReportConverter {
 public:
  virtual ~ReportConverter() = default;
  virtual std::string ConvertReport(ConversionSession& s, const std::string& name) = 0;
  virtual void WriteDataEnvironment(ConversionSession& s) = 0;
};

class MacroConverter {
 public:
  virtual ~MacroConverter() = default;
  virtual void ConvertMacros(ConversionSession& s, const std::string& outputPath) = 0;
};

struct Converters {
  CodeConverter* Code = nullptr;
  FormConverter* Forms = nullptr;
  ReportConverter* Reports = nullptr;
  MacroConverter* Macros = nullptr;
};

}  // namespace morvane

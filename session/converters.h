// The converters the driver calls, one interface each, so that the form,
// report and macro walkers plug into the same run without changing the
// driver. A converter that is not present leaves its objects unconverted and
// the run says so in the analysis. Each object is built in memory (the
// session's form state for forms and reports) and the driver writes it once.
#pragma once

#include <string>
#include <vector>

#include "platform/text_document.h"

namespace morvane {

struct ConversionSession;

// Modes of module text extraction and translation.
enum ModuleMode : int { kModeForm = 1, kModeModule = 2, kModeReport = 3 };

class CodeConverter {
 public:
  virtual ~CodeConverter() = default;
  // Appends the module text of a form, report or module to `into`: the
  // VB_Name line (with the class header of a class module) and the code.
  // False when the object has no module to export.
  virtual bool ExportModuleText(ConversionSession& s, const std::string& name, int mode,
                                TextDocument& into) = 0;
  // The translated text of a form, report or module; `moduleName` names the
  // object in the analysis.
  virtual TextDocument TranslateCode(ConversionSession& s, const TextDocument& input,
                                     const std::string& moduleName, int mode) = 0;
  // Moves the marked declaration blocks of a component's code into its
  // declarations, and drops doubled declaration lines.
  virtual void MoveDeclarationBlocks(ConversionSession& s, const std::string& component) = 0;
  // Appends GetFormFromName to the conversion code.
  virtual void WriteFormLookup(ConversionSession& s, TextDocument& conversionCode) = 0;
  // Adds the templates the run asked for to the conversion code.
  virtual void WriteConversionCode(ConversionSession& s, TextDocument& conversionCode) = 0;
  // Stages of the translation that this build does not carry out yet.
  virtual std::vector<std::string> UnbuiltStages() const = 0;
};

class FormConverter {
 public:
  virtual ~FormConverter() = default;
  // Writes the form's text, binary records and hint records into the
  // session's form state; leaves the text empty when the form cannot be read.
  virtual void ConvertForm(ConversionSession& s, const std::string& name) = 0;
  virtual void ProcessHints(ConversionSession& s, const std::string& name) = 0;
  virtual void AddDatasheetGrids(ConversionSession& s, const std::string& name) = 0;
  // The form's RecordSource as its design gives it.
  virtual std::string RecordSource(ConversionSession& s, const std::string& name) = 0;
};

class ReportConverter {
 public:
  virtual ~ReportConverter() = default;
  // Writes the report's designer text and binary records into the session's
  // form state; returns the report's initialisation code.
  virtual std::string ConvertReport(ConversionSession& s, const std::string& name) = 0;
  // The data environment's designer, once all reports are converted; empty
  // when there is none.
  virtual TextDocument WriteDataEnvironment(ConversionSession& s) = 0;
};

class MacroConverter {
 public:
  virtual ~MacroConverter() = default;
  // The text of the macro module; empty when the source has no macros.
  virtual TextDocument ConvertMacros(ConversionSession& s) = 0;
};

struct Converters {
  CodeConverter* Code = nullptr;
  FormConverter* Forms = nullptr;
  ReportConverter* Reports = nullptr;
  MacroConverter* Macros = nullptr;
};

}  // namespace morvane

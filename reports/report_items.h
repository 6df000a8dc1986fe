// The items of a DataReport section, one per Access report control:
// labels, text boxes (bound, page and date fields, functions, captions set
// at run time), shapes, lines, images, check boxes and bound object frames.
// The report writer keeps the state of the report under construction and
// calls WriteItem for each control of a section.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "reports/data_environment.h"
#include "reports/report_writer.h"

namespace morvane {

class ControlDesign;
class FormDesign;

struct ReportState {
  const FormDesign* Report = nullptr;
  std::optional<ReportCommand> Command;  // as the environment keeps it
  int SectionNumber = 0;
  std::string SectionName;             // the name the current section is written with
  int ItemCount = 0;                   // items written in the current section
  std::string ItemText;                // their blocks, each line ended by CR LF
  std::vector<std::string> UsedNames;  // lower case, items and sections
  std::vector<std::string> InitLines;
  // Calculated text boxes whose expression the command computes, with the
  // name of the column.
  std::map<const ControlDesign*, std::string> Calculated;
  ConvertedReport* Out = nullptr;

  // A name for the designer: SafeName of `name`, beginning with a letter
  // (else behind `prefix`), with a number behind it where another object
  // of the report has it.
  std::string UniqueName(const std::string& name, const std::string& prefix);
  void Log(int errorId, const std::string& location);
  // A row asking the user to review what an item became.
  void Review(const std::string& codeLine, const std::string& translated);
};

// Gives the command a column for each calculated text box of the detail
// section that the database can compute, and notes them in the state.
void AddCalculatedColumns(ReportState& st, const FormDesign& report, ReportCommand& command);

// Writes the item of control `c` (of Access section `section`) into the
// state's item text and counts it, or leaves it out with a tblLog row.
void WriteItem(ReportState& st, const ControlDesign& c);

}  // namespace morvane

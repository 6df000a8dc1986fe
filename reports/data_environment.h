// The one data environment of the converted reports, rptEnvironment: one
// connection and one command per record source, with the sorting and the
// grouping of the reports' group levels and the parameters of their
// queries. The report writer adds each report's command and binds the report
// to the name the environment gives it; the text is made once at the end.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/catalog.h"

namespace morvane {

class FormDesign;

// A value that the command asks for when it runs: a PARAMETERS entry or a
// name in brackets that reads a form's control.
struct CommandParameter {
  std::string Name;       // as the statement names it, without brackets
  int DaoType = kDbText;  // declared in PARAMETERS; text otherwise
};

// A text box's expression computed by the command, so that an item can
// show it as a field.
struct CalculatedColumn {
  std::string Name;        // the field's name
  std::string Expression;  // Access's expression, without its "="
};

struct ReportCommand {
  struct Group {
    std::string Name;                // the group level's ControlSource
    std::optional<FieldInfo> Field;  // its field, when the field list has it
  };

  std::string Name;  // CommandName; the grouping is Name + "_Grouping"
  std::string Text;  // CommandText
  int Type = 2;      // 1 SQL text, 2 a table or query by name
  bool Grouped = false;
  std::optional<std::vector<FieldInfo>> Fields;  // nullopt: not known
  std::vector<Group> Groups;
  std::vector<CommandParameter> Parameters;
  std::vector<CalculatedColumn> Columns;

  // What the text is made of.
  std::string Source;      // the report's RecordSource
  bool Statement = false;  // the source is a statement
  bool HasLevels = false;  // the report has group levels
  std::string OrderList;   // the levels' sorting

  std::string GroupingName() const { return Name + "_Grouping"; }
  // The member a report or an item binds to: the grouping in a group header
  // of a grouped command, the command otherwise.
  std::string Member(bool groupHeader) const {
    return groupHeader && Grouped ? GroupingName() : Name;
  }
};

// The command of a report over its RecordSource, or nullopt for a report
// without one. `db` answers the field lists and the SQL of saved queries;
// without it the command has no field list.
std::optional<ReportCommand> CommandFor(const FormDesign& report, const Catalog* db);

// Whether a record source is a statement rather than the name of a table or
// query: it begins with SELECT, PARAMETERS or TRANSFORM and a blank or line
// break.
bool IsStatementSource(std::string_view source);

// Makes the command's text and type from its source, its levels' order and
// its calculated columns.
void SetCommandText(ReportCommand& c);
// Whether calculated columns can be added to the command: a statement with
// an order of its own and no levels to order by keeps its text.
bool CanAddColumns(const ReportCommand& c);

// The name a command takes from a record source: the report's own name for
// a SELECT statement, the source's otherwise, made a Visual Basic name.
std::string CommandBaseName(const std::string& reportName, const std::string& recordSource);

// The names of a statement's parameters: the PARAMETERS clause, and names in
// brackets that read a control of a form ([Forms]![frm]![ctl]).
std::vector<CommandParameter> StatementParameters(const std::string& sql);

class DataEnvironment {
 public:
  // Adds a report's command and returns the command as the environment
  // keeps it: a command equal to one already there is shared; one whose
  // name another command has gets a number behind its name.
  ReportCommand Add(ReportCommand command);
  const std::vector<ReportCommand>& Commands() const { return commands_; }

  // The text of rptEnvironment.dsr, each line ended by CR LF, with the
  // connection text `connection`. A command text too long for one line of
  // the designer goes into `dsx`, the bytes of rptEnvironment.dsx, which
  // stays empty when no text needs it.
  std::string Text(const std::string& connection, std::string* dsx) const;

 private:
  std::vector<ReportCommand> commands_;
};

}  // namespace morvane

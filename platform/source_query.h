// Saved queries out of their exports: the SQL text (from `dbMemo "SQL" =`,
// from a .sql file, or rebuilt from the design grid) and the DAO query type.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace morvane {

struct QueryExport {
  std::string Sql;        // empty when the export carries none and no grid could be rebuilt
  int Operation = 0;      // the grid's `Operation =` value, 0 when absent
  bool FromGrid = false;  // the SQL was rebuilt from the design grid
};

// Reads a query export. A grid whose operation cannot be rebuilt leaves Sql
// empty and says so in `note`.
QueryExport QueryFromExport(const std::vector<std::string>& lines, std::string* note);

// DAO QueryDef.Type from the grid operation (when known) or the SQL verb.
int QueryTypeOf(int operation, std::string_view sql);
int QueryTypeOfSql(std::string_view sql);

// The value of a `Key ="text"` line and its continuation lines starting at
// `*index`: doubled quotes undone, the quoted pieces joined, `\015\012`
// escapes turned into CR LF. `*index` ends on the last line used.
std::string QuotedValueAt(const std::vector<std::string>& lines, size_t* index);

}  // namespace morvane

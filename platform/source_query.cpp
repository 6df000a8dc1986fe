// Query exports: SQL text, the design grid and the DAO query type.
//
// A query export names the query's kind in `Operation =` (the grid's query
// type: 1 select, 2 make-table, 3 append, 4 update, 5 delete, 6 crosstab,
// 7 data definition, 8 pass-through, 9 union) and describes the grid in
// blocks: `Begin InputTables` (Name, Alias), `Begin OutputColumns` (Alias,
// Expression), `Begin Joins` (LeftTable, RightTable, Expression, Flag
// 1 inner / 2 left / 3 right), `Begin OrderBy` (Expression, Flag 1 for
// descending), `Begin Groups` (Expression, GroupLevel), and the lines
// `Where =` and `Having =`. `Option =` is 2 for DISTINCT and 8 for
// DISTINCTROW (1 and 3 mark UNION ALL and UNION).
#include "platform/source_query.h"

#include <cstdlib>

#include "platform/catalog.h"
#include "platform/text_fold.h"

namespace morvane {

using text::IEquals;
using text::IStartsWith;
using text::Trim;

namespace {

struct OperationType {
  int Operation;
  int Type;  // DaoQueryType
};

constexpr int kPassThroughOperation = 8;

constexpr OperationType kOperationTypes[] = {
    {1, kDbQSelect},       {2, kDbQMakeTable},
    {3, kDbQAppend},       {4, kDbQUpdate},
    {5, kDbQDelete},       {6, kDbQCrosstab},
    {7, kDbQDDL},          {kPassThroughOperation, kDbQSQLPassThrough},
    {9, kDbQSetOperation},
};

struct VerbType {
  std::string_view Verb;
  int Type;
};

// The leading word of the statement; SELECT ... INTO and UNION are told
// apart after this table.
constexpr VerbType kVerbTypes[] = {
    {"INSERT", kDbQAppend},      {"UPDATE", kDbQUpdate}, {"DELETE", kDbQDelete},
    {"TRANSFORM", kDbQCrosstab}, {"CREATE", kDbQDDL},    {"ALTER", kDbQDDL},
    {"DROP", kDbQDDL},
};

constexpr int kOptionDistinct = 2;
constexpr int kOptionDistinctRow = 8;

// Position of `word` as a whole word outside quotes and brackets, or npos.
size_t FindWord(std::string_view sql, std::string_view word) {
  char quote = 0;
  int bracket = 0;
  for (size_t i = 0; i + word.size() <= sql.size(); ++i) {
    char c = sql[i];
    if (quote) {
      if (c == quote) quote = 0;
      continue;
    }
    if (c == '"' || c == '\'') {
      quote = c;
      continue;
    }
    if (c == '[') ++bracket;
    if (c == ']' && bracket > 0) --bracket;
    if (bracket) continue;
    auto isWordChar = [](char ch) {
      return (ch >= 'A' && ch <= 'Z') || (ch >= 'a' && ch <= 'z') || (ch >= '0' && ch <= '9') ||
             ch == '_';
    };
    if (IEquals(sql.substr(i, word.size()), word) && (i == 0 || !isWordChar(sql[i - 1])) &&
        (i + word.size() == sql.size() || !isWordChar(sql[i + word.size()])))
      return i;
  }
  return std::string_view::npos;
}

std::string Bracketed(const std::string& name) {
  bool plain = !name.empty() && !(name[0] >= '0' && name[0] <= '9');
  for (unsigned char c : name)
    if (!((c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_' ||
          c >= 0x80))
      plain = false;
  return plain ? name : "[" + name + "]";
}

struct Table {
  std::string Name, Alias;
  std::string Ref() const { return Alias.empty() ? Name : Alias; }
  std::string Text() const {
    return Alias.empty() ? Bracketed(Name) : Bracketed(Name) + " AS " + Bracketed(Alias);
  }
};
struct Column {
  std::string Expression, Alias;
  std::string Name;    // the field an append or update query writes
  int GroupLevel = 0;  // crosstab: 2 a row heading, 1 the column heading
};
struct Group {
  std::string Expression;
  int GroupLevel = 0;
};
struct Join {
  std::string Left, Right, Expression;
  int Flag = 1;
};
struct Order {
  std::string Expression;
  bool Descending = false;
};

struct Grid {
  int Operation = 0;
  int Option = 0;
  std::string Target;  // the table a make-table or append query writes
  std::string Where, Having;
  std::vector<Table> Tables;
  std::vector<Column> Columns;
  std::vector<Join> Joins;
  std::vector<Order> Orders;
  std::vector<Group> Groups;
};

std::string KeyOf(std::string_view line) {
  size_t eq = line.find('=');
  return eq == std::string_view::npos ? std::string() : std::string(Trim(line.substr(0, eq)));
}

std::string NumberText(std::string_view line) {
  size_t eq = line.find('=');
  return std::string(Trim(line.substr(eq + 1)));
}

// Reads one grid block from the line after `Begin <Block>` to its `End`.
void ReadBlock(const std::vector<std::string>& lines, size_t* i, std::string_view block, Grid* g) {
  Column column;
  Join join;
  Order order;
  for (++*i; *i < lines.size(); ++*i) {
    std::string_view t = Trim(lines[*i]);
    if (t == "End") return;
    if (IStartsWith(t, "Begin")) {  // nested blocks are not part of the grid
      int depth = 1;
      while (depth > 0 && ++*i < lines.size()) {
        std::string_view u = Trim(lines[*i]);
        if (u == "End") --depth;
        if (IStartsWith(u, "Begin")) ++depth;
      }
      continue;
    }
    std::string key = KeyOf(t);
    if (key.empty()) continue;
    if (block == "InputTables") {
      if (key == "Name") g->Tables.push_back({QuotedValueAt(lines, i), {}});
      if (key == "Alias" && !g->Tables.empty()) g->Tables.back().Alias = QuotedValueAt(lines, i);
    } else if (block == "OutputColumns") {
      // A column's lines end with its Expression, or with the GroupLevel
      // that follows it in a crosstab.
      if (key == "Alias") column.Alias = QuotedValueAt(lines, i);
      if (key == "Name") column.Name = QuotedValueAt(lines, i);
      if (key == "Expression") {
        column.Expression = QuotedValueAt(lines, i);
        g->Columns.push_back(column);
        column = Column();
      }
      if (key == "GroupLevel" && !g->Columns.empty())
        g->Columns.back().GroupLevel = std::atoi(NumberText(t).c_str());
    } else if (block == "Joins") {
      if (key == "LeftTable") join.Left = QuotedValueAt(lines, i);
      if (key == "RightTable") join.Right = QuotedValueAt(lines, i);
      if (key == "Expression") join.Expression = QuotedValueAt(lines, i);
      if (key == "Flag") {
        join.Flag = std::atoi(NumberText(t).c_str());
        g->Joins.push_back(join);
        join = Join();
      }
    } else if (block == "OrderBy") {
      if (key == "Expression") order.Expression = QuotedValueAt(lines, i);
      if (key == "Flag") {
        order.Descending = std::atoi(NumberText(t).c_str()) == 1;
        g->Orders.push_back(order);
        order = Order();
      }
    } else if (block == "Groups") {
      if (key == "Expression") g->Groups.push_back({QuotedValueAt(lines, i), 0});
      if (key == "GroupLevel" && !g->Groups.empty())
        g->Groups.back().GroupLevel = std::atoi(NumberText(t).c_str());
    }
  }
}

const Table* TableByRef(const Grid& g, const std::string& ref) {
  for (const auto& t : g.Tables)
    if (IEquals(t.Ref(), ref) || IEquals(t.Name, ref)) return &t;
  return nullptr;
}

std::string TableText(const Grid& g, const std::string& ref) {
  const Table* t = TableByRef(g, ref);
  return t ? t->Text() : Bracketed(ref);
}

// FROM clause: joined tables nest left to right, as Access writes them;
// tables in no join follow, separated by commas.
std::string FromClause(const Grid& g) {
  std::vector<std::string> parts;
  std::vector<std::string> joined;
  std::string chain;
  for (size_t j = 0; j < g.Joins.size(); ++j) {
    const Join& jn = g.Joins[j];
    const char* kind = jn.Flag == 2   ? " LEFT JOIN "
                       : jn.Flag == 3 ? " RIGHT JOIN "
                                      : " INNER JOIN ";
    if (chain.empty()) {
      chain = TableText(g, jn.Left);
      joined.push_back(jn.Left);
    } else {
      chain = "(" + chain + ")";
    }
    chain += kind + TableText(g, jn.Right) + " ON " + jn.Expression;
    joined.push_back(jn.Right);
  }
  if (!chain.empty()) parts.push_back(chain);
  for (const auto& t : g.Tables) {
    bool inJoin = false;
    for (const auto& r : joined)
      if (IEquals(r, t.Ref()) || IEquals(r, t.Name)) inJoin = true;
    if (!inJoin) parts.push_back(t.Text());
  }
  std::string out;
  for (size_t i = 0; i < parts.size(); ++i) out += (i ? ", " : "") + parts[i];
  return out;
}

std::string Joined(const std::vector<std::string>& items) {
  std::string out;
  for (size_t i = 0; i < items.size(); ++i) out += (i ? ", " : "") + items[i];
  return out;
}

// Level 1 of a crosstab is its column heading (PIVOT), not a group.
constexpr int kPivotLevel = 1;
constexpr int kCrosstabOperation = 6;

std::string TailClauses(const Grid& g) {
  std::string out;
  if (!g.Where.empty()) out += "\r\nWHERE " + g.Where;
  std::vector<std::string> groups;
  for (const auto& group : g.Groups)
    if (g.Operation != kCrosstabOperation || group.GroupLevel != kPivotLevel)
      groups.push_back(group.Expression);
  if (!groups.empty()) out += "\r\nGROUP BY " + Joined(groups);
  if (!g.Having.empty()) out += "\r\nHAVING " + g.Having;
  std::vector<std::string> orders;
  for (const auto& o : g.Orders) orders.push_back(o.Expression + (o.Descending ? " DESC" : ""));
  if (!orders.empty()) out += "\r\nORDER BY " + Joined(orders);
  return out;
}

std::string ColumnText(const Column& c) {
  return c.Alias.empty() ? c.Expression : c.Expression + " AS " + Bracketed(c.Alias);
}

// The SELECT of a select, make-table or append query (`into` after the
// columns of a make-table query), or of a crosstab's row headings.
std::string SelectPart(const Grid& g, const std::vector<std::string>& cols,
                       const std::string& into = {}) {
  std::string sql = "SELECT ";
  if (g.Option == kOptionDistinctRow)
    sql += "DISTINCTROW ";
  else if (g.Option == kOptionDistinct)
    sql += "DISTINCT ";
  sql += cols.empty() ? "*" : Joined(cols);
  if (!into.empty()) sql += " INTO " + Bracketed(into);
  return sql + "\r\nFROM " + FromClause(g) + TailClauses(g);
}

std::string SelectSql(const Grid& g) {
  std::vector<std::string> cols;
  for (const auto& c : g.Columns) cols.push_back(ColumnText(c));
  return SelectPart(g, cols) + ";";
}

std::string MakeTableSql(const Grid& g) {
  std::vector<std::string> cols;
  for (const auto& c : g.Columns) cols.push_back(ColumnText(c));
  return SelectPart(g, cols, g.Target) + ";";
}

// Only the columns with a field to append to are appended.
std::string AppendSql(const Grid& g) {
  std::vector<std::string> fields, cols;
  for (const auto& c : g.Columns) {
    if (c.Name.empty()) continue;
    fields.push_back(Bracketed(c.Name));
    cols.push_back(ColumnText(c));
  }
  return "INSERT INTO " + Bracketed(g.Target) + " ( " + Joined(fields) + " )\r\n" +
         SelectPart(g, cols) + ";";
}

// The field names of an update stand as Access wrote them ("T.Field").
std::string UpdateSql(const Grid& g) {
  std::vector<std::string> sets;
  for (const auto& c : g.Columns)
    if (!c.Name.empty()) sets.push_back(c.Name + " = " + c.Expression);
  std::string sql = "UPDATE ";
  if (g.Option == kOptionDistinctRow) sql += "DISTINCTROW ";
  sql += FromClause(g) + " SET " + Joined(sets);
  if (!g.Where.empty()) sql += "\r\nWHERE " + g.Where;
  return sql + ";";
}

// TRANSFORM the value column, SELECT the row headings, PIVOT the column
// heading; empty when the grid lacks the value or the column heading.
std::string CrosstabSql(const Grid& g) {
  const Column* value = nullptr;
  const Column* pivot = nullptr;
  std::vector<std::string> rows;
  for (const auto& c : g.Columns) {
    if (c.GroupLevel == kPivotLevel && !pivot)
      pivot = &c;
    else if (c.GroupLevel == 0 && !value)
      value = &c;
    else if (c.GroupLevel != kPivotLevel && c.GroupLevel != 0)
      rows.push_back(ColumnText(c));
  }
  if (!value || !pivot) return {};
  return "TRANSFORM " + ColumnText(*value) + "\r\n" + SelectPart(g, rows) + "\r\nPIVOT " +
         pivot->Expression + ";";
}

std::string DeleteSql(const Grid& g) {
  std::vector<std::string> cols;
  for (const auto& c : g.Columns) cols.push_back(c.Expression);
  std::string sql = "DELETE ";
  if (g.Option == kOptionDistinctRow) sql += "DISTINCTROW ";
  sql += cols.empty() ? "*" : Joined(cols);
  return sql + "\r\nFROM " + FromClause(g) + TailClauses(g) + ";";
}

}  // namespace

std::string QuotedValueAt(const std::vector<std::string>& lines, size_t* index) {
  std::string raw;
  auto takePiece = [&raw](std::string_view text) {
    size_t q = text.find('"');
    if (q == std::string_view::npos) return;
    for (size_t k = q + 1; k < text.size(); ++k) {
      if (text[k] == '\\' && k + 1 < text.size()) {  // an escape: kept whole for below
        raw += text[k];
        raw += text[++k];
        continue;
      }
      if (text[k] == '"') {
        if (k + 1 < text.size() && text[k + 1] == '"') {
          raw += '"';
          ++k;
          continue;
        }
        return;
      }
      raw += text[k];
    }
  };
  std::string_view first = lines[*index];
  size_t eq = first.find('=');
  takePiece(eq == std::string_view::npos ? first : first.substr(eq + 1));
  while (*index + 1 < lines.size()) {
    std::string_view next = Trim(lines[*index + 1]);
    if (next.empty() || next[0] != '"') break;
    takePiece(next);
    ++*index;
  }
  std::string out;
  // Escapes as Access writes them: \" and \\ for the characters, \015 and
  // \012 for CR and LF.
  for (size_t k = 0; k < raw.size(); ++k) {
    if (raw[k] == '\\' && k + 1 < raw.size() && (raw[k + 1] == '"' || raw[k + 1] == '\\')) {
      out += raw[++k];
    } else if (raw.compare(k, 4, "\\015") == 0) {
      out += '\r';
      k += 3;
    } else if (raw.compare(k, 4, "\\012") == 0) {
      out += '\n';
      k += 3;
    } else {
      out += raw[k];
    }
  }
  return out;
}

int QueryTypeOfSql(std::string_view sql) {
  std::string_view s = Trim(sql);
  while (!s.empty() && (s[0] == '\r' || s[0] == '\n' || s[0] == '(')) s = Trim(s.substr(1));
  if (IStartsWith(s, "PARAMETERS")) {
    size_t semi = s.find(';');
    if (semi != std::string_view::npos) s = s.substr(semi + 1);
    while (!s.empty() && (s[0] == '\r' || s[0] == '\n' || s[0] == ' ' || s[0] == '\t'))
      s.remove_prefix(1);
  }
  for (const auto& v : kVerbTypes)
    if (FindWord(s, v.Verb) == 0) return v.Type;
  if (FindWord(s, "SELECT") == 0) {
    if (FindWord(s, "UNION") != std::string_view::npos) return kDbQSetOperation;
    size_t into = FindWord(s, "INTO");
    size_t from = FindWord(s, "FROM");
    if (into != std::string_view::npos && (from == std::string_view::npos || into < from))
      return kDbQMakeTable;
  }
  return kDbQSelect;
}

int QueryTypeOf(int operation, std::string_view sql) {
  for (const auto& o : kOperationTypes)
    if (o.Operation == operation) return o.Type;
  return QueryTypeOfSql(sql);
}

QueryExport QueryFromExport(const std::vector<std::string>& lines, std::string* note) {
  QueryExport out;
  Grid g;
  bool hasGrid = false;
  std::string connect;
  for (size_t i = 0; i < lines.size(); ++i) {
    std::string_view t = Trim(lines[i]);
    if (IStartsWith(t, "dbMemo \"SQL\"")) {
      out.Sql = QuotedValueAt(lines, &i);
      continue;
    }
    // A query that carries an ODBC connection is a pass-through query; its
    // export has no grid to say so.
    if (IStartsWith(t, "dbMemo \"Connect\"")) {
      connect = QuotedValueAt(lines, &i);
      continue;
    }
    if (IStartsWith(t, "Begin ")) {
      std::string block(Trim(t.substr(6)));
      hasGrid = true;
      ReadBlock(lines, &i, block, &g);
      continue;
    }
    std::string key = KeyOf(t);
    if (key == "Operation") g.Operation = std::atoi(NumberText(t).c_str());
    // The target table stands ahead of the grid; the layout blocks at the
    // end name their tables as well.
    if (key == "Name" && !hasGrid) g.Target = QuotedValueAt(lines, &i);
    if (key == "Option") g.Option = std::atoi(NumberText(t).c_str());
    if (key == "Where") g.Where = QuotedValueAt(lines, &i);
    if (key == "Having") g.Having = QuotedValueAt(lines, &i);
  }
  out.Operation = g.Operation;
  if (out.Operation == 0 && IStartsWith(Trim(connect), "ODBC;"))
    out.Operation = kPassThroughOperation;
  while (!out.Sql.empty() && (out.Sql.back() == '\n' || out.Sql.back() == '\r')) out.Sql.pop_back();
  if (!out.Sql.empty() || !hasGrid) return out;
  switch (g.Operation) {
    case 0:
    case 1:
      out.Sql = SelectSql(g);
      break;
    case 2:
      if (!g.Target.empty()) out.Sql = MakeTableSql(g);
      break;
    case 3:
      if (!g.Target.empty()) out.Sql = AppendSql(g);
      break;
    case 4:
      out.Sql = UpdateSql(g);
      break;
    case 5:
      out.Sql = DeleteSql(g);
      break;
    case kCrosstabOperation:
      out.Sql = CrosstabSql(g);
      break;
    default:
      break;
  }
  out.FromGrid = !out.Sql.empty();
  if (out.Sql.empty() && note) {
    *note =
        "no SQL text, and a grid of operation " + std::to_string(g.Operation) + " is not rebuilt";
  }
  return out;
}

}  // namespace morvane

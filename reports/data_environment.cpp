// The data environment: the command of each report's record source and the
// text of rptEnvironment.dsr. A table or saved query without group levels
// is opened by name; with group levels it is read through a statement
// ordered by the levels. A SELECT statement stays a statement, its own order
// replaced by the levels' order. The fields come from the catalog.
#include "reports/data_environment.h"

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <cstdio>
#include <string_view>

#include "design/form_design.h"
#include "forms/frm_text.h"
#include "forms/query_fields.h"
#include "session/naming.h"

namespace morvane {

namespace {

constexpr std::string_view kTypeLibGuid = "{5C0D1E2A-7B3F-4E61-9A48-3D2B6F1C8E07}";
constexpr std::string_view kTypeInfoGuid = "{A8E4F7B1-2C69-4D35-8F0E-61B7C3D92A54}";

// A command text longer than this goes into rptEnvironment.dsx, as the
// designer keeps long texts out of its property lines.
constexpr size_t kLongText = 255;

// The three type lines of a field by its DAO type; text for any other.
struct FieldTypeRow {
  int dao;
  const char* precision;
  const char* size;  // nullptr: the field's own Size
  const char* type;
};

constexpr FieldTypeRow kFieldTypes[] = {
    {kDbBoolean, "0", "2", "11"},
    {kDbByte, "3", "1", "17"},
    {kDbInteger, "5", "2", "2"},
    {kDbLong, "10", "4", "3"},
    {kDbCurrency, "19", "8", "6"},
    {kDbSingle, "7", "4", "4"},
    {kDbDouble, "16", "5", "5"},
    {kDbDate, "0", "8", "7"},
    {kDbLongBinary, "0", "1073741824", "205"},
    {kDbMemo, "0", "1073741824", "201"},
    {kDbGuid, "0", "16", "72"},
};

// The ADO type, the Visual Basic type of the value and the size of a
// parameter by its DAO type; text for any other.
struct ParameterTypeRow {
  int dao;
  int adoType;
  int hostType;
  int size;
};

constexpr ParameterTypeRow kParameterTypes[] = {
    {kDbBoolean, 11, 11, 2}, {kDbByte, 17, 17, 1},   {kDbInteger, 2, 2, 2},
    {kDbLong, 3, 3, 4},      {kDbCurrency, 6, 6, 8}, {kDbSingle, 4, 4, 4},
    {kDbDouble, 5, 5, 8},    {kDbDate, 7, 7, 8},     {0, 12, 12, 16},
};

// The type words of Jet's PARAMETERS clause.
struct JetTypeWord {
  std::string_view word;
  int dao;
};

constexpr JetTypeWord kJetTypes[] = {
    {"Bit", kDbBoolean},
    {"YesNo", kDbBoolean},
    {"Logical", kDbBoolean},
    {"Logical1", kDbBoolean},
    {"Byte", kDbByte},
    {"Integer1", kDbByte},
    {"TinyInt", kDbByte},
    {"Short", kDbInteger},
    {"SmallInt", kDbInteger},
    {"Integer2", kDbInteger},
    {"Long", kDbLong},
    {"Int", kDbLong},
    {"Integer", kDbLong},
    {"Integer4", kDbLong},
    {"Counter", kDbLong},
    {"AutoIncrement", kDbLong},
    {"Currency", kDbCurrency},
    {"Money", kDbCurrency},
    {"Single", kDbSingle},
    {"Real", kDbSingle},
    {"Float4", kDbSingle},
    {"IEEESingle", kDbSingle},
    {"Double", kDbDouble},
    {"Float", kDbDouble},
    {"Float8", kDbDouble},
    {"IEEEDouble", kDbDouble},
    {"Number", kDbDouble},
    {"Numeric", kDbDouble},
    {"Decimal", kDbDouble},
    {"DateTime", kDbDate},
    {"Date", kDbDate},
    {"Time", kDbDate},
    {"TimeStamp", kDbDate},
    {"Text", kDbText},
    {"Char", kDbText},
    {"VarChar", kDbText},
    {"String", kDbText},
    {"AlphaNumeric", kDbText},
    {"Memo", kDbMemo},
    {"LongText", kDbMemo},
    {"LongChar", kDbMemo},
    {"Note", kDbMemo},
    {"Value", 0},
};

std::string Quoted(std::string_view text) { return "\"" + EscapeQuotes(text) + "\""; }

// A statement on one line: its line breaks become blanks.
std::string OneLineSql(std::string_view sql) {
  std::string out;
  for (size_t i = 0; i < sql.size(); ++i) {
    if (sql[i] == '\r' || sql[i] == '\n') {
      if (sql[i] == '\r' && i + 1 < sql.size() && sql[i + 1] == '\n') ++i;
      out += ' ';
    } else {
      out += sql[i];
    }
  }
  return out;
}

bool IsWordChar(char c) {
  const auto u = static_cast<unsigned char>(c);
  return std::isalnum(u) || c == '_' || u >= 0x80;
}

// The positions of the statement's top-level ORDER BY and of its end (a
// final ";"), outside strings, brackets and parentheses.
struct StatementShape {
  size_t orderBy = std::string::npos;
  size_t end = std::string::npos;
};

StatementShape ShapeOf(std::string_view sql) {
  StatementShape shape;
  int depth = 0;
  for (size_t i = 0; i < sql.size(); ++i) {
    const char c = sql[i];
    if (c == '"' || c == '\'' || c == '[' || c == '#') {
      const char close = c == '[' ? ']' : c;
      const size_t j = sql.find(close, i + 1);
      if (j == std::string_view::npos) break;
      i = j;
    } else if (c == '(') {
      ++depth;
    } else if (c == ')') {
      --depth;
    } else if (depth == 0 && c == ';' && shape.end == std::string::npos) {
      // A PARAMETERS clause ends in ";" too; the statement goes on behind it.
      if (!StartsWithNoCase(TrimBlanks(sql.substr(0, i)), "PARAMETERS")) shape.end = i;
    } else if (depth == 0 && (i == 0 || !IsWordChar(sql[i - 1])) &&
               StartsWithNoCase(sql.substr(i), "ORDER") &&
               (i + 5 == sql.size() || !IsWordChar(sql[i + 5]))) {
      size_t k = i + 5;
      while (k < sql.size() && std::isspace(static_cast<unsigned char>(sql[k]))) ++k;
      if (StartsWithNoCase(sql.substr(k), "BY")) shape.orderBy = i;
    }
  }
  return shape;
}

// A field name as an ORDER BY list holds it: in brackets unless it is a
// plain word.
std::string SortName(const std::string& name) {
  if (name.empty() || name.front() == '[') return name;
  for (char c : name)
    if (!IsWordChar(c)) return "[" + name + "]";
  return name;
}

std::optional<FieldInfo> FindField(const std::optional<std::vector<FieldInfo>>& fields,
                                   const std::string& name) {
  if (!fields) return std::nullopt;
  std::string bare = name;
  if (bare.size() > 2 && bare.front() == '[' && bare.back() == ']')
    bare = bare.substr(1, bare.size() - 2);
  for (const FieldInfo& f : *fields)
    if (EqualsNoCase(f.Name, bare)) return f;
  return std::nullopt;
}

void AddFieldType(std::string& text, const FieldInfo& f) {
  for (const FieldTypeRow& row : kFieldTypes) {
    if (row.dao != f.Type) continue;
    AddLine(text, std::string("Precision = ") + row.precision);
    AddLine(text, std::string("Size = ") + row.size);
    AddLine(text, std::string("Type = ") + row.type);
    return;
  }
  // A text whose size the catalog does not know takes Access's longest.
  AddLine(text, "Precision = 0");
  AddLine(text, "Size = " + std::to_string(f.Size > 0 ? f.Size : 255));
  AddLine(text, "Type = 200");
}

void AddParameter(std::string& text, size_t number, const CommandParameter& p) {
  const ParameterTypeRow* type = nullptr;
  for (const ParameterTypeRow& row : kParameterTypes)
    if (row.dao == p.DaoType) type = &row;
  AddLine(text, "BeginProperty P" + std::to_string(number));
  AddLine(text, "RealName = " + Quoted(p.Name));
  AddLine(text, "UserName = " + Quoted("Param" + std::to_string(number)));
  AddLine(text, "Direction = 1");
  AddLine(text, "Precision = 0");
  AddLine(text, "Scale = 0");
  AddLine(text, "Size = " + std::to_string(type ? type->size : 255));
  AddLine(text, "DataType = " + std::to_string(type ? type->adoType : 202));
  AddLine(text, "HostType = " + std::to_string(type ? type->hostType : 8));
  AddLine(text, "Required = -1");
  AddLine(text, "EndProperty");
}

// "1" and the number padded to three digits.
std::string DispId(int n) {
  std::string digits = std::to_string(n);
  if (digits.size() < 3) digits.insert(0, 3 - digits.size(), '0');
  return "1" + digits;
}

bool SameCommand(const ReportCommand& a, const ReportCommand& b) {
  if (a.Text != b.Text || a.Type != b.Type || a.Grouped != b.Grouped ||
      a.Groups.size() != b.Groups.size())
    return false;
  for (size_t i = 0; i < a.Groups.size(); ++i)
    if (!EqualsNoCase(a.Groups[i].Name, b.Groups[i].Name)) return false;
  return true;
}

}  // namespace

bool IsStatementSource(std::string_view source) {
  if (IsSelectStatement(source)) return true;
  size_t end = 0;
  while (end < source.size() && std::isalpha(static_cast<unsigned char>(source[end]))) ++end;
  if (end == source.size() || !std::isspace(static_cast<unsigned char>(source[end]))) return false;
  const std::string_view word = source.substr(0, end);
  return EqualsNoCase(word, "SELECT") || EqualsNoCase(word, "PARAMETERS") ||
         EqualsNoCase(word, "TRANSFORM");
}

std::string CommandBaseName(const std::string& reportName, const std::string& recordSource) {
  std::string name = SafeName(IsStatementSource(recordSource) ? reportName : recordSource);
  // A command becomes a method of the environment: its name begins with a
  // letter.
  if (name.empty() || !(StartsWithLetter(name) || static_cast<unsigned char>(name[0]) >= 0xC0))
    name = "cmd" + name;
  return name;
}

std::vector<CommandParameter> StatementParameters(const std::string& sql) {
  std::vector<CommandParameter> out;
  auto add = [&out](const std::string& name, int type) {
    for (const CommandParameter& p : out)
      if (EqualsNoCase(p.Name, name)) return;
    out.push_back({name, type});
  };
  const std::string text = TrimBlanks(OneLineSql(sql));
  if (StartsWithNoCase(text, "PARAMETERS") && text.size() > 10 && !IsWordChar(text[10])) {
    size_t end = 10;
    while (end < text.size() && text[end] != ';') {
      if (text[end] == '[') end = std::min(text.find(']', end), text.size() - 1);
      ++end;
    }
    const std::string clause = text.substr(10, end - 10);
    size_t i = 0;
    while (i < clause.size()) {
      while (i < clause.size() && (clause[i] == ' ' || clause[i] == ',')) ++i;
      if (i >= clause.size()) break;
      std::string name;
      if (clause[i] == '[') {
        const size_t close = clause.find(']', i);
        name = clause.substr(i + 1, (close == std::string::npos ? clause.size() : close) - i - 1);
        i = close == std::string::npos ? clause.size() : close + 1;
      } else {
        const size_t start = i;
        while (i < clause.size() && clause[i] != ' ' && clause[i] != ',') ++i;
        name = clause.substr(start, i - start);
      }
      while (i < clause.size() && clause[i] == ' ') ++i;
      const size_t wordStart = i;
      while (i < clause.size() && IsWordChar(clause[i])) ++i;
      const std::string word = clause.substr(wordStart, i - wordStart);
      int type = kDbText;
      for (const JetTypeWord& j : kJetTypes)
        if (EqualsNoCase(j.word, word)) type = j.dao;
      // A size in parentheses, then the next entry.
      while (i < clause.size() && clause[i] != ',') ++i;
      if (!name.empty()) add(name, type);
    }
  }
  // A control of a form read by the statement: [Forms]![frm]![ctl].
  for (size_t at = FindNoCase(text, "[Forms]!"); at != std::string::npos;
       at = FindNoCase(text, "[Forms]!", at + 1)) {
    size_t end = at;
    std::string name;
    while (end < text.size() && text[end] == '[') {
      const size_t close = text.find(']', end);
      if (close == std::string::npos) break;
      name += (name.empty() ? "" : "!") + text.substr(end + 1, close - end - 1);
      end = close + 1;
      if (end < text.size() && text[end] == '!') ++end;
    }
    if (name.find('!') != std::string::npos) add(name, kDbText);
  }
  return out;
}

std::optional<ReportCommand> CommandFor(const FormDesign& report, const Catalog* db) {
  const std::string source = report.Text("RecordSource").value_or("");
  if (source.empty()) return std::nullopt;
  ReportCommand c;
  c.Name = CommandBaseName(report.Name(), source);
  c.Source = source;
  c.Statement = IsStatementSource(source);
  c.HasLevels = !report.GroupLevels().empty();

  for (const GroupLevelDesign& level : report.GroupLevels()) {
    const std::string field = level.Text("ControlSource").value_or("");
    if (field.empty() || field.front() == '=') continue;
    if (!c.OrderList.empty()) c.OrderList += ", ";
    c.OrderList += SortName(field) + (level.Flag("SortOrder").value_or(false) ? " DESC" : " ASC");
    if (level.Flag("GroupHeader").value_or(false) || level.Flag("GroupFooter").value_or(false)) {
      c.Grouped = true;
      c.Groups.push_back({field, std::nullopt});
    }
  }

  if (c.Statement) {
    c.Parameters = StatementParameters(source);
  } else if (db) {
    if (auto query = db->QueryDef(source)) c.Parameters = StatementParameters(query->Sql);
  }
  if (db) {
    if (c.Statement) {
      c.Fields = SelectFields(*db, source);
    } else {
      c.Fields = QueryFields(*db, source);
      if (!c.Fields) c.Fields = TableFields(*db, source);
    }
  }
  for (ReportCommand::Group& g : c.Groups) g.Field = FindField(c.Fields, g.Name);
  SetCommandText(c);
  return c;
}

bool CanAddColumns(const ReportCommand& c) {
  if (!c.Statement) return true;
  // The statement becomes a subquery, whose own order would not hold
  // outside it; the levels' order does.
  const std::string sql = OneLineSql(c.Source);
  return c.HasLevels ? !c.OrderList.empty() : ShapeOf(sql).orderBy == std::string::npos;
}

void SetCommandText(ReportCommand& c) {
  std::string columns;
  for (const CalculatedColumn& col : c.Columns)
    columns += ", (" + col.Expression + ") AS [" + col.Name + "]";
  const std::string order = c.OrderList.empty() ? "" : " Order By " + c.OrderList;
  if (c.Statement) {
    // The statement as it stands, its own order giving way to the levels'.
    std::string sql = OneLineSql(c.Source);
    const StatementShape shape = ShapeOf(sql);
    if (c.Columns.empty()) {
      if (c.HasLevels && !c.OrderList.empty()) {
        sql = TrimBlanks(sql.substr(0, std::min(shape.orderBy, shape.end))) + order;
      } else if (shape.end != std::string::npos) {
        sql = TrimBlanks(sql.substr(0, shape.end));
      }
    } else {
      // Calculated columns over the statement as a subquery; a PARAMETERS
      // clause stays in front of the whole.
      std::string head;
      if (StartsWithNoCase(sql, "PARAMETERS")) {
        const size_t semicolon = sql.find(';');
        head = TrimBlanks(sql.substr(0, semicolon + 1)) + " ";
        sql = TrimBlanks(sql.substr(semicolon + 1));
      }
      const StatementShape inner = ShapeOf(sql);
      sql = head + "Select q.*" + columns + " From (" +
            TrimBlanks(sql.substr(0, std::min(inner.orderBy, inner.end))) + ") AS q" + order;
    }
    c.Text = sql;
    c.Type = 1;
  } else if (!c.HasLevels && c.Parameters.empty() && c.Columns.empty()) {
    c.Text = c.Source;
    c.Type = 2;
  } else {
    // A query with parameters is read through a statement, which passes
    // the parameters on.
    c.Text = "Select *" + columns + " From [" + c.Source + "]" + order;
    c.Type = 1;
  }
}

ReportCommand DataEnvironment::Add(ReportCommand command) {
  const std::string base = command.Name;
  for (int n = 2;; ++n) {
    const ReportCommand* same = nullptr;
    for (const ReportCommand& c : commands_)
      if (EqualsNoCase(c.Name, command.Name)) same = &c;
    if (!same) break;
    if (SameCommand(*same, command)) return *same;
    command.Name = base + std::to_string(n);
  }
  commands_.push_back(std::move(command));
  return commands_.back();
}

std::string DataEnvironment::Text(const std::string& connection, std::string* dsx) const {
  std::string t;
  AddLine(t, "VERSION 5.00");
  AddLine(t, "Begin {C0E45035-5775-11D0-B388-00A0C9055D8E} rptEnvironment");
  AddLine(t, "ClientHeight = 8595");
  AddLine(t, "ClientLeft = 0");
  AddLine(t, "ClientTop = 0");
  AddLine(t, "ClientWidth = 10065");
  AddLine(t, "_ExtentX = 17754");
  AddLine(t, "_ExtentY = 15161");
  AddLine(t, "FolderFlags = 1");
  AddLine(t, "TypeLibGuid = \"" + std::string(kTypeLibGuid) + "\"");
  AddLine(t, "TypeInfoGuid = \"" + std::string(kTypeInfoGuid) + "\"");
  AddLine(t, "TypeInfoCookie = 0");
  AddLine(t, "Version = 4");
  AddLine(t, "NumConnections = 1");
  AddLine(t, "BeginProperty Connection1");
  AddLine(t, "ConnectionName = \"Connection1\"");
  AddLine(t, "ConnDispId = 1001");
  AddLine(t, "SourceOfData = 3");
  AddLine(t, "ConnectionSource= " + Quoted(connection));
  AddLine(t, "Expanded = -1");
  AddLine(t, "QuoteChar = 96");
  AddLine(t, "SeparatorChar = 46");
  AddLine(t, "EndProperty");
  AddLine(t, "NumRecordsets = " + std::to_string(commands_.size()));

  int dispId = 2;
  for (size_t k = 0; k < commands_.size(); ++k) {
    const ReportCommand& c = commands_[k];
    AddLine(t, "BeginProperty Recordset" + std::to_string(k + 1));
    AddLine(t, "CommandName = " + Quoted(c.Name));
    AddLine(t, "CommDispId = " + DispId(dispId++));
    AddLine(t, "RsDispId = " + DispId(dispId++));
    if (c.Text.size() > kLongText && dsx) {
      char offset[24];
      std::snprintf(offset, sizeof offset, "%04zX", dsx->size());
      const auto n = static_cast<uint32_t>(c.Text.size());
      for (int i = 0; i < 4; ++i) *dsx += static_cast<char>((n >> (8 * i)) & 0xFF);
      *dsx += c.Text;
      AddLine(t, "CommandText = $\"rptEnvironment.dsx\":" + std::string(offset));
    } else {
      AddLine(t, "CommandText = " + Quoted(c.Text));
    }
    if (c.Grouped) {
      AddLine(t, "Grouping = -1");
      AddLine(t, "GroupingName = " + Quoted(c.GroupingName()));
    }
    AddLine(t, "CommandType = " + std::to_string(c.Type));
    AddLine(t, "ActiveConnectionName = \"Connection1\"");
    AddLine(t, "IsRSReturning = -1");
    if (c.Fields) {
      AddLine(t, "NumFields = " + std::to_string(c.Fields->size()));
      for (size_t i = 0; i < c.Fields->size(); ++i) {
        const FieldInfo& f = (*c.Fields)[i];
        AddLine(t, "BeginProperty Field" + std::to_string(i + 1));
        AddFieldType(t, f);
        AddLine(t, "Scale = 0");
        AddLine(t, "Name = " + Quoted(f.Name));
        AddLine(t, "Caption = " + Quoted(f.Name));
        AddLine(t, "EndProperty");
      }
    }
    AddLine(t, "NumGroups = " + std::to_string(c.Groups.size()));
    for (size_t i = 0; i < c.Groups.size(); ++i) {
      const ReportCommand::Group& g = c.Groups[i];
      AddLine(t, "BeginProperty Grouping" + std::to_string(i + 1));
      if (g.Field) AddFieldType(t, *g.Field);
      AddLine(t, "Scale = 0");
      AddLine(t, "Name = " + Quoted(g.Name));
      AddLine(t, "Caption = " + Quoted(g.Name));
      AddLine(t, "EndProperty");
    }
    AddLine(t, "ParamCount = " + std::to_string(c.Parameters.size()));
    for (size_t i = 0; i < c.Parameters.size(); ++i) AddParameter(t, i + 1, c.Parameters[i]);
    AddLine(t, "RelationCount = 0");
    AddLine(t, "AggregateCount = 0");
    AddLine(t, "EndProperty");
  }
  AddLine(t, "End");
  AddLine(t, "Attribute VB_Name = \"rptEnvironment\"");
  AddLine(t, "Attribute VB_GlobalNameSpace = False");
  AddLine(t, "Attribute VB_Creatable = True");
  AddLine(t, "Attribute VB_PredeclaredId = True");
  AddLine(t, "Attribute VB_Exposed = False");
  return t;
}

}  // namespace morvane

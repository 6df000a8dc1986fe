// Field lists of tables, saved queries and SELECT statements. A statement is
// cut into tokens, its FROM clause gives the tables and queries it reads (by
// name or alias, subqueries included), and each item of its select list
// becomes one field the way Jet names it: the column's own name, the alias
// after AS, "Expr1000" and up for an expression without one, and
// "Table.Field" where two columns of different tables share a name.
#include "forms/query_fields.h"

#include <cctype>
#include <string_view>

#include "session/naming.h"

namespace morvane {

namespace {

// Queries read queries; a chain deeper than this is taken for a loop.
constexpr int kMaxDepth = 16;

enum class Tok { Word, Name, String, Number, Date, Punct };

struct Token {
  Tok kind;
  std::string text;  // a [name] without its brackets, a string without its quotes
};

bool IsWordStart(unsigned char c) { return std::isalpha(c) || c == '_' || c >= 0x80; }
bool IsWordChar(unsigned char c) { return IsWordStart(c) || std::isdigit(c) || c == '$'; }

std::vector<Token> Tokenize(std::string_view sql) {
  std::vector<Token> out;
  size_t i = 0;
  const size_t n = sql.size();
  while (i < n) {
    const unsigned char c = static_cast<unsigned char>(sql[i]);
    if (std::isspace(c)) {
      ++i;
    } else if (c == '[') {
      size_t close = sql.find(']', i + 1);
      if (close == std::string_view::npos) close = n;
      out.push_back({Tok::Name, std::string(sql.substr(i + 1, close - i - 1))});
      i = close + 1;
    } else if (c == '"' || c == '\'') {
      std::string text;
      size_t j = i + 1;
      while (j < n) {
        if (sql[j] == static_cast<char>(c)) {
          if (j + 1 < n && sql[j + 1] == static_cast<char>(c)) {
            text += sql[j];
            j += 2;
            continue;
          }
          break;
        }
        text += sql[j++];
      }
      out.push_back({Tok::String, text});
      i = j + 1;
    } else if (c == '#') {
      size_t close = sql.find('#', i + 1);
      if (close == std::string_view::npos) close = n;
      out.push_back({Tok::Date, std::string(sql.substr(i + 1, close - i - 1))});
      i = close + 1;
    } else if (std::isdigit(c) ||
               (c == '.' && i + 1 < n && std::isdigit(static_cast<unsigned char>(sql[i + 1])))) {
      size_t j = i;
      while (j < n && (std::isdigit(static_cast<unsigned char>(sql[j])) || sql[j] == '.')) ++j;
      if (j < n && (sql[j] == 'e' || sql[j] == 'E')) {
        size_t k = j + 1;
        if (k < n && (sql[k] == '+' || sql[k] == '-')) ++k;
        if (k < n && std::isdigit(static_cast<unsigned char>(sql[k]))) {
          j = k;
          while (j < n && std::isdigit(static_cast<unsigned char>(sql[j]))) ++j;
        }
      }
      out.push_back({Tok::Number, std::string(sql.substr(i, j - i))});
      i = j;
    } else if (IsWordStart(c)) {
      size_t j = i;
      while (j < n && IsWordChar(static_cast<unsigned char>(sql[j]))) ++j;
      out.push_back({Tok::Word, std::string(sql.substr(i, j - i))});
      i = j;
    } else {
      std::string op(1, static_cast<char>(c));
      if (i + 1 < n && (c == '<' || c == '>') && (sql[i + 1] == '=' || sql[i + 1] == '>'))
        op += sql[i + 1];
      out.push_back({Tok::Punct, op});
      i += op.size();
    }
  }
  return out;
}

using Tokens = std::vector<Token>;

bool IsWord(const Token& t, std::string_view word) {
  return t.kind == Tok::Word && EqualsNoCase(t.text, word);
}
bool IsPunct(const Token& t, std::string_view p) { return t.kind == Tok::Punct && t.text == p; }
bool IsIdent(const Token& t) { return t.kind == Tok::Word || t.kind == Tok::Name; }

// Words that end a clause or join tables; none of them is an alias.
constexpr std::string_view kClauseWords[] = {
    "SELECT", "FROM", "WHERE", "GROUP", "HAVING", "ORDER", "UNION", "PIVOT", "WITH", "INTO",
    "INNER",  "LEFT", "RIGHT", "OUTER", "FULL",   "CROSS", "JOIN",  "ON",    "IN",   "AS",
};

bool IsClauseWord(const Token& t) {
  if (t.kind != Tok::Word) return false;
  for (std::string_view w : kClauseWords)
    if (EqualsNoCase(t.text, w)) return true;
  return false;
}

// The index of the first token at parenthesis depth 0, from `from`, for
// which `stop` holds; `end` when none.
template <typename Stop>
size_t FindTopLevel(const Tokens& t, size_t from, size_t end, Stop stop) {
  int depth = 0;
  for (size_t i = from; i < end; ++i) {
    if (IsPunct(t[i], "(")) {
      ++depth;
    } else if (IsPunct(t[i], ")")) {
      --depth;
    } else if (depth == 0 && stop(t[i])) {
      return i;
    }
  }
  return end;
}

size_t MatchingParen(const Tokens& t, size_t open, size_t end) {
  int depth = 0;
  for (size_t i = open; i < end; ++i) {
    if (IsPunct(t[i], "(")) ++depth;
    if (IsPunct(t[i], ")") && --depth == 0) return i;
  }
  return end;
}

// One table, query or subquery of a FROM clause.
struct Source {
  std::string Alias;  // the alias, else the name
  std::vector<FieldInfo> Fields;
};

// One field of the result, with what the duplicate rule needs.
struct Column {
  FieldInfo Field;
  std::string SourceAlias;  // a column of a source that the statement did not rename
};

std::optional<std::vector<FieldInfo>> ParseSelect(const Catalog& db, const Tokens& t, size_t begin,
                                                  size_t end, int depth);
std::optional<std::vector<FieldInfo>> FieldsByName(const Catalog& db, const std::string& name,
                                                   int depth);

const FieldInfo* FindField(const std::vector<FieldInfo>& fields, const std::string& name) {
  for (const FieldInfo& f : fields)
    if (EqualsNoCase(f.Name, name)) return &f;
  return nullptr;
}

const Source* FindSource(const std::vector<Source>& sources, const std::string& alias) {
  for (const Source& s : sources)
    if (EqualsNoCase(s.Alias, alias)) return &s;
  return nullptr;
}

// The alias after a source that ends at token `i`, "AS" written or left
// out; moves `i` onto the alias's last token. Keeps `alias` without one.
void ReadAlias(const Tokens& t, size_t& i, size_t end, std::string& alias) {
  if (i + 2 < end && IsWord(t[i + 1], "AS") && IsIdent(t[i + 2])) {
    alias = t[i + 2].text;
    i += 2;
  } else if (i + 1 < end && IsIdent(t[i + 1]) && !IsClauseWord(t[i + 1])) {
    alias = t[i + 1].text;
    i += 1;
  }
}

// The tables, queries and subqueries of a FROM clause, in their order.
// Parentheses around joins and the conditions after ON are stepped over.
std::vector<Source> ParseFrom(const Catalog& db, const Tokens& t, size_t begin, size_t end,
                              int depth) {
  std::vector<Source> sources;
  bool expectTable = true;
  bool inCondition = false;
  int conditionDepth = 0;
  for (size_t i = begin; i < end; ++i) {
    const Token& tok = t[i];
    if (inCondition) {
      if (IsPunct(tok, "(")) {
        ++conditionDepth;
        continue;
      }
      if (IsPunct(tok, ")")) {
        // A parenthesis the condition did not open closes a nested join.
        if (conditionDepth-- == 0) inCondition = false;
        continue;
      }
      if (conditionDepth > 0) continue;
      if (IsPunct(tok, ",")) {
        inCondition = false;
        expectTable = true;
        continue;
      }
      if (!(IsWord(tok, "INNER") || IsWord(tok, "LEFT") || IsWord(tok, "RIGHT") ||
            IsWord(tok, "FULL") || IsWord(tok, "CROSS") || IsWord(tok, "JOIN")))
        continue;
      inCondition = false;
    }
    if (IsPunct(tok, "(")) {
      if (i + 1 < end && IsWord(t[i + 1], "SELECT")) {
        const size_t close = MatchingParen(t, i, end);
        Source sub;
        if (auto fields = ParseSelect(db, t, i + 1, close, depth + 1)) sub.Fields = *fields;
        i = close;
        ReadAlias(t, i, end, sub.Alias);
        sources.push_back(std::move(sub));
        expectTable = false;
      }
      continue;
    }
    if (IsPunct(tok, ")")) {
      expectTable = false;
    } else if (IsPunct(tok, ",") || IsWord(tok, "JOIN")) {
      expectTable = true;
    } else if (IsWord(tok, "ON")) {
      inCondition = true;
      conditionDepth = 0;
    } else if (IsWord(tok, "IN")) {
      // A table of another database: FROM T IN 'c:\other.mdb'.
      if (i + 1 < end && t[i + 1].kind == Tok::String) ++i;
    } else if (expectTable && IsIdent(tok) && !IsClauseWord(tok)) {
      // A qualified name keeps its last part: [;DATABASE=x.mdb].[T].
      std::string name = tok.text;
      while (i + 2 < end && IsPunct(t[i + 1], ".") && IsIdent(t[i + 2])) {
        name = t[i + 2].text;
        i += 2;
      }
      Source source;
      source.Alias = name;
      if (auto fields = FieldsByName(db, name, depth + 1)) source.Fields = *fields;
      ReadAlias(t, i, end, source.Alias);
      sources.push_back(std::move(source));
      expectTable = false;
    }
  }
  return sources;
}

// Functions whose result type does not depend on their arguments.
struct FunctionType {
  std::string_view Name;
  int Type;
};
constexpr FunctionType kFunctionTypes[] = {
    {"Count", kDbLong},      {"Avg", kDbDouble},       {"StDev", kDbDouble},
    {"StDevP", kDbDouble},   {"Var", kDbDouble},       {"VarP", kDbDouble},
    {"Format", kDbText},     {"Format$", kDbText},     {"Left", kDbText},
    {"Left$", kDbText},      {"Right", kDbText},       {"Right$", kDbText},
    {"Mid", kDbText},        {"Mid$", kDbText},        {"Trim", kDbText},
    {"Trim$", kDbText},      {"LTrim", kDbText},       {"RTrim", kDbText},
    {"UCase", kDbText},      {"UCase$", kDbText},      {"LCase", kDbText},
    {"LCase$", kDbText},     {"Str", kDbText},         {"Str$", kDbText},
    {"CStr", kDbText},       {"Chr", kDbText},         {"Chr$", kDbText},
    {"Date", kDbDate},       {"Now", kDbDate},         {"Time", kDbDate},
    {"DateSerial", kDbDate}, {"DateAdd", kDbDate},     {"DateValue", kDbDate},
    {"TimeSerial", kDbDate}, {"CDate", kDbDate},       {"CVDate", kDbDate},
    {"CLng", kDbLong},       {"CInt", kDbInteger},     {"CByte", kDbByte},
    {"CDbl", kDbDouble},     {"CSng", kDbSingle},      {"CCur", kDbCurrency},
    {"CBool", kDbBoolean},   {"Year", kDbInteger},     {"Month", kDbInteger},
    {"Day", kDbInteger},     {"Weekday", kDbInteger},  {"Hour", kDbInteger},
    {"Minute", kDbInteger},  {"DatePart", kDbInteger}, {"DateDiff", kDbLong},
    {"Len", kDbLong},        {"InStr", kDbLong},       {"Val", kDbDouble},
};
// Aggregates that keep the type of what they gather.
constexpr std::string_view kSameTypeFunctions[] = {"Sum", "Min", "Max", "First", "Last"};

// A column reference: name, or qualifier "." name (also "!"); nullopt for
// anything else.
struct ColumnRef {
  std::string Qualifier;
  std::string Name;
};
std::optional<ColumnRef> AsColumnRef(const Tokens& t, size_t begin, size_t end) {
  if (begin >= end || !IsIdent(t[begin])) return std::nullopt;
  if (t[begin].kind == Tok::Word &&
      (IsWord(t[begin], "True") || IsWord(t[begin], "False") || IsWord(t[begin], "Null")))
    return std::nullopt;
  ColumnRef ref{"", t[begin].text};
  size_t i = begin + 1;
  while (i + 1 < end && (IsPunct(t[i], ".") || IsPunct(t[i], "!")) && IsIdent(t[i + 1])) {
    ref.Qualifier = ref.Name;
    ref.Name = t[i + 1].text;
    i += 2;
  }
  if (i != end) return std::nullopt;
  return ref;
}

const FieldInfo* ResolveColumn(const std::vector<Source>& sources, const ColumnRef& ref,
                               std::string* sourceAlias) {
  for (const Source& s : sources) {
    if (!ref.Qualifier.empty() && !EqualsNoCase(s.Alias, ref.Qualifier)) continue;
    if (const FieldInfo* f = FindField(s.Fields, ref.Name)) {
      if (sourceAlias) *sourceAlias = s.Alias;
      return f;
    }
  }
  return nullptr;
}

// The type Jet would give an expression, as far as its shape tells it.
int ExpressionType(const std::vector<Source>& sources, const Tokens& t, size_t begin, size_t end) {
  if (begin >= end) return kDbText;
  if (end - begin == 1) {
    switch (t[begin].kind) {
      case Tok::String:
        return kDbText;
      case Tok::Date:
        return kDbDate;
      case Tok::Number:
        return t[begin].text.find_first_of(".eE") == std::string::npos ? kDbLong : kDbDouble;
      default:
        break;
    }
    if (IsWord(t[begin], "True") || IsWord(t[begin], "False")) return kDbBoolean;
  }
  if (IsPunct(t[begin], "(") && MatchingParen(t, begin, end) == end - 1)
    return ExpressionType(sources, t, begin + 1, end - 1);
  if (auto ref = AsColumnRef(t, begin, end)) {
    const FieldInfo* f = ResolveColumn(sources, *ref, nullptr);
    return f ? f->Type : kDbText;
  }
  if (t[begin].kind == Tok::Word && begin + 1 < end && IsPunct(t[begin + 1], "(") &&
      MatchingParen(t, begin + 1, end) == end - 1) {
    for (const FunctionType& ft : kFunctionTypes)
      if (EqualsNoCase(t[begin].text, ft.Name)) return ft.Type;
    for (std::string_view name : kSameTypeFunctions)
      if (EqualsNoCase(t[begin].text, name)) return ExpressionType(sources, t, begin + 2, end - 1);
  }
  auto has = [&](auto pred) { return FindTopLevel(t, begin, end, pred) != end; };
  if (has([](const Token& x) { return IsPunct(x, "&"); })) return kDbText;
  if (has([](const Token& x) {
        return IsPunct(x, "=") || IsPunct(x, "<") || IsPunct(x, ">") || IsPunct(x, "<>") ||
               IsPunct(x, "<=") || IsPunct(x, ">=") || IsWord(x, "And") || IsWord(x, "Or") ||
               IsWord(x, "Not") || IsWord(x, "Like") || IsWord(x, "Is") || IsWord(x, "Between");
      }))
    return kDbBoolean;
  if (has([](const Token& x) {
        return IsPunct(x, "+") || IsPunct(x, "-") || IsPunct(x, "*") || IsPunct(x, "/") ||
               IsPunct(x, "\\") || IsPunct(x, "^") || IsWord(x, "Mod");
      }))
    return kDbDouble;
  return kDbText;
}

std::optional<std::vector<FieldInfo>> ParseSelect(const Catalog& db, const Tokens& t, size_t begin,
                                                  size_t end, int depth) {
  if (depth > kMaxDepth) return std::nullopt;
  size_t i = begin;
  if (i < end && IsWord(t[i], "PARAMETERS")) {
    i = FindTopLevel(t, i, end, [](const Token& x) { return IsPunct(x, ";"); });
    if (i < end) ++i;
  }
  if (i < end && IsWord(t[i], "TRANSFORM"))
    i = FindTopLevel(t, i, end, [](const Token& x) { return IsWord(x, "SELECT"); });
  if (i >= end || !IsWord(t[i], "SELECT")) return std::nullopt;
  ++i;
  // The predicate: ALL, DISTINCT, DISTINCTROW, TOP n [PERCENT].
  while (i < end) {
    if (IsWord(t[i], "ALL") || IsWord(t[i], "DISTINCT") || IsWord(t[i], "DISTINCTROW")) {
      ++i;
    } else if (IsWord(t[i], "TOP") && i + 1 < end) {
      i += 2;
      if (i < end && IsWord(t[i], "PERCENT")) ++i;
    } else {
      break;
    }
  }
  // The statement ends at a UNION or ";"; its first part gives the fields.
  end =
      FindTopLevel(t, i, end, [](const Token& x) { return IsWord(x, "UNION") || IsPunct(x, ";"); });
  const size_t listEnd = FindTopLevel(t, i, end, [](const Token& x) {
    return IsWord(x, "FROM") || IsWord(x, "INTO") || IsWord(x, "WHERE") || IsWord(x, "GROUP") ||
           IsWord(x, "HAVING") || IsWord(x, "ORDER");
  });
  if (listEnd == i) return std::nullopt;

  std::vector<Source> sources;
  const size_t from =
      FindTopLevel(t, listEnd, end, [](const Token& x) { return IsWord(x, "FROM"); });
  if (from < end) {
    const size_t fromEnd = FindTopLevel(t, from + 1, end, [](const Token& x) {
      return IsWord(x, "WHERE") || IsWord(x, "GROUP") || IsWord(x, "HAVING") ||
             IsWord(x, "ORDER") || IsWord(x, "PIVOT") || IsWord(x, "WITH");
    });
    sources = ParseFrom(db, t, from + 1, fromEnd, depth);
  }

  std::vector<Column> columns;
  int expressionCount = 0;
  size_t itemBegin = i;
  while (itemBegin < listEnd) {
    const size_t itemEnd =
        FindTopLevel(t, itemBegin, listEnd, [](const Token& x) { return IsPunct(x, ","); });
    size_t exprEnd = itemEnd;
    std::optional<std::string> alias;
    if (itemEnd - itemBegin >= 3 && IsWord(t[itemEnd - 2], "AS") &&
        (IsIdent(t[itemEnd - 1]) || t[itemEnd - 1].kind == Tok::String)) {
      alias = t[itemEnd - 1].text;
      exprEnd = itemEnd - 2;
    }
    const size_t length = exprEnd - itemBegin;
    if (length == 1 && IsPunct(t[itemBegin], "*")) {
      for (const Source& s : sources)
        for (const FieldInfo& f : s.Fields) columns.push_back({f, s.Alias});
    } else if (length == 3 && IsIdent(t[itemBegin]) && IsPunct(t[itemBegin + 1], ".") &&
               IsPunct(t[itemBegin + 2], "*")) {
      if (const Source* s = FindSource(sources, t[itemBegin].text))
        for (const FieldInfo& f : s->Fields) columns.push_back({f, s->Alias});
    } else if (auto ref = AsColumnRef(t, itemBegin, exprEnd)) {
      std::string sourceAlias;
      const FieldInfo* f = ResolveColumn(sources, *ref, &sourceAlias);
      // A name that no source has is a parameter to Jet, a text by default.
      Column c{{ref->Name, f ? f->Type : kDbText, f ? f->Size : 0}, sourceAlias};
      if (alias) {
        c.Field.Name = *alias;
        c.SourceAlias.clear();
      }
      columns.push_back(std::move(c));
    } else if (length > 0) {
      FieldInfo f;
      f.Type = ExpressionType(sources, t, itemBegin, exprEnd);
      f.Name = alias ? *alias : "Expr" + std::to_string(1000 + expressionCount++);
      columns.push_back({f, ""});
    }
    itemBegin = itemEnd + 1;
  }

  // Columns of different sources that share a name are told apart by their
  // source: "Order Details.OrderID".
  std::vector<FieldInfo> fields;
  for (const Column& c : columns) {
    FieldInfo f = c.Field;
    if (!c.SourceAlias.empty()) {
      for (const Column& other : columns)
        if (&other != &c && !other.SourceAlias.empty() &&
            !EqualsNoCase(other.SourceAlias, c.SourceAlias) &&
            EqualsNoCase(other.Field.Name, c.Field.Name)) {
          f.Name = c.SourceAlias + "." + c.Field.Name;
          break;
        }
    }
    fields.push_back(std::move(f));
  }
  return fields;
}

std::optional<std::vector<FieldInfo>> QueryFieldsAt(const Catalog& db, const std::string& name,
                                                    int depth) {
  if (depth > kMaxDepth) return std::nullopt;
  auto query = db.QueryDef(name);
  if (!query) return std::nullopt;
  const Tokens tokens = Tokenize(query->Sql);
  return ParseSelect(db, tokens, 0, tokens.size(), depth);
}

std::optional<std::vector<FieldInfo>> FieldsByName(const Catalog& db, const std::string& name,
                                                   int depth) {
  if (auto fields = TableFields(db, name)) return fields;
  return QueryFieldsAt(db, name, depth);
}

}  // namespace

bool IsSelectStatement(std::string_view source) {
  return source.size() >= 7 && ToLower(source.substr(0, 7)) == "select ";
}

std::optional<std::vector<FieldInfo>> QueryFields(const Catalog& db, const std::string& name) {
  return QueryFieldsAt(db, name, 0);
}

std::optional<std::vector<FieldInfo>> TableFields(const Catalog& db, const std::string& name) {
  auto table = db.TableDef(name);
  if (!table) return std::nullopt;
  return table->Fields;
}

std::optional<std::vector<FieldInfo>> SelectFields(const Catalog& db, const std::string& sql) {
  const Tokens tokens = Tokenize(sql);
  return ParseSelect(db, tokens, 0, tokens.size(), 0);
}

}  // namespace morvane

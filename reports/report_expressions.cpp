// Report expressions: page and date captions, aggregate items, and the test
// for an expression that Visual Basic can run as it stands.
#include "reports/report_expressions.h"

#include <cctype>

#include "session/naming.h"

namespace morvane {

namespace {

bool IsNameChar(char c) {
  const auto u = static_cast<unsigned char>(c);
  return std::isalnum(u) || c == '_' || u > 128;
}

std::string Trimmed(std::string_view text) {
  size_t b = 0, e = text.size();
  while (b < e && (text[b] == ' ' || text[b] == '\t')) ++b;
  while (e > b && (text[e - 1] == ' ' || text[e - 1] == '\t')) --e;
  return std::string(text.substr(b, e - b));
}

// The expression behind its "=".
std::string_view Body(std::string_view source) {
  if (!source.empty() && source.front() == '=') source.remove_prefix(1);
  return source;
}

constexpr std::string_view kPageDateMarks[] = {"[Page]", "[Pages]", "Time()", "Date()", "Now()"};

// Access's formatted dates and times, each a code of the report.
struct FormatCode {
  std::string_view expression;
  std::string_view code;
};

constexpr FormatCode kFormatCodes[] = {
    {"Format(Date(),\"Long Date\")", "%D"},   {"Format(Date(),\"Medium Date\")", "%D"},
    {"Format(Date(),\"Short Date\")", "%d"},  {"Format(Time(),\"Long Time\")", "%T"},
    {"Format(Time(),\"Medium Time\")", "%T"}, {"Format(Time(),\"Short Time\")", "%t"},
};

// Inside a longer text Access turns a date into text in its short form and
// a time in its long form.
constexpr FormatCode kEmbeddedCodes[] = {
    {"Now()", "%d %T"},
    {"Date()", "%d"},
    {"Time()", "%T"},
};

struct AggregateName {
  std::string_view name;
  int functionType;
};

constexpr AggregateName kAggregates[] = {
    {"Sum", 0}, {"Avg", 1}, {"Min", 2}, {"Max", 3}, {"Count", 4}, {"StDev", 6},
};

// Functions of Access's expressions that Visual Basic does not have.
constexpr std::string_view kAccessOnlyFunctions[] = {
    "Sum",    "Avg",  "Count", "Min",    "Max",     "StDev", "StDevP",
    "Var",    "VarP", "First", "Last",   "DLookup", "DSum",  "DAvg",
    "DCount", "DMin", "DMax",  "DFirst", "DLast",   "Nz",    "Eval",
};

// Functions of Access's expressions that Jet computes for any program.
constexpr std::string_view kJetFunctions[] = {
    "IIf",      "Format",   "Left",       "Right",      "Mid",       "Len",       "Trim",
    "LTrim",    "RTrim",    "UCase",      "LCase",      "InStr",     "Space",     "String",
    "Chr",      "Asc",      "Str",        "Val",        "CStr",      "CLng",      "CInt",
    "CDbl",     "CSng",     "CCur",       "CDate",      "CBool",     "Int",       "Fix",
    "Round",    "Abs",      "Sgn",        "IsNull",     "IsNumeric", "IsDate",    "Year",
    "Month",    "Day",      "Hour",       "Minute",     "Second",    "Weekday",   "DateAdd",
    "DateDiff", "DatePart", "DateSerial", "TimeSerial", "DateValue", "TimeValue", "Switch",
};

// Words of an expression that name no field.
constexpr std::string_view kOperatorWords[] = {"And", "Or",   "Not",  "Xor",   "Mod",    "Like",
                                               "Is",  "Null", "True", "False", "Between"};

bool Listed(std::string_view word, const std::string_view* list, size_t n) {
  for (size_t i = 0; i < n; ++i)
    if (EqualsNoCase(word, list[i])) return true;
  return false;
}

}  // namespace

std::optional<std::string> JetColumnExpression(std::string_view source,
                                               const std::vector<std::string>& fields) {
  const std::string body = Trimmed(Body(source));
  if (body.empty()) return std::nullopt;
  auto isField = [&fields](std::string_view name) {
    for (const std::string& f : fields)
      if (EqualsNoCase(f, name)) return true;
    return false;
  };
  for (size_t i = 0; i < body.size();) {
    const char ch = body[i];
    if (ch == '"' || ch == '\'' || ch == '#') {
      const size_t close = body.find(ch, i + 1);
      if (close == std::string::npos) return std::nullopt;
      i = close + 1;
    } else if (ch == '[') {
      const size_t close = body.find(']', i);
      if (close == std::string::npos || !isField(body.substr(i + 1, close - i - 1)))
        return std::nullopt;
      i = close + 1;
      // A name behind "!" or "." reads a form, report or table member.
      if (i < body.size() && (body[i] == '!' || body[i] == '.')) return std::nullopt;
    } else if (std::isdigit(static_cast<unsigned char>(ch))) {
      while (i < body.size() &&
             (std::isalnum(static_cast<unsigned char>(body[i])) || body[i] == '.'))
        ++i;
    } else if (IsNameChar(ch)) {
      size_t end = i;
      while (end < body.size() && IsNameChar(body[end])) ++end;
      const std::string word = body.substr(i, end - i);
      size_t next = end;
      while (next < body.size() && body[next] == ' ') ++next;
      const bool call = next < body.size() && body[next] == '(';
      if (call ? !Listed(word, kJetFunctions, std::size(kJetFunctions))
               : !(isField(word) || Listed(word, kOperatorWords, std::size(kOperatorWords))))
        return std::nullopt;
      if (end < body.size() && (body[end] == '!' || body[end] == '.')) return std::nullopt;
      i = end;
    } else if (ch == '!') {
      return std::nullopt;
    } else {
      ++i;
    }
  }
  return body;
}

bool HasPageOrDateField(std::string_view source) {
  for (std::string_view mark : kPageDateMarks)
    if (source.find(mark) != std::string_view::npos) return true;
  return false;
}

std::string PageDateCaption(std::string_view source, std::string_view format, bool* resolved) {
  std::string c(Body(source));
  c = ReplaceAllText(c, " & ", "");
  c = ReplaceAllText(c, "[Page]", "%p");
  c = ReplaceAllText(c, "[Pages]", "%P");
  if (EqualsNoCase(c, "Time()")) {
    c = format == "Short Time" ? "%t" : "%T";
  } else if (EqualsNoCase(c, "Date()")) {
    c = format == "Short Date" ? "%d" : "%D";
  } else if (EqualsNoCase(c, "Now()")) {
    c = "%d %T";
  }
  for (const FormatCode& f : kFormatCodes) c = ReplaceAllText(c, f.expression, f.code);
  for (const FormatCode& f : kEmbeddedCodes) c = ReplaceAllText(c, f.expression, f.code);
  // What is left of the expression besides text in quotes stands in the
  // caption as it is.
  if (resolved) {
    bool quoted = false;
    *resolved = true;
    for (size_t i = 0; i < c.size(); ++i) {
      if (c[i] == '"') {
        quoted = !quoted;
      } else if (quoted || c[i] == ' ') {
        continue;
      } else if (c[i] == '%' && i + 1 < c.size()) {
        ++i;  // a code: %p, %P, %d, %D, %t, %T
      } else {
        *resolved = false;
      }
    }
  }
  return ReplaceAllText(c, "\"", "");
}

std::string LeadingFunctionName(std::string_view source) {
  std::string body = Trimmed(Body(source));
  size_t end = 0;
  while (end < body.size() && IsNameChar(body[end])) ++end;
  return body.substr(0, end);
}

std::optional<AggregateItem> Aggregate(std::string_view source) {
  const std::string name = LeadingFunctionName(source);
  const AggregateName* found = nullptr;
  for (const AggregateName& a : kAggregates)
    if (a.name == name) found = &a;
  if (!found) return std::nullopt;
  AggregateItem item;
  item.FunctionType = found->functionType;
  const std::string body = Trimmed(Body(source));
  const size_t open = body.find('[');
  const size_t close = open == std::string::npos ? std::string::npos : body.find(']', open);
  if (close != std::string::npos) {
    item.Field = body.substr(open + 1, close - open - 1);
  } else {
    // An argument without brackets names its field as a plain word.
    const size_t paren = body.find('(');
    const size_t end = body.rfind(')');
    if (paren != std::string::npos && end != std::string::npos && end > paren) {
      std::string argument = Trimmed(std::string_view(body).substr(paren + 1, end - paren - 1));
      bool word = !argument.empty();
      for (char ch : argument) word = word && IsNameChar(ch);
      if (word) item.Field = argument;
    }
  }
  if (!item.Field.empty()) {
    // Blanks outside the brackets do not count.
    std::string compact;
    bool bracketed = false;
    for (char ch : body) {
      if (ch == '[') bracketed = true;
      if (ch == ']') bracketed = false;
      if (ch != ' ' || bracketed) compact += ch;
    }
    item.SingleField =
        compact == name + "([" + item.Field + "])" || compact == name + "(" + item.Field + ")";
  }
  return item;
}

std::optional<std::string> ConstantText(std::string_view source) {
  const std::string body = Trimmed(Body(source));
  std::string out;
  size_t i = 0;
  bool expectValue = true;
  while (i < body.size()) {
    const char ch = body[i];
    if (ch == ' ') {
      ++i;
    } else if (expectValue && ch == '"') {
      size_t j = i + 1;
      for (;; ++j) {
        if (j >= body.size()) return std::nullopt;
        if (body[j] != '"') {
          out += body[j];
        } else if (j + 1 < body.size() && body[j + 1] == '"') {
          out += '"';
          ++j;
        } else {
          break;
        }
      }
      i = j + 1;
      expectValue = false;
    } else if (expectValue && (std::isdigit(static_cast<unsigned char>(ch)) || ch == '.')) {
      while (i < body.size() &&
             (std::isdigit(static_cast<unsigned char>(body[i])) || body[i] == '.'))
        out += body[i++];
      expectValue = false;
    } else if (!expectValue && ch == '&') {
      ++i;
      expectValue = true;
    } else {
      return std::nullopt;
    }
  }
  if (expectValue) return std::nullopt;
  return out;
}

bool IsPlainVbExpression(std::string_view expression) {
  if (expression.find_first_of("[!") != std::string_view::npos) return false;
  // A word followed by "(" is a call; one of Access's own is no Visual Basic.
  bool quoted = false;
  for (size_t i = 0; i < expression.size(); ++i) {
    const char ch = expression[i];
    if (ch == '"') quoted = !quoted;
    if (quoted || !IsNameChar(ch) || (i > 0 && IsNameChar(expression[i - 1]))) continue;
    size_t end = i;
    while (end < expression.size() && IsNameChar(expression[end])) ++end;
    size_t next = end;
    while (next < expression.size() && expression[next] == ' ') ++next;
    if (next >= expression.size() || expression[next] != '(') continue;
    const std::string_view word = expression.substr(i, end - i);
    for (std::string_view f : kAccessOnlyFunctions)
      if (EqualsNoCase(word, f)) return false;
  }
  return true;
}

}  // namespace morvane

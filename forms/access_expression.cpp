// Translation of the expressions of a form's controls.
#include "forms/access_expression.h"

#include <span>
#include <vector>

#include "design/form_design.h"
#include "session/conversion_session.h"
#include "session/naming.h"

namespace morvane {

namespace {

// Functions that read the same in Visual Basic, or that the project supplies
// (the domain functions of the conversion code).
constexpr std::string_view kFunctions[] = {
    "Abs",          "Asc",           "Atn",
    "CBool",        "CByte",         "CCur",
    "CDate",        "CDbl",          "Chr",
    "CInt",         "CLng",          "Cos",
    "CSng",         "CStr",          "CVar",
    "DateAdd",      "DateDiff",      "DatePart",
    "DateSerial",   "DateValue",     "Day",
    "Exp",          "Fix",           "Format",
    "Hex",          "Hour",          "IIf",
    "InStr",        "Int",           "IsDate",
    "IsEmpty",      "IsNull",        "IsNumeric",
    "LCase",        "Left",          "Len",
    "Log",          "LTrim",         "Mid",
    "Minute",       "Month",         "MonthName",
    "Oct",          "Replace",       "Right",
    "Rnd",          "Round",         "RTrim",
    "Second",       "Sgn",           "Sin",
    "Space",        "Sqr",           "Str",
    "StrComp",      "String",        "Tan",
    "TimeSerial",   "TimeValue",     "Trim",
    "UCase",        "Val",           "Weekday",
    "WeekdayName",  "Year",          "DSum",
    "DCount",       "DAvg",          "DFirst",
    "DLast",        "DMin",          "DMax",
    "DStDev",       "DStDevP",       "DVar",
    "DVarP",        "DLookup",       "FormatCurrency",
    "FormatNumber", "FormatPercent", "FormatDateTime",
};

// Access functions without parentheses in Visual Basic.
constexpr std::string_view kBareFunctions[] = {"Date", "Now", "Time"};

// Aggregates over the form's records: only Count(*) has a Visual Basic
// reading (the recordset's count).
constexpr std::string_view kAggregates[] = {"Sum",   "Avg",    "Min", "Max",  "First", "Last",
                                            "StDev", "StDevP", "Var", "VarP", "Count"};

constexpr std::string_view kOperators[] = {"And", "Or", "Not", "Mod", "Xor", "Eqv", "Imp", "Like"};

bool In(std::string_view word, std::span<const std::string_view> list) {
  for (auto w : list)
    if (EqualsNoCase(w, word)) return true;
  return false;
}

bool IsIdentifierStart(char c) { return IsNameLetter(static_cast<unsigned char>(c)) || c == '_'; }
bool IsIdentifierChar(char c) { return IsNameCharacter(static_cast<unsigned char>(c)); }

class Translator {
 public:
  Translator(std::string_view text, const ExpressionScope& scope, bool* approximate)
      : text_(text), scope_(scope), approximate_(approximate) {}

  std::optional<std::string> Run() {
    std::string out;
    while (pos_ < text_.size()) {
      if (!Token(out)) return std::nullopt;
    }
    // Brackets and quotes of Access left unbalanced are no expression.
    int depth = 0;
    for (char c : out) depth += c == '(' ? 1 : c == ')' ? -1 : 0;
    if (depth != 0) return std::nullopt;
    return out;
  }

 private:
  bool Token(std::string& out) {
    const char c = text_[pos_];
    if (c == ' ' || c == '\t' || c == '\r' || c == '\n') {
      if (!out.empty() && out.back() != ' ') out += ' ';
      ++pos_;
      return true;
    }
    if (c == '"' || c == '\'') return StringLiteral(out, c);
    if (c == '#') {
      const size_t end = text_.find('#', pos_ + 1);
      if (end == std::string_view::npos) return false;
      out += text_.substr(pos_, end - pos_ + 1);
      pos_ = end + 1;
      return true;
    }
    if ((c >= '0' && c <= '9') || c == '.') {
      const size_t start = pos_;
      while (pos_ < text_.size() &&
             ((text_[pos_] >= '0' && text_[pos_] <= '9') || text_[pos_] == '.' ||
              text_[pos_] == 'E' || text_[pos_] == 'e'))
        ++pos_;
      out += text_.substr(start, pos_ - start);
      return true;
    }
    if (c == '[' || IsIdentifierStart(c)) return Reference(out);
    if (std::string_view("&+-*/\\^=<>,()").find(c) != std::string_view::npos) {
      out += c;
      ++pos_;
      return true;
    }
    return false;  // "!", "." or anything else where a value should stand
  }

  bool StringLiteral(std::string& out, char quote) {
    std::string value;
    size_t i = pos_ + 1;
    for (;; ++i) {
      if (i >= text_.size()) return false;
      if (text_[i] == quote) {
        if (i + 1 < text_.size() && text_[i + 1] == quote) {
          value += quote;
          ++i;
          continue;
        }
        break;
      }
      value += text_[i];
    }
    pos_ = i + 1;
    out += '"';
    for (char ch : value) out += ch == '"' ? std::string("\"\"") : std::string(1, ch);
    out += '"';
    return true;
  }

  // One name: [Name] or Name, as read.
  std::optional<std::string> Name() {
    if (text_[pos_] == '[') {
      const size_t end = text_.find(']', pos_);
      if (end == std::string_view::npos) return std::nullopt;
      std::string name(text_.substr(pos_ + 1, end - pos_ - 1));
      pos_ = end + 1;
      return name;
    }
    const size_t start = pos_;
    while (pos_ < text_.size() && IsIdentifierChar(text_[pos_])) ++pos_;
    return std::string(text_.substr(start, pos_ - start));
  }

  // A chain of names joined by "!" or ".", or a function call.
  bool Reference(std::string& out) {
    const bool bracketed = text_[pos_] == '[';
    std::vector<std::string> names;
    for (;;) {
      auto name = Name();
      if (!name || name->empty()) return false;
      names.push_back(*name);
      if (pos_ < text_.size() && (text_[pos_] == '!' || text_[pos_] == '.') &&
          pos_ + 1 < text_.size() &&
          (text_[pos_ + 1] == '[' || IsIdentifierStart(text_[pos_ + 1]))) {
        ++pos_;
        continue;
      }
      break;
    }
    size_t after = pos_;
    while (after < text_.size() && text_[after] == ' ') ++after;
    const bool call = after < text_.size() && text_[after] == '(';
    if (names.size() == 1 && !bracketed && call) return Call(out, names[0], after);
    if (call) return false;  // a column of a list, a method: nothing to read here
    if (names.size() == 1 && !bracketed) {
      const std::string& w = names[0];
      if (In(w, kOperators) || EqualsNoCase(w, "Null") || EqualsNoCase(w, "True") ||
          EqualsNoCase(w, "False")) {
        out += w;
        return true;
      }
      if (EqualsNoCase(w, "Yes") || EqualsNoCase(w, "On")) return Emit(out, "True");
      if (EqualsNoCase(w, "No") || EqualsNoCase(w, "Off")) return Emit(out, "False");
      if (In(w, kBareFunctions)) return Emit(out, w);
      if (EqualsNoCase(w, "Is") || EqualsNoCase(w, "Between")) return false;
    }
    return Value(out, names);
  }

  bool Emit(std::string& out, std::string_view text) {
    out += text;
    return true;
  }

  bool Call(std::string& out, const std::string& name, size_t open) {
    if (In(name, kBareFunctions)) {
      // Date() is Date: the empty parentheses go.
      size_t close = open + 1;
      while (close < text_.size() && text_[close] == ' ') ++close;
      if (close >= text_.size() || text_[close] != ')') return false;
      pos_ = close + 1;
      return Emit(out, name);
    }
    if (EqualsNoCase(name, "Count")) {
      size_t close = text_.find(')', open);
      if (close == std::string_view::npos || scope_.DataControl.empty()) return false;
      // The recordset's count stands for the count of the form's records.
      pos_ = close + 1;
      *approximate_ = true;
      return Emit(out, scope_.DataControl + ".Recordset.RecordCount");
    }
    if (In(name, kAggregates)) return false;
    if (EqualsNoCase(name, "Nz")) {
      // Nz(value[, other]): IIf over IsNull, the value read twice.
      pos_ = open + 1;
      std::string args;
      int depth = 1;
      while (pos_ < text_.size() && depth > 0) {
        if (text_[pos_] == '(') ++depth;
        if (text_[pos_] == ')' && --depth == 0) break;
        if (!Token(args)) return false;
      }
      if (depth != 0 || pos_ >= text_.size()) return false;
      ++pos_;
      const size_t comma = TopLevelComma(args);
      const std::string value = comma == std::string::npos ? args : args.substr(0, comma);
      const std::string other = comma == std::string::npos ? "\"\"" : args.substr(comma + 1);
      *approximate_ = true;
      return Emit(out, "IIf(IsNull(" + value + "), " + other + ", " + value + ")");
    }
    // A function of Visual Basic or of the conversion code is called as it
    // stands; any other (a module's own, or one only Access has) too, for the
    // user to review.
    if (!In(name, kFunctions)) *approximate_ = true;
    pos_ = open;
    return Emit(out, name);
  }

  static size_t TopLevelComma(const std::string& args) {
    int depth = 0;
    bool quoted = false;
    for (size_t i = 0; i < args.size(); ++i) {
      if (args[i] == '"') quoted = !quoted;
      if (quoted) continue;
      if (args[i] == '(') ++depth;
      if (args[i] == ')') --depth;
      if (args[i] == ',' && depth == 0) return i;
    }
    return std::string::npos;
  }

  bool Value(std::string& out, const std::vector<std::string>& names) {
    // The form's own properties.
    std::vector<std::string> n = names;
    if (n.size() == 2 && (EqualsNoCase(n[0], "Form") || EqualsNoCase(n[0], "Me")))
      n.erase(n.begin());
    if (n.size() == 1 && EqualsNoCase(n[0], "CurrentRecord")) {
      if (scope_.DataControl.empty()) return false;
      return Emit(out, scope_.UseAdo
                           ? scope_.DataControl + ".Recordset.AbsolutePosition"
                           : "(" + scope_.DataControl + ".Recordset.AbsolutePosition + 1)");
    }
    if (n.size() == 1) return ControlOrField(out, scope_.Form, scope_.DataControl, n[0]);
    // The form that holds a subform, which stands on the same Visual Basic form.
    if (n.size() == 2 && EqualsNoCase(n[0], "Parent") && scope_.Parent)
      return ControlOrField(out, scope_.Parent, scope_.ParentDataControl, n[1]);
    // Forms!Form!Control: a form of the run by its Visual Basic name.
    if (n.size() == 3 && EqualsNoCase(n[0], "Forms") && scope_.Session) {
      const ComponentName* form = scope_.Session->Names.Find(ComponentRole::Form, n[1]);
      if (!form) return false;
      return Emit(out, form->VbName + "!" + Bang(n[2]));
    }
    return false;
  }

  // A control of `form`, else a field of its records. A subform's control
  // may have been renamed where it joined its parent's form, so there a
  // bound control is read through its field.
  bool ControlOrField(std::string& out, const FormDesign* form, const std::string& dataControl,
                      const std::string& name) {
    std::string field = name;
    if (const ControlDesign* c = form ? form->Control(name) : nullptr) {
      const std::string source = c->Text("ControlSource").value_or("");
      const bool bound = !source.empty() && source[0] != '=';
      if (!bound || dataControl.empty() || !scope_.Parent) return Emit(out, "Me!" + Bang(name));
      field = source;
    }
    if (dataControl.empty()) return false;
    *approximate_ = true;
    return Emit(out, dataControl + ".Recordset.Fields(\"" + field + "\").Value");
  }

  static std::string Bang(const std::string& name) {
    const std::string id = VbIdentifier(name, "a", 255);
    return id == name ? name : "[" + name + "]";
  }

  std::string_view text_;
  const ExpressionScope& scope_;
  bool* approximate_;
  size_t pos_ = 0;
};

}  // namespace

std::optional<std::string> VbExpression(std::string_view expression, const ExpressionScope& scope,
                                        bool* approximate) {
  bool approx = false;
  auto out = Translator(expression, scope, &approx).Run();
  if (approximate) *approximate = approx;
  if (out) *out = std::string(TrimBlanks(*out));
  return out;
}

}  // namespace morvane

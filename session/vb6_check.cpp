// The check of one file: reads the header by the file's kind, then walks the
// code as VB6 reads it (logical lines, statements) with a stack of open
// blocks.
#include "session/vb6_check.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <map>
#include <optional>
#include <set>
#include <string_view>
#include <utility>

#include "platform/text_file.h"
#include "platform/text_fold.h"
#include "session/compiler_conditions.h"
#include "session/naming.h"

namespace morvane {

namespace {

constexpr size_t kMaxLineBytes = 1023;
constexpr size_t kMaxContinuations = 24;
constexpr size_t kMaxNameLength = 40;
constexpr std::string_view kCommentMark = "'MORVANE ";

enum class FileKind { Module, Class, Form, UserControl, Designer };

bool IsNameChar(char c) {
  const auto u = static_cast<unsigned char>(c);
  return (u >= '0' && u <= '9') || (u >= 'A' && u <= 'Z') || (u >= 'a' && u <= 'z') || c == '_' ||
         u >= 128;
}

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

inline std::string_view Trim(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

// The word at the start of `text` (a leading "#" belongs to it), and the rest
// behind it with its leading blanks removed.
std::pair<std::string, std::string_view> SplitWord(std::string_view text) {
  size_t begin = 0;
  while (begin < text.size() && IsBlank(text[begin])) ++begin;
  size_t end = begin < text.size() && text[begin] == '#' ? begin + 1 : begin;
  while (end < text.size() && IsNameChar(text[end])) ++end;
  std::pair<std::string, std::string_view> out;
  out.first.resize(end - begin);
  for (size_t i = begin; i < end; ++i) out.first[i - begin] = text::Fold(text[i]);
  size_t restBegin = end;
  while (restBegin < text.size() && IsBlank(text[restBegin])) ++restBegin;
  size_t restEnd = text.size();
  while (restEnd > restBegin && IsBlank(text[restEnd - 1])) --restEnd;
  out.second = text.substr(restBegin, restEnd - restBegin);
  return out;
}

// Folds a letter to lower case and leaves every other character different
// from the lower-case letters.
inline char LowerLetter(char c) { return static_cast<char>(c | 0x20); }

// The first " as " (any case) at or after `from` in `code`.
size_t FindAs(std::string_view code, size_t from) {
  for (size_t p = from; p + 4 <= code.size(); ++p)
    if (code[p] == ' ' && code[p + 3] == ' ' && LowerLetter(code[p + 1]) == 'a' &&
        LowerLetter(code[p + 2]) == 's')
      return p;
  return std::string_view::npos;
}

// One line of text with its string literals emptied, so that keywords and
// separators inside them cannot count, and without its comment.
struct MaskedLine {
  std::string code;
  std::string_view comment;  // from the apostrophe on; empty when there is none
  bool hasComment = false;
  bool openString = false;
};

// A "#" starts a date literal where a value may stand: behind an operator,
// an opening parenthesis, a comma or at the start.
bool StartsDateLiteral(std::string_view line, size_t pos) {
  size_t before = pos;
  while (before > 0 && IsBlank(line[before - 1])) --before;
  if (before > 0 && std::string_view("=<>(,+-*/&").find(line[before - 1]) == std::string_view::npos)
    return false;
  if (before == 0) return false;  // a "#" at the start is a directive
  const size_t close = line.find('#', pos + 1);
  if (close == std::string_view::npos || close == pos + 1) return false;
  for (size_t i = pos + 1; i < close; ++i)
    if (std::string_view("0123456789/:.- APMapm").find(line[i]) == std::string_view::npos)
      return false;
  return true;
}

// Into `m`, whose buffer the caller may reuse from line to line.
void Mask(std::string_view line, MaskedLine& m) {
  m.code.clear();
  m.comment = {};
  m.hasComment = false;
  m.openString = false;
  m.code.reserve(line.size() + 2);
  size_t i = 0;
  bool statementStart = true;
  while (i < line.size()) {
    const char c = line[i];
    // "Rem" opens a comment where a statement begins, followed by anything
    // but a name's character ("Rem//" too).
    if (statementStart && (c == 'r' || c == 'R') && line.size() >= i + 3 &&
        EqualsNoCase(line.substr(i, 3), "rem") &&
        (line.size() == i + 3 || !IsNameChar(line[i + 3]))) {
      m.hasComment = true;
      m.comment = line.substr(i);
      return;
    }
    if (!IsBlank(c)) statementStart = c == ':';
    if (c == '"') {
      size_t j = i + 1;
      bool closed = false;
      while (j < line.size()) {
        if (line[j] == '"') {
          if (j + 1 < line.size() && line[j + 1] == '"') {
            j += 2;
            continue;
          }
          closed = true;
          break;
        }
        ++j;
      }
      m.code += "\"\"";
      if (!closed) {
        m.openString = true;
        return;
      }
      i = j + 1;
    } else if (c == '#' && StartsDateLiteral(line, i)) {
      const size_t close = line.find('#', i + 1);
      m.code += "#0#";
      i = close + 1;
    } else if (c == '\'') {
      m.hasComment = true;
      m.comment = line.substr(i);
      return;
    } else {
      // A run of characters that neither open nor close anything is copied
      // at once; so are the blanks where a statement begins, which leave it
      // beginning.
      size_t j = i + 1;
      if (!statementStart)
        while (j < line.size() && line[j] != '"' && line[j] != '#' && line[j] != '\'' &&
               line[j] != ':')
          ++j;
      else if (IsBlank(c))
        while (j < line.size() && IsBlank(line[j])) ++j;
      m.code.append(line.substr(i, j - i));
      i = j;
    }
  }
  return;
}

MaskedLine Mask(std::string_view line) {
  MaskedLine m;
  Mask(line, m);
  return m;
}

// Only the end of the text is trimmed: a "_" that stands alone has a blank
// or the start of the text before it either way.
bool EndsWithContinuation(std::string_view text) {
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  if (text.empty() || text.back() != '_') return false;
  return text.size() == 1 || IsBlank(text[text.size() - 2]);
}

// The statements of a logical line: split at ":" (not ":="), each a part of
// `code`.
void SplitStatements(std::string_view code, std::vector<std::string_view>* statements) {
  statements->clear();
  size_t start = 0;
  for (size_t i = code.find(':'); i != std::string_view::npos; i = code.find(':', i + 1)) {
    if (i + 1 >= code.size() || code[i + 1] != '=') {
      statements->push_back(Trim(code.substr(start, i - start)));
      start = i + 1;
    }
  }
  statements->push_back(Trim(code.substr(start)));
}

// Position just behind the keyword "Then" in masked code, if any.
std::optional<size_t> FindThen(std::string_view code) {
  for (size_t p = FindNoCase(code, "then"); p != std::string::npos;
       p = FindNoCase(code, "then", p + 1)) {
    const bool startOk = p == 0 || !IsNameChar(code[p - 1]);
    const bool endOk = p + 4 >= code.size() || !IsNameChar(code[p + 4]);
    if (startOk && endOk) return p + 4;
  }
  return std::nullopt;
}

bool IsVbNameLine(std::string_view line) {
  line = Trim(line);
  constexpr std::string_view kStart = "Attribute VB_Name = \"";
  return line.size() > kStart.size() + 1 && line.substr(0, kStart.size()) == kStart &&
         line.back() == '"';
}

// Only the start of the line is trimmed: a blank behind the word ends it
// whether more follows or not.
bool StartsWithWord(std::string_view line, std::string_view word) {
  while (!line.empty() && IsBlank(line.front())) line.remove_prefix(1);
  return line.starts_with(word) && (line.size() == word.size() || IsBlank(line[word.size()]));
}

// The control libraries a form may use, by the library part of a control's
// class, with the files that hold them (upper case). A class of a library not
// here is unknown to the checker; "VB" is the intrinsic controls'.
struct Library {
  std::string_view Name;
  std::vector<std::string_view> Files;
};
const std::vector<Library>& Libraries() {
  static const std::vector<Library> kLibraries = {
      {"MSAdodcLib", {"MSADODC.OCX"}},
      {"MSComCtl2", {"MSCOMCT2.OCX"}},
      {"MSComctlLib", {"MSCOMCTL.OCX"}},
      {"ComctlLib", {"COMCTL32.OCX"}},
      {"Threed", {"THREED32.OCX"}},
      {"SSDataWidgets_A", {"SSDW3A32.OCX", "SSDATA32.OCX"}},
      {"SSDataWidgets_B", {"SSDW3B32.OCX", "SSDATB32.OCX"}},
      {"SSDataWidgets_B_OLEDB", {"SSDW3BO.OCX"}},
      {"MSDataRepeaterLib", {"MSDATREP.OCX"}},
      {"DataList", {"GTLIST32.OCX"}},
      {"Kestrel", {"KESTREL.OCX"}},
      {"MSDataListLib", {"MSDATLST.OCX"}},
      {"MSDataGridLib", {"MSDATGRD.OCX"}},
      {"MSFlexGridLib", {"MSFLXGRD.OCX"}},
      {"MSDBGrid", {"DBGRID32.OCX"}},
      {"MSForms", {"FM20.DLL"}},
      {"MSACAL", {"MSCAL.OCX"}},
      {"RichTextLib", {"RICHTX32.OCX"}},
      {"SHDocVwCtl", {"SHDOCVW.DLL", "IEFRAME.DLL"}},
      {"MSComDlg", {"COMDLG32.OCX"}},
      {"TabDlg", {"TABCTL32.OCX"}},
      {"MSMask", {"MSMASK32.OCX"}},
  };
  return kLibraries;
}

// The intrinsic controls of Visual Basic 6.
constexpr std::string_view kIntrinsicControls[] = {
    "Label",      "TextBox",     "CommandButton", "CheckBox",   "OptionButton", "Frame",
    "ListBox",    "ComboBox",    "PictureBox",    "Image",      "Line",         "Shape",
    "Timer",      "Data",        "OLE",           "HScrollBar", "VScrollBar",   "DriveListBox",
    "DirListBox", "FileListBox", "Menu"};

// "Object = "{guid}#1.0#0"; "FILE.OCX"": the file, upper case; empty when the
// line is not of that shape.
std::string ObjectLineFile(std::string_view line) {
  line = Trim(line);
  if (line.substr(0, 6) != "Object") return {};
  line = Trim(line.substr(6));
  if (line.empty() || line.front() != '=') return {};
  line = Trim(line.substr(1));
  if (line.size() < 2 || line.front() != '"') return {};
  const size_t close = line.find('"', 1);
  if (close == std::string_view::npos || line.substr(1, 1) != "{") return {};
  line = Trim(line.substr(close + 1));
  if (line.empty() || line.front() != ';') return {};
  line = Trim(line.substr(1));
  if (line.size() < 3 || line.front() != '"' || line.back() != '"') return {};
  std::string file(line.substr(1, line.size() - 2));
  for (char& c : file) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return file;
}

// "Key = value", "Key(3) = value" as the designer blocks hold them.
bool IsPropertyLine(std::string_view line) {
  line = Trim(line);
  // "Buttons.Button(2).Caption": names with dots, each may carry an index.
  size_t i = 0;
  while (i < line.size() && (IsNameChar(line[i]) || line[i] == '.')) {
    while (i < line.size() && (IsNameChar(line[i]) || line[i] == '.')) ++i;
    if (i < line.size() && line[i] == '(') {
      const size_t close = line.find(')', i);
      if (close == std::string_view::npos) return false;
      i = close + 1;
    }
  }
  if (i == 0) return false;
  while (i < line.size() && IsBlank(line[i])) ++i;
  return i < line.size() && line[i] == '=';
}

// Operators spelled as words, which may follow ")" directly.
constexpr std::string_view kWordOperators[] = {"and",  "or", "xor",  "eqv",  "imp", "mod", "is",
                                               "like", "to", "then", "step", "as",  "else"};

// What no Visual Basic expression holds, in the code of a logical line
// (strings masked): parentheses that do not pair, an operand missing behind
// an operator, a name or string glued to ")", a name that begins with a
// digit, a type named with "!". Such text comes from a rewrite that cut an
// expression, or from Access expression syntax written as code.
std::optional<std::string> ExpressionProblem(std::string_view code) {
  code = Trim(code);
  // The depth changes from the first parenthesis on.
  int depth = 0;
  const size_t parenthesis = std::min(code.find('('), code.find(')'));
  for (char c : code.substr(std::min(parenthesis, code.size()))) {
    if (c == '(') ++depth;
    if (c == ')' && --depth < 0) return "a \")\" that closes no \"(\"";
  }
  if (depth > 0) return "a \"(\" without its \")\"";
  // "1&" and "x&" end in a type suffix, not an operator.
  const bool suffix = code.size() >= 2 && code.back() == '&' && IsNameChar(code[code.size() - 2]);
  if (!code.empty() && !suffix &&
      std::string_view("=&+*/\\^<>").find(code.back()) != std::string_view::npos)
    return "an expression that ends in the operator \"" + std::string(1, code.back()) + "\"";
  // Only brackets, parentheses and digits begin what the loop looks for.
  static constexpr auto kLooked = [] {
    std::array<bool, 256> t{};
    for (unsigned char c : std::string_view("[()0123456789")) t[c] = true;
    return t;
  }();
  for (size_t i = 0; i < code.size(); ++i) {
    const char c = code[i];
    if (!kLooked[static_cast<unsigned char>(c)]) continue;
    if (c == '[') {  // a bracketed name may hold anything but "]"
      const size_t close = code.find(']', i);
      if (close == std::string_view::npos) break;
      i = close;
      continue;
    }
    if (c == '(' && i + 1 < code.size() &&
        std::string_view("*/^\\").find(code[i + 1]) != std::string_view::npos)
      return "an operator without its operand after \"(\"";
    if (c == ')' && i + 1 < code.size() && (IsNameChar(code[i + 1]) || code[i + 1] == '"')) {
      size_t end = i + 1;
      while (end < code.size() && IsNameChar(code[end])) ++end;
      const std::string word = ToLower(code.substr(i + 1, end - i - 1));
      if (std::find(std::begin(kWordOperators), std::end(kWordOperators), word) ==
          std::end(kWordOperators))
        return "text glued to \")\": " +
               std::string(code.substr(i, std::min<size_t>(end - i + 1, 40)));
    }
    // A name that begins with a digit: digits, then a letter or "_" that is
    // no exponent or type suffix of a number.
    if (c >= '0' && c <= '9' &&
        (i == 0 || (!IsNameChar(code[i - 1]) && code[i - 1] != '&' && code[i - 1] != '.'))) {
      size_t j = i;
      while (j < code.size() && ((code[j] >= '0' && code[j] <= '9') || code[j] == '.')) ++j;
      const bool exponent = j + 1 < code.size() &&
                            std::string_view("EeDd").find(code[j]) != std::string_view::npos &&
                            (std::isdigit(static_cast<unsigned char>(code[j + 1])) ||
                             code[j + 1] == '+' || code[j + 1] == '-');
      if (j < code.size() && IsNameChar(code[j]) && !exponent) {
        size_t end = j;
        while (end < code.size() && IsNameChar(code[end])) ++end;
        return "a name that begins with a digit: " + std::string(code.substr(i, end - i));
      }
      i = j;
    }
  }
  // "As MSForms!Label": a type's name never holds "!", which most lines
  // do not hold at all.
  if (code.find('!') == std::string_view::npos) return std::nullopt;
  for (size_t p = FindAs(code, 0); p != std::string::npos; p = FindAs(code, p + 1)) {
    size_t end = p + 4;
    while (end < code.size() && (IsNameChar(code[end]) || code[end] == '.' || code[end] == '!'))
      ++end;
    const std::string_view type = code.substr(p + 4, end - p - 4);
    if (type.find('!') != std::string_view::npos)
      return "a type named with \"!\": " + std::string(type);
  }
  return std::nullopt;
}

constexpr std::string_view kModuleLevelWords[] = {
    "option",     "dim",       "private", "public",  "global", "const",  "declare", "event",
    "implements", "attribute", "defbool", "defbyte", "defint", "deflng", "defcur",  "defsng",
    "defdbl",     "defdec",    "defdate", "defstr",  "defobj", "defvar",
};

constexpr std::string_view kModifiers[] = {"public", "private", "friend", "static", "global"};

bool IsModifier(std::string_view word) {
  return std::find(std::begin(kModifiers), std::end(kModifiers), word) != std::end(kModifiers);
}

std::string KindName(std::string_view word) {
  if (word == "sub") return "Sub";
  if (word == "function") return "Function";
  if (word == "property") return "Property";
  if (word == "type") return "Type";
  if (word == "enum") return "Enum";
  if (word == "if") return "If";
  if (word == "select") return "Select";
  if (word == "with") return "With";
  return std::string(word);
}

struct Open {
  std::string kind;  // "If", "For", "Do", "Select", "With", "While", "#If", "Sub", ...
  size_t line;
};

std::string CloserOf(const std::string& kind) {
  if (kind == "For") return "Next";
  if (kind == "Do") return "Loop";
  if (kind == "While") return "Wend";
  if (kind == "#If") return "#End If";
  return "End " + kind;
}

class Checker {
 public:
  explicit Checker(const std::vector<std::string>& lines) : lines_(lines) {}

  std::vector<Vb6Finding> Run(FileKind kind) {
    for (size_t i = 0; i < lines_.size(); ++i)
      if (lines_[i].size() > kMaxLineBytes)
        Problem(i, "line of " + std::to_string(lines_[i].size()) + " bytes; Visual Basic reads " +
                       std::to_string(kMaxLineBytes) + " at most");
    size_t codeStart = 0;
    switch (kind) {
      case FileKind::Module:
        codeStart = ModuleHeader();
        break;
      case FileKind::Class:
        codeStart = ClassHeader();
        break;
      default:
        codeStart = DesignerHeader(kind);
        break;
    }
    if (codeStart <= lines_.size()) Code(codeStart);
    std::stable_sort(problems_.begin(), problems_.end(),
                     [](const auto& a, const auto& b) { return a.Line < b.Line; });
    for (auto& p : problems_) ++p.Line;
    return problems_;
  }

 private:
  static constexpr size_t kStop = static_cast<size_t>(-1);

  void Problem(size_t line, std::string text) {
    problems_.push_back({line, std::move(text), false});
  }
  // Code that is lost, though the file loads.
  void Loss(size_t line, std::string text) { problems_.push_back({line, std::move(text), true}); }

  void Name(size_t line, std::string_view name, const char* what) {
    if (!IsVb6Identifier(name))
      Problem(line, std::string(what) + " \"" + std::string(name) + "\" is no Visual Basic name" +
                        (name.size() > kMaxNameLength ? " (longer than 40 characters)" : ""));
  }

  std::string_view LineAt(size_t i) const {
    return i < lines_.size() ? std::string_view(lines_[i]) : std::string_view();
  }

  // Attribute VB_Name and the Attribute lines behind it; returns the first
  // line after them.
  size_t AttributeLines(size_t i) {
    if (!IsVbNameLine(LineAt(i))) {
      Problem(i, "expected Attribute VB_Name = \"<name>\"");
      return kStop;
    }
    const std::string_view t = Trim(LineAt(i));
    const size_t open = t.find('"');
    Name(i, t.substr(open + 1, t.size() - open - 2), "VB_Name");
    ++i;
    while (i < lines_.size() && StartsWithWord(lines_[i], "Attribute")) ++i;
    return i;
  }

  size_t ModuleHeader() { return AttributeLines(0); }

  size_t ClassHeader() {
    if (Trim(LineAt(0)) != "VERSION 1.0 CLASS") {
      Problem(0, "expected VERSION 1.0 CLASS");
      return kStop;
    }
    // VB6 writes BEGIN and END; some export tools write End.
    if (!EqualsNoCase(Trim(LineAt(1)), "BEGIN")) {
      Problem(1, "expected BEGIN");
      return kStop;
    }
    size_t i = 2;
    for (; i < lines_.size() && !EqualsNoCase(Trim(lines_[i]), "END"); ++i)
      if (!IsPropertyLine(lines_[i])) Problem(i, "unexpected line in the class header");
    if (i >= lines_.size()) {
      Problem(1, "BEGIN without END");
      return kStop;
    }
    return AttributeLines(i + 1);
  }

  size_t DesignerHeader(FileKind kind) {
    if (Trim(LineAt(0)) != "VERSION 5.00") {
      Problem(0, "expected VERSION 5.00");
      return kStop;
    }
    size_t i = 1;
    std::set<std::string> files;
    for (; i < lines_.size() && Trim(lines_[i]).substr(0, 6) == "Object"; ++i) {
      std::string file = ObjectLineFile(lines_[i]);
      if (file.empty())
        Problem(i, "expected Object = \"{guid}#version#0\"; \"file\"");
      else
        files.insert(std::move(file));
    }
    // "Begin <type> <name>"
    const auto [begin, rest] = SplitWord(LineAt(i));
    const std::string typeText(rest.substr(0, rest.find_first_of(" \t")));
    bool typeOk = begin == "begin" && !typeText.empty() && rest.size() > typeText.size();
    if (typeOk && kind == FileKind::Form)
      typeOk = typeText == "VB.Form" || typeText == "VB.MDIForm";
    if (typeOk && kind == FileKind::UserControl) typeOk = typeText == "VB.UserControl";
    if (!typeOk) {
      Problem(i, kind == FileKind::Form ? "expected Begin VB.Form or Begin VB.MDIForm <name>"
                                        : "expected the designer's Begin line");
      return kStop;
    }
    Name(i, Trim(rest.substr(typeText.size())), "the designer's name");
    const size_t opened = i;
    std::vector<size_t> open;  // the controls whose block is open, innermost last
    int depth = 1;
    int propertyDepth = 0;
    for (++i; i < lines_.size(); ++i) {
      const std::string_view t = Trim(lines_[i]);
      if (t.empty()) continue;  // VB6 reads past empty lines of a designer block
      if (t == "End") {
        if (--depth == 0) break;
        if (!open.empty()) open.pop_back();
      } else if (StartsWithWord(t, "Begin")) {
        ++depth;
        ControlLine(i, t, files);
        open.push_back(controls_.size() - 1);
      } else if (propertyDepth == 0 && !open.empty() && StartsWithNoCase(t, "index") &&
                 IsPropertyLine(t) && EqualsNoCase(SplitWord(t).first, "index")) {
        controls_[open.back()].Indexed = true;
        controls_[open.back()].Index = std::string(Trim(t.substr(t.find('=') + 1)));
      } else if (StartsWithWord(t, "BeginProperty")) {
        ++propertyDepth;
      } else if (t == "EndProperty") {
        if (--propertyDepth < 0) {
          Problem(i, "EndProperty without BeginProperty");
          propertyDepth = 0;
        }
      } else if (!IsPropertyLine(t)) {
        Problem(i, "unexpected line in the designer block");
      } else if (t.find('"') != std::string_view::npos && Mask(t).openString) {
        Problem(i, "property value with a string left open");
      }
    }
    if (i >= lines_.size()) {
      Problem(opened, "designer block without its End");
      return kStop;
    }
    if (propertyDepth > 0) Problem(i, "BeginProperty without EndProperty");
    DuplicateControlNames();
    return AttributeLines(i + 1);
  }

  // "Begin <library>.<class> <name>" inside the designer block: the class is
  // an intrinsic control or one of a library whose file an Object line names.
  // Data report sections name their class by GUID and are taken as they are.
  void ControlLine(size_t line, std::string_view t, const std::set<std::string>& files) {
    std::string_view rest = Trim(t.substr(5));
    const size_t blank = rest.find_first_of(" \t");
    if (blank == std::string_view::npos) {
      Problem(line, "control without a name");
      controls_.push_back({"", line, false, ""});
      return;
    }
    const std::string_view type = rest.substr(0, blank);
    const std::string_view name = Trim(rest.substr(blank));
    controls_.push_back({std::string(name), line, false, ""});
    Name(line, name, "control");
    if (type.front() == '{') return;
    const size_t dot = type.find('.');
    if (dot == std::string_view::npos) {
      Problem(line, "control class without its library: " + std::string(type));
      return;
    }
    const std::string_view library = type.substr(0, dot);
    const std::string_view cls = type.substr(dot + 1);
    if (library == "VB") {
      if (std::find(std::begin(kIntrinsicControls), std::end(kIntrinsicControls), cls) ==
          std::end(kIntrinsicControls))
        Problem(line, "unknown control class " + std::string(type));
      return;
    }
    for (const Library& l : Libraries()) {
      if (l.Name != library) continue;
      for (std::string_view f : l.Files)
        if (files.count(std::string(f))) return;
      Problem(line, std::string(type) + " without the Object line of " + std::string(l.Files[0]));
      return;
    }
    Problem(line, "unknown control class " + std::string(type));
  }

  // Two controls of one name stand only as members of a control array, each
  // with an Index of its own.
  void DuplicateControlNames() {
    std::map<std::string, const Control*> seen;
    std::map<std::string, const Control*> indexes;  // "name/index"
    for (const Control& c : controls_) {
      if (c.Name.empty()) continue;
      const auto [it, added] = seen.emplace(ToLower(c.Name), &c);
      if (!added && (!c.Indexed || !it->second->Indexed))
        Problem(c.Line, "second control named " + c.Name + " (the first is on line " +
                            std::to_string(it->second->Line + 1) + ") outside a control array");
      if (!c.Indexed) continue;
      const auto [at, fresh] = indexes.emplace(ToLower(c.Name) + "/" + c.Index, &c);
      if (!fresh)
        Problem(c.Line, "control " + c.Name + " has the Index " + c.Index +
                            " of the member on line " + std::to_string(at->second->Line + 1));
    }
  }

  struct Control {
    std::string Name;
    size_t Line;
    bool Indexed;
    std::string Index;
  };
  std::vector<Control> controls_;
  MaskedLine masked_;                         // the buffer each code line is masked into
  std::vector<std::string_view> statements_;  // those of the logical line being read

  // --- Code ---------------------------------------------------------------

  void Code(size_t i) {
    std::string code;  // the logical line's code, its buffer reused
    while (i < lines_.size()) {
      const size_t start = i;
      code.clear();
      // A line that is a logical line of its own is read from the mask's
      // buffer, without a copy.
      std::string_view logical;
      auto take = [&code, &logical](const std::string& masked) {
        if (code.empty())
          logical = masked;
        else
          logical = code += masked;
      };
      size_t continuations = 0;
      while (true) {
        const std::string_view raw = lines_[i];
        if (StartsWithWord(raw, "Attribute")) break;  // procedure attributes
        Mask(raw, masked_);
        const MaskedLine& m = masked_;
        if (m.openString) Problem(i, "string literal without its closing quote");
        if (m.hasComment) {
          take(m.code);
          // A comment that ends in " _" goes on into the next line: a line
          // this system commented out takes the code behind it along.
          std::string_view comment = m.comment;
          const bool marked = Trim(m.code).empty() && comment.starts_with(kCommentMark);
          while (EndsWithContinuation(comment) && i + 1 < lines_.size()) {
            comment = lines_[++i];
            ++continuations;
            if (marked && !Trim(comment).starts_with("'"))
              Loss(i, "the commented-out line above takes this line into its comment");
          }
          break;
        }
        if (EndsWithContinuation(m.code) && i + 1 < lines_.size()) {
          std::string_view part = Trim(m.code);
          part.remove_suffix(1);
          code += part;
          code += ' ';
          ++i;
          ++continuations;
          const std::string_view next = Trim(lines_[i]);
          if (next.starts_with("'") || next.empty()) {
            Problem(i, "a continued statement runs into " +
                           std::string(next.empty() ? "an empty line" : "a comment line"));
            break;
          }
          continue;
        }
        take(m.code);
        break;
      }
      if (continuations > kMaxContinuations)
        Problem(start, "statement of " + std::to_string(continuations) +
                           " continuations; Visual Basic takes 24 at most");
      // A statement cut short by a comment line is what was gathered of it.
      if (logical.empty()) logical = code;
      ++i;
      LogicalLine(start, logical);
    }
    AtEnd();
  }

  void LogicalLine(size_t line, std::string_view code) {
    // Trimmed once here, so that the tests below find no blanks to pass over.
    code = Trim(code);
    if (Compiled() && !code.starts_with("#")) {
      Vba64Words(line, code);
      if (auto problem = ExpressionProblem(code)) Problem(line, *problem);
    }
    std::vector<std::string_view>& statements = statements_;
    SplitStatements(code, &statements);
    // A line number in front of the first statement.
    std::string_view& first = statements.front();
    size_t digits = 0;
    while (digits < first.size() && first[digits] >= '0' && first[digits] <= '9') ++digits;
    if (digits > 0 && (digits == first.size() || IsBlank(first[digits])))
      first = Trim(first.substr(digits));
    // A statement reads of the rest of its line only whether it holds code:
    // the first of the statements behind it that is not empty stands for it.
    for (size_t k = 0; k < statements.size(); ++k) {
      std::string_view rest;
      for (size_t r = k + 1; r < statements.size() && rest.empty(); ++r) rest = statements[r];
      if (!Statement(line, statements[k], rest)) break;
    }
  }

  // Returns false when the statement takes the rest of the line with it
  // (single-line If, Rem). `restOfLine` is empty when no code follows the
  // statement on its line.
  bool Statement(size_t line, std::string_view statement, std::string_view restOfLine) {
    auto [w1, after1] = SplitWord(statement);
    if (w1.empty()) return true;
    const auto [w2, after2] = SplitWord(after1);
    // The words compared as views: a std::string compared with a literal
    // measures the literal first.
    const std::string_view v1 = w1, v2 = w2;
    if (v1 == "rem") return false;
    if (w1.front() == '#') return Directive(line, w1, w2, after1);
    // Visual Basic 6 does not read a branch it does not compile.
    if (!Compiled()) return false;

    if (typeBlock_) {
      if (v1 == "end" && (v2 == "type" || v2 == "enum")) {
        if (KindName(w2) != typeBlock_->kind)
          Problem(line, "End " + KindName(w2) + " closes the " + typeBlock_->kind +
                            " opened on line " + std::to_string(typeBlock_->line + 1));
        typeBlock_.reset();
      }
      return true;  // members
    }

    if (const auto header = ProcedureStart(w1, after1)) {
      if (procedure_) {
        Problem(line, header->kind + " inside the " + procedure_->kind + " opened on line " +
                          std::to_string(procedure_->line + 1));
        CloseOpenBlocks();
      }
      // Two procedures of one name do not compile ("Ambiguous name detected").
      const auto [seen, added] = procedureNames_.emplace(header->key, line);
      if (!added)
        Problem(line, "second procedure named " + header->key.substr(0, header->key.find('/')) +
                          " (the first is on line " + std::to_string(seen->second + 1) + ")");
      procedure_ = Open{header->kind, line};
      return true;
    }
    if (v1 == "end" && (v2 == "sub" || v2 == "function" || v2 == "property")) {
      EndProcedure(line, KindName(w2));
      return true;
    }

    if (!procedure_) {
      std::string word = w1;
      std::string_view behind = after1;
      while (IsModifier(word)) std::tie(word, behind) = SplitWord(behind);
      if (word == "type" || word == "enum") {
        typeBlock_ = Open{KindName(word), line};
      } else if (std::find(std::begin(kModuleLevelWords), std::end(kModuleLevelWords), w1) ==
                 std::end(kModuleLevelWords)) {
        Problem(line, "statement outside a procedure: " + std::string(Trim(statement)));
      }
      return true;
    }

    if (v1 == "type" || v1 == "enum" || ((v2 == "type" || v2 == "enum") && IsModifier(w1))) {
      Problem(line, KindName(v1 == "type" || v1 == "enum" ? w1 : w2) + " inside a procedure");
    } else if (v1 == "if") {
      const auto then = FindThen(statement);
      if (!then) {
        Problem(line, "If without Then");
      } else if (!Trim(statement.substr(*then)).empty() || !Trim(restOfLine).empty()) {
        return false;  // single-line If: the rest of the line is its body
      } else {
        blocks_.push_back({"If", line});
      }
    } else if (v1 == "elseif") {
      Expect(line, "If", "ElseIf");
    } else if (v1 == "else") {
      Expect(line, "If", "Else");
      // "Else If x Then" is Else followed by a nested If.
      if (!after1.empty()) return Statement(line, after1, restOfLine);
    } else if (v1 == "select") {
      if (v2 != "case") Problem(line, "Select without Case");
      blocks_.push_back({"Select", line});
    } else if (v1 == "case") {
      Expect(line, "Select", "Case");
    } else if (v1 == "for") {
      blocks_.push_back({"For", line});
    } else if (v1 == "next") {
      const size_t count = after1.empty() ? 1 : std::count(after1.begin(), after1.end(), ',') + 1;
      for (size_t n = 0; n < count; ++n) Close(line, "For", "Next");
    } else if (v1 == "do") {
      blocks_.push_back({"Do", line});
    } else if (v1 == "loop") {
      Close(line, "Do", "Loop");
    } else if (v1 == "while") {
      blocks_.push_back({"While", line});
    } else if (v1 == "wend") {
      Close(line, "While", "Wend");
    } else if (v1 == "with") {
      blocks_.push_back({"With", line});
    } else if (v1 == "end") {
      if (v2 == "if" || v2 == "select" || v2 == "with") {
        const std::string kind = KindName(w2);
        Close(line, kind, "End " + kind);
      } else if (v2 == "type" || v2 == "enum") {
        Problem(line, "End " + KindName(w2) + " without " + KindName(w2));
      } else if (!w2.empty()) {
        Problem(line, "unknown End statement");
      }
    } else if (v1 == "exit") {
      ExitStatement(line, w2);
    }
    return true;
  }

  // #If blocks: balanced, and which branch Visual Basic 6 compiles.
  bool Directive(size_t line, std::string_view w1, std::string_view w2, std::string_view rest) {
    if (w1 == "#if") {
      Conditional c{line, false, false, false};
      const auto holds = Holds(rest);
      c.unknown = !holds;
      c.branch = holds.value_or(true);
      c.taken = c.branch;
      conditional_.push_back(c);
    } else if (w1 == "#elseif" || w1 == "#else") {
      if (conditional_.empty()) {
        Problem(line, (w1 == "#else" ? "#Else" : "#ElseIf") + std::string(" without #If"));
        return true;
      }
      Conditional& c = conditional_.back();
      std::optional<bool> holds = w1 == "#else" ? std::optional<bool>(true) : Holds(rest);
      if (!holds) c.unknown = true;
      c.branch = c.unknown || (!c.taken && holds.value_or(true));
      c.taken = c.taken || c.branch;
    } else if (w1 == "#end" && w2 == "if") {
      if (conditional_.empty())
        Problem(line, "#End If without #If");
      else
        conditional_.pop_back();
    } else if (w1 == "#const" && Compiled()) {
      const size_t equals = rest.find('=');
      if (equals != std::string_view::npos)
        constants_.emplace_back(ToLower(Trim(rest.substr(0, equals))),
                                std::string(Trim(rest.substr(equals + 1))));
    }
    return true;
  }

  std::optional<bool> Holds(std::string_view rest) const {
    const size_t then = FindNoCase(rest, "then");
    return CompilerCondition(Trim(rest.substr(0, then)), constants_);
  }

  bool Compiled() const {
    for (const auto& c : conditional_)
      if (!c.branch) return false;
    return true;
  }

  // VBA7's words in code that Visual Basic 6 compiles. A module that
  // declares LongPtr itself for older hosts may use it.
  void Vba64Words(size_t line, std::string_view code) {
    // Each word holds "ptr" or "longlong", and so "ptr" or "ngl": a line
    // without either is left at once.
    bool may = false;
    for (size_t i = 1; i + 1 < code.size() && !may; ++i) {
      const char c = LowerLetter(code[i]);
      may = (c == 't' && LowerLetter(code[i - 1]) == 'p' && LowerLetter(code[i + 1]) == 'r') ||
            (c == 'g' && LowerLetter(code[i - 1]) == 'n' && LowerLetter(code[i + 1]) == 'l');
    }
    if (!may) return;
    for (std::string_view word : {"PtrSafe", "LongPtr", "LongLong"}) {
      for (size_t p = FindNoCase(code, word); p != std::string_view::npos;
           p = FindNoCase(code, word, p + 1)) {
        const size_t end = p + word.size();
        if ((p > 0 && IsNameChar(code[p - 1])) || (end < code.size() && IsNameChar(code[end])))
          continue;
        if (word == "LongPtr" && DeclaresLongPtr()) continue;
        Problem(line, std::string(word) + " is VBA7's; Visual Basic 6 does not know it");
        return;
      }
    }
  }

  struct ProcedureHeader {
    std::string kind;  // "Sub", "Function" or "Property"
    std::string key;   // the name in lower case, with "/get", "/let", "/set" for a property
  };

  // From the statement's first word (in lower case) and the text behind it.
  static std::optional<ProcedureHeader> ProcedureStart(const std::string& first,
                                                       std::string_view rest) {
    // Most statements begin with none of the words looked for: they are left
    // before the word is copied.
    const std::string_view f = first;
    if (!IsModifier(f) && f != "sub" && f != "function" && f != "property") return std::nullopt;
    std::string word = first;
    while (IsModifier(word)) std::tie(word, rest) = SplitWord(rest);
    const std::string_view w = word;
    if (w != "sub" && w != "function" && w != "property") return std::nullopt;
    ProcedureHeader header{KindName(word), ""};
    auto [name, behind] = SplitWord(rest);
    if (word == "property") {
      const std::string accessor = name;
      std::tie(name, behind) = SplitWord(behind);
      header.key = name + "/" + accessor;
    } else {
      header.key = name;
    }
    return header;
  }

  void Expect(size_t line, const std::string& kind, const std::string& what) {
    if (blocks_.empty() || blocks_.back().kind != kind)
      Problem(line, what + " without " + (kind == "If" ? "a block If" : "Select Case"));
  }

  void Close(size_t line, const std::string& kind, const std::string& closer) {
    auto match = std::find_if(blocks_.rbegin(), blocks_.rend(),
                              [&kind](const Open& o) { return o.kind == kind; });
    if (match == blocks_.rend()) {
      Problem(line, closer + " without " + kind);
      return;
    }
    // Blocks opened inside the one being closed were never closed.
    const size_t keep = static_cast<size_t>(blocks_.rend() - match) - 1;
    while (blocks_.size() > keep + 1) {
      Unclosed(blocks_.back());
      blocks_.pop_back();
    }
    blocks_.pop_back();
  }

  void Unclosed(const Open& o) { Problem(o.line, o.kind + " without " + CloserOf(o.kind)); }

  void CloseOpenBlocks() {
    for (const auto& o : blocks_) Unclosed(o);
    blocks_.clear();
  }

  void EndProcedure(size_t line, const std::string& kind) {
    if (!procedure_) {
      Problem(line, "End " + kind + " without " + kind);
      return;
    }
    if (procedure_->kind != kind)
      Problem(line, "End " + kind + " closes the " + procedure_->kind + " opened on line " +
                        std::to_string(procedure_->line + 1));
    CloseOpenBlocks();
    procedure_.reset();
  }

  void ExitStatement(size_t line, std::string_view w2) {
    if (w2 == "sub" || w2 == "function" || w2 == "property") {
      if (procedure_ && procedure_->kind != KindName(w2))
        Problem(line, "Exit " + KindName(w2) + " inside a " + procedure_->kind);
    } else if (w2 == "for" || w2 == "do") {
      const std::string kind = w2 == "for" ? "For" : "Do";
      if (std::none_of(blocks_.begin(), blocks_.end(),
                       [&kind](const Open& o) { return o.kind == kind; }))
        Problem(line, "Exit " + kind + " outside a " + kind + " loop");
    }
  }

  void AtEnd() {
    if (typeBlock_)
      Problem(typeBlock_->line, typeBlock_->kind + " without End " + typeBlock_->kind);
    if (procedure_) {
      CloseOpenBlocks();
      Problem(procedure_->line, procedure_->kind + " without End " + procedure_->kind);
    }
    for (const auto& o : conditional_) Problem(o.line, "#If without #End If");
  }

  const std::vector<std::string>& lines_;
  std::vector<Vb6Finding> problems_;
  std::optional<Open> procedure_;
  std::optional<Open> typeBlock_;
  std::vector<Open> blocks_;
  struct Conditional {
    size_t line;
    bool branch;   // the branch in hand is compiled
    bool taken;    // a branch was compiled
    bool unknown;  // a condition that cannot be read: every branch counts
  };
  std::vector<Conditional> conditional_;
  std::vector<std::pair<std::string, std::string>> constants_;
  // Whether the module declares LongPtr itself: read from all its lines the
  // first time a LongPtr is met.
  bool DeclaresLongPtr() {
    if (!declaresLongPtr_) {
      declaresLongPtr_ = false;
      for (const auto& l : lines_) {
        if (FindNoCase(l, "LongPtr") == std::string::npos) continue;
        if (FindNoCase(l, "Enum LongPtr") != std::string::npos ||
            FindNoCase(l, "Type LongPtr") != std::string::npos) {
          declaresLongPtr_ = true;
          break;
        }
      }
    }
    return *declaresLongPtr_;
  }
  std::optional<bool> declaresLongPtr_;
  std::map<std::string, size_t> procedureNames_;
};

std::string Extension(const std::string& fileName) {
  const size_t dot = fileName.find_last_of('.');
  const size_t slash = fileName.find_last_of("/\\");
  if (dot == std::string::npos || (slash != std::string::npos && dot < slash)) return "";
  return ToLower(fileName.substr(dot));
}

}  // namespace

std::vector<Vb6Finding> CheckVb6File(const std::string& fileName, const std::string& text) {
  return CheckVb6Lines(fileName, SplitLines(text));
}

std::vector<Vb6Finding> CheckVb6Lines(const std::string& fileName,
                                      const std::vector<std::string>& lines) {
  const std::string first = lines.empty() ? "" : std::string(Trim(lines.front()));
  const std::string ext = Extension(fileName);
  FileKind kind = FileKind::Module;
  if (first == "VERSION 1.0 CLASS" || ext == ".cls") {
    kind = FileKind::Class;
  } else if (ext == ".frm") {
    kind = FileKind::Form;
  } else if (ext == ".ctl") {
    kind = FileKind::UserControl;
  } else if (ext == ".dsr" || (ext != ".bas" && first == "VERSION 5.00")) {
    kind = FileKind::Designer;
  }
  return Checker(lines).Run(kind);
}

std::vector<std::string> CheckVb6Structure(const std::string& fileName, const std::string& text) {
  std::vector<std::string> out;
  for (const auto& f : CheckVb6File(fileName, text))
    out.push_back("line " + std::to_string(f.Line) + ": " + f.Problem);
  return out;
}

bool IsVb6Identifier(std::string_view name) {
  if (name.empty() || name.size() > kMaxNameLength) return false;
  const auto first = static_cast<unsigned char>(name.front());
  if (!IsNameLetter(first)) return false;
  for (char c : name) {
    const auto u = static_cast<unsigned char>(c);
    if (!IsNameLetter(u) && !(u >= '0' && u <= '9') && c != '_') return false;
  }
  return true;
}

}  // namespace morvane

// SilentIndent: re-indents a finished .frm, .dsr, .ctl, .cls or .bas as the
// Visual Basic editor lays it out. Header lines (VERSION, Object, Attribute)
// stand at column 0; designer blocks indent three blanks per Begin level, the
// class header's properties two; code indents four blanks per block level.
// A statement continued with " _" is classified by its whole text, and its
// continuation lines stand one level deeper. Labels, line numbers and
// compiler directives stand at column 0. Unbalanced blocks never make a
// level negative: a stray closing line is written at the current level.
#include <algorithm>
#include <cctype>
#include <string>
#include <vector>

#include "platform/line_editor.h"
#include "platform/text_file.h"
#include "platform/text_fold.h"

namespace morvane {

namespace {

std::string Trim(const std::string& s) { return std::string(text::Trim(s)); }
std::string Lower(const std::string& s) { return text::Lower(s); }

bool Starts(const std::string& lower, const char* prefix) { return lower.rfind(prefix, 0) == 0; }

bool IsWord(const std::string& lower, const char* word) {
  size_t n = std::char_traits<char>::length(word);
  return lower.rfind(word, 0) == 0 && (lower.size() == n || lower[n] == ' ' || lower[n] == '\t' ||
                                       lower[n] == '\'' || lower[n] == ':');
}

// The code of a line without its trailing comment; quotes are respected.
std::string CodePart(const std::string& line) {
  bool quoted = false;
  for (size_t i = 0; i < line.size(); ++i) {
    if (line[i] == '"') quoted = !quoted;
    if (line[i] == '\'' && !quoted) return Trim(line.substr(0, i));
  }
  return Trim(line);
}

bool IsComment(const std::string& lower) { return Starts(lower, "'") || IsWord(lower, "rem"); }

bool IsLabel(const std::string& t) {
  if (t.empty()) return false;
  if (std::isdigit(static_cast<unsigned char>(t[0]))) {  // a line number
    size_t i = 0;
    while (i < t.size() && std::isdigit(static_cast<unsigned char>(t[i]))) ++i;
    return i == t.size() || t[i] == ' ' || t[i] == ':';
  }
  if (!std::isalpha(static_cast<unsigned char>(t[0]))) return false;
  size_t i = 0;
  while (i < t.size() && (std::isalnum(static_cast<unsigned char>(t[i])) || t[i] == '_')) ++i;
  if (i >= t.size() || t[i] != ':') return false;
  std::string rest = Trim(t.substr(i + 1));
  return (rest.empty() || rest[0] == '\'') && Lower(t.substr(0, i)) != "else";
}

std::string WithoutScope(std::string lower) {
  for (bool again = true; again;) {
    again = false;
    for (const char* scope : {"public ", "private ", "friend ", "static ", "global "}) {
      if (Starts(lower, scope)) {
        lower = Trim(lower.substr(std::char_traits<char>::length(scope)));
        again = true;
      }
    }
  }
  return lower;
}

enum Block { kProcedure, kIf, kFor, kDo, kSelect, kWith, kWhile, kType };

struct Classified {
  int closes = 0;  // blocks the statement ends before it is written
  bool closeProcedure = false;
  bool middle = false;       // Else, ElseIf, Case: one level out for this line only
  std::vector<Block> opens;  // blocks it starts behind it
};

Classified Classify(const std::string& code) {
  Classified c;
  const std::string l = Lower(code);
  const std::string u = WithoutScope(l);
  if (IsWord(l, "end")) {
    if (Starts(l, "end sub") || Starts(l, "end function") || Starts(l, "end property"))
      c.closeProcedure = true;
    else if (Starts(l, "end if") || Starts(l, "end select") || Starts(l, "end with") ||
             Starts(l, "end type") || Starts(l, "end enum"))
      c.closes = 1;
    return c;
  }
  if (IsWord(l, "next")) {
    c.closes = 1 + static_cast<int>(std::count(l.begin(), l.end(), ','));
    return c;
  }
  if (IsWord(l, "loop") || IsWord(l, "wend")) {
    c.closes = 1;
    return c;
  }
  if (IsWord(l, "else")) {
    c.middle = true;
    return c;
  }
  if (IsWord(l, "elseif")) {
    c.middle = true;
    return c;
  }
  if (IsWord(l, "case")) {
    c.middle = true;
    return c;
  }
  if (IsWord(u, "sub") || IsWord(u, "function") || IsWord(u, "property")) {
    c.opens.push_back(kProcedure);
    return c;
  }
  if (IsWord(l, "if")) {
    if (l.size() >= 4 && l.compare(l.size() - 4, 4, "then") == 0 &&
        (l.size() == 4 || l[l.size() - 5] == ' ' || l[l.size() - 5] == ')'))
      c.opens.push_back(kIf);
    return c;
  }
  if (IsWord(l, "for")) c.opens.push_back(kFor);
  if (IsWord(l, "do")) c.opens.push_back(kDo);
  if (Starts(l, "select case")) c.opens.push_back(kSelect);
  if (IsWord(l, "with")) c.opens.push_back(kWith);
  if (IsWord(l, "while")) c.opens.push_back(kWhile);
  if ((IsWord(u, "type") || IsWord(u, "enum")) && l.find('=') == std::string::npos)
    c.opens.push_back(kType);
  return c;
}

class CodeIndenter {
 public:
  int Depth() const {
    int d = 0;
    for (Block b : stack_) d += b == kSelect ? 2 : 1;
    return d;
  }

  // Indents one statement (its first line and its continuation lines).
  void Statement(std::vector<std::string>& out, const std::vector<std::string>& parts) {
    std::string code;
    for (const auto& p : parts) {
      std::string c = CodePart(p);
      if (c.size() >= 2 && c.compare(c.size() - 2, 2, " _") == 0) c.resize(c.size() - 2);
      code += c + " ";
    }
    Classified c = Classify(Trim(code));
    if (c.closeProcedure) {
      while (!stack_.empty() && stack_.back() != kProcedure) stack_.pop_back();
      if (!stack_.empty()) stack_.pop_back();
    }
    for (int i = 0; i < c.closes && !stack_.empty() && stack_.back() != kProcedure; ++i)
      stack_.pop_back();
    int depth = Depth();
    if (c.middle && !stack_.empty() && stack_.back() != kProcedure) depth -= 1;
    for (size_t i = 0; i < parts.size(); ++i)
      out.push_back(Pad(depth + (i > 0 ? 1 : 0)) + Trim(parts[i]));
    for (Block b : c.opens) stack_.push_back(b);
  }

  void Comment(std::vector<std::string>& out, const std::string& t) {
    out.push_back(Pad(Depth()) + t);
  }

 private:
  static std::string Pad(int depth) {
    return std::string(static_cast<size_t>(std::max(0, depth)) * 4, ' ');
  }
  std::vector<Block> stack_;
};

}  // namespace

void SilentIndent(TextDocument& doc) {
  const std::vector<std::string>& lines = doc.Lines();
  std::vector<std::string> out;
  out.reserve(lines.size());
  size_t i = 0;

  // Header: VERSION, Object, the class header, designer blocks, Attribute.
  while (i < lines.size()) {
    const std::string t = Trim(lines[i]);
    const std::string l = Lower(t);
    if (Starts(l, "version ") || Starts(l, "object =") || Starts(l, "object=") ||
        Starts(l, "attribute ")) {
      out.push_back(t);
      ++i;
    } else if (t == "BEGIN") {
      out.push_back(t);
      for (++i; i < lines.size(); ++i) {
        std::string inner = Trim(lines[i]);
        if (Lower(inner) == "end") {
          out.push_back(inner);
          ++i;
          break;
        }
        out.push_back(inner.empty() ? inner : "  " + inner);
      }
    } else if (IsWord(l, "begin") && Starts(l, "begin ")) {
      int depth = 0;
      for (; i < lines.size(); ++i) {
        std::string inner = Trim(lines[i]);
        std::string il = Lower(inner);
        bool opens = Starts(il, "begin ") || il == "begin" || Starts(il, "beginproperty ");
        bool closes = il == "end" || il == "endproperty";
        if (closes) depth = std::max(0, depth - 1);
        out.push_back(std::string(static_cast<size_t>(depth) * 3, ' ') + inner);
        if (opens) ++depth;
        if (closes && depth == 0) {
          ++i;
          break;
        }
      }
    } else {
      break;
    }
  }

  CodeIndenter code;
  while (i < lines.size()) {
    const std::string t = Trim(lines[i]);
    const std::string l = Lower(t);
    if (t.empty()) {
      out.emplace_back();
      ++i;
    } else if (IsComment(l)) {
      code.Comment(out, t);
      ++i;
    } else if (Starts(l, "#") || IsLabel(t)) {
      out.push_back(t);
      ++i;
    } else {
      std::vector<std::string> parts{lines[i++]};
      while (i < lines.size()) {
        std::string c = CodePart(parts.back());
        if (c.size() < 2 || c.compare(c.size() - 2, 2, " _") != 0) break;
        parts.push_back(lines[i++]);
      }
      code.Statement(out, parts);
    }
  }
  doc.SetLines(std::move(out));
}

}  // namespace morvane

// SilentIndent: re-indents a finished .frm, .dsr, .ctl, .cls or .bas as the
// Visual Basic editor lays it out. Header lines (VERSION, Object, Attribute)
// stand at column 0; designer blocks indent three blanks per Begin level, the
// class header's properties two; code indents four blanks per block level.
// A statement continued with " _" is classified by its whole text, and its
// continuation lines stand one level deeper. Labels, line numbers and
// compiler directives stand at column 0. Unbalanced blocks never make a
// level negative: a stray closing line is written at the current level.
#include <algorithm>
#include <array>
#include <cctype>
#include <cstring>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/line_editor.h"
#include "platform/text_file.h"
#include "platform/text_fold.h"

namespace morvane {

namespace {

std::string_view Trim(std::string_view s) { return text::Trim(s); }

// The lower-case copy of a line, kept in one buffer that each line reuses.
class Folded {
 public:
  std::string_view Of(std::string_view s) {
    buffer_.assign(s);
    for (char& c : buffer_) c = text::Fold(c);
    return buffer_;
  }

 private:
  std::string buffer_;
};

bool Starts(std::string_view lower, std::string_view prefix) { return lower.starts_with(prefix); }

bool IsWord(std::string_view lower, std::string_view word) {
  const size_t n = word.size();
  return lower.starts_with(word) && (lower.size() == n || lower[n] == ' ' || lower[n] == '\t' ||
                                     lower[n] == '\'' || lower[n] == ':');
}

// The code of a line without its trailing comment; quotes are respected.
// An apostrophe opens the comment where an even number of quotes stands
// before it, so only lines that hold an apostrophe are read quote by quote.
std::string_view CodePart(std::string_view line) {
  const char* data = line.data();
  const size_t n = line.size();
  bool quoted = false;
  for (size_t from = 0; from < n;) {
    const void* hit = std::memchr(data + from, '\'', n - from);
    if (!hit) break;
    const size_t at = static_cast<size_t>(static_cast<const char*>(hit) - data);
    for (size_t i = from; i < at; ++i)
      if (data[i] == '"') quoted = !quoted;
    if (!quoted) return Trim(line.substr(0, at));
    from = at + 1;
  }
  return Trim(line);
}

// A comment line, from its text past the blanks. Case only matters to "rem";
// the character behind it is no letter.
bool IsComment(std::string_view t) {
  if (t.starts_with('\'')) return true;
  if (t.size() < 3 || !text::IEquals(t.substr(0, 3), "rem")) return false;
  return t.size() == 3 || t[3] == ' ' || t[3] == '\t' || t[3] == '\'' || t[3] == ':';
}

bool IsLabel(std::string_view t) {
  if (t.empty()) return false;
  if (std::isdigit(static_cast<unsigned char>(t[0]))) {  // a line number
    size_t i = 0;
    while (i < t.size() && std::isdigit(static_cast<unsigned char>(t[i]))) ++i;
    return i == t.size() || t[i] == ' ' || t[i] == ':';
  }
  // A label ends in ":"; most lines hold none.
  if (t.find(':') == std::string_view::npos) return false;
  if (!std::isalpha(static_cast<unsigned char>(t[0]))) return false;
  size_t i = 0;
  while (i < t.size() && (std::isalnum(static_cast<unsigned char>(t[i])) || t[i] == '_')) ++i;
  if (i >= t.size() || t[i] != ':') return false;
  std::string_view rest = Trim(t.substr(i + 1));
  return (rest.empty() || rest[0] == '\'') && !text::IEquals(t.substr(0, i), "else");
}

std::string_view WithoutScope(std::string_view lower) {
  for (bool again = true; again;) {
    again = false;
    for (std::string_view scope : {"public ", "private ", "friend ", "static ", "global "}) {
      if (Starts(lower, scope)) {
        lower = Trim(lower.substr(scope.size()));
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
  bool middle = false;  // Else, ElseIf, Case: one level out for this line only
  // The blocks it starts behind it.
  struct Opens {
    std::array<Block, 8> blocks;
    size_t count = 0;
    void push_back(Block b) { blocks[count++] = b; }
    const Block* begin() const { return blocks.data(); }
    const Block* end() const { return blocks.data() + count; }
  } opens;
};

Classified Classify(std::string_view code, Folded& folded) {
  Classified c;
  const std::string_view l = folded.Of(code);
  // A word can only open the statement whose first letter it shares, so each
  // test is only made where that letter leads; the scope words all begin
  // with one of "pfsg".
  const char f = l.empty() ? '\0' : l[0];
  const std::string_view u = (f == 'p' || f == 'f' || f == 's' || f == 'g') ? WithoutScope(l) : l;
  const char g = u.empty() ? '\0' : u[0];
  if (f == 'e' && IsWord(l, "end")) {
    if (Starts(l, "end sub") || Starts(l, "end function") || Starts(l, "end property"))
      c.closeProcedure = true;
    else if (Starts(l, "end if") || Starts(l, "end select") || Starts(l, "end with") ||
             Starts(l, "end type") || Starts(l, "end enum"))
      c.closes = 1;
    return c;
  }
  if (f == 'n' && IsWord(l, "next")) {
    c.closes = 1 + static_cast<int>(std::count(l.begin(), l.end(), ','));
    return c;
  }
  if ((f == 'l' && IsWord(l, "loop")) || (f == 'w' && IsWord(l, "wend"))) {
    c.closes = 1;
    return c;
  }
  if (f == 'e' && (IsWord(l, "else") || IsWord(l, "elseif"))) {
    c.middle = true;
    return c;
  }
  if (f == 'c' && IsWord(l, "case")) {
    c.middle = true;
    return c;
  }
  if ((g == 's' && IsWord(u, "sub")) || (g == 'f' && IsWord(u, "function")) ||
      (g == 'p' && IsWord(u, "property"))) {
    c.opens.push_back(kProcedure);
    return c;
  }
  if (f == 'i' && IsWord(l, "if")) {
    if (l.size() >= 4 && l.compare(l.size() - 4, 4, "then") == 0 &&
        (l.size() == 4 || l[l.size() - 5] == ' ' || l[l.size() - 5] == ')'))
      c.opens.push_back(kIf);
    return c;
  }
  if (f == 'f' && IsWord(l, "for")) c.opens.push_back(kFor);
  if (f == 'd' && IsWord(l, "do")) c.opens.push_back(kDo);
  if (f == 's' && Starts(l, "select case")) c.opens.push_back(kSelect);
  if (f == 'w' && IsWord(l, "with")) c.opens.push_back(kWith);
  if (f == 'w' && IsWord(l, "while")) c.opens.push_back(kWhile);
  if (((g == 't' && IsWord(u, "type")) || (g == 'e' && IsWord(u, "enum"))) &&
      l.find('=') == std::string_view::npos)
    c.opens.push_back(kType);
  return c;
}

// Gives `line` its text without blanks or tabs at either end, behind
// `blanks` blanks (an empty text gives the blanks alone), in place: most
// lines keep their buffer.
void Indent(std::string& line, size_t blanks) {
  size_t b = 0;
  bool tab = false;  // among the leading blanks
  while (b < line.size() && (line[b] == ' ' || line[b] == '\t')) tab = tab || line[b++] == '\t';
  size_t e = line.size();
  while (e > b && (line[e - 1] == ' ' || line[e - 1] == '\t')) --e;
  line.resize(e);
  if (b == blanks && !tab) return;  // the blanks it has are the ones it needs
  line.replace(0, b, blanks, ' ');
}

class CodeIndenter {
 public:
  int Depth() const {
    int d = 0;
    for (Block b : stack_) d += b == kSelect ? 2 : 1;
    return d;
  }

  // The statement that begins at lines[first]: its first line and the
  // lines it goes on in. Returns the index behind its last line.
  size_t Statement(std::vector<std::string>& lines, size_t first) {
    code_.clear();
    size_t end = first;
    while (end < lines.size()) {
      std::string_view c = CodePart(lines[end++]);
      const bool continued = c.ends_with(" _");
      if (continued) c.remove_suffix(2);
      code_ += c;
      code_ += ' ';
      if (!continued) break;
    }
    IndentStatement(std::span<std::string>(lines).subspan(first, end - first));
    return end;
  }

  void Comment(std::string& line) { Indent(line, Blanks(Depth())); }

  static size_t Blanks(int depth) { return static_cast<size_t>(std::max(0, depth)) * 4; }

 private:
  // Indents the lines of the statement whose code code_ holds.
  void IndentStatement(std::span<std::string> parts) {
    Classified c = Classify(Trim(code_), folded_);
    if (c.closeProcedure) {
      while (!stack_.empty() && stack_.back() != kProcedure) stack_.pop_back();
      if (!stack_.empty()) stack_.pop_back();
    }
    for (int i = 0; i < c.closes && !stack_.empty() && stack_.back() != kProcedure; ++i)
      stack_.pop_back();
    int depth = Depth();
    if (c.middle && !stack_.empty() && stack_.back() != kProcedure) depth -= 1;
    for (size_t i = 0; i < parts.size(); ++i) Indent(parts[i], Blanks(depth + (i > 0 ? 1 : 0)));
    for (Block b : c.opens) stack_.push_back(b);
  }

  std::vector<Block> stack_;
  std::string code_;
  Folded folded_;
};

}  // namespace

void SilentIndent(TextDocument& doc) {
  std::vector<std::string> lines = std::move(doc.Lines());
  size_t i = 0;
  Folded folded;

  // Header: VERSION, Object, the class header, designer blocks, Attribute.
  while (i < lines.size()) {
    const std::string_view t = Trim(lines[i]);
    const std::string_view l = folded.Of(t);
    if (Starts(l, "version ") || Starts(l, "object =") || Starts(l, "object=") ||
        Starts(l, "attribute ")) {
      Indent(lines[i], 0);
      ++i;
    } else if (t == "BEGIN") {
      Indent(lines[i], 0);
      for (++i; i < lines.size(); ++i) {
        if (text::IEquals(Trim(lines[i]), "end")) {
          Indent(lines[i], 0);
          ++i;
          break;
        }
        if (Trim(lines[i]).empty())
          lines[i].clear();
        else
          Indent(lines[i], 2);
      }
    } else if (IsWord(l, "begin") && Starts(l, "begin ")) {
      int depth = 0;
      for (; i < lines.size(); ++i) {
        const std::string_view il = folded.Of(Trim(lines[i]));
        bool opens = Starts(il, "begin ") || il == "begin" || Starts(il, "beginproperty ");
        bool closes = il == "end" || il == "endproperty";
        if (closes) depth = std::max(0, depth - 1);
        Indent(lines[i], static_cast<size_t>(depth) * 3);
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
    const std::string_view t = Trim(lines[i]);
    if (t.empty()) {
      lines[i].clear();
      ++i;
    } else if (IsComment(t)) {
      code.Comment(lines[i]);
      ++i;
    } else if (t.front() == '#' || IsLabel(t)) {
      Indent(lines[i], 0);
      ++i;
    } else {
      i = code.Statement(lines, i);
    }
  }
  doc.SetLines(std::move(lines));
}

}  // namespace morvane

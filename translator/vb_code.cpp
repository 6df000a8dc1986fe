// Code, strings and comments of a line; whole-word searches in code;
// statements and continued lines.
#include "translator/vb_code.h"

#include <algorithm>

#include "session/naming.h"
#include "translator/text_helpers.h"

namespace morvane {

namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }
bool IsName(char c) { return IsIdentifierChar(static_cast<unsigned char>(c)); }

// "Rem" as a statement: the word alone or followed by anything but a name's
// character ("Rem//" too).
bool IsRemAt(std::string_view line, size_t i) {
  if (line.size() < i + 3 || !EqualsNoCase(line.substr(i, 3), "rem")) return false;
  return line.size() == i + 3 || !IsName(line[i + 3]);
}

// A "#" opens a date literal where a value may stand and a date follows up
// to the next "#"; "#" in front of a file number or a directive does not.
size_t DateLiteralEnd(std::string_view line, size_t pos) {
  if (pos > 0 && IsName(line[pos - 1])) return std::string_view::npos;
  size_t before = pos;
  while (before > 0 && IsBlank(line[before - 1])) --before;
  if (before == 0) return std::string_view::npos;
  const size_t close = line.find('#', pos + 1);
  if (close == std::string_view::npos || close == pos + 1) return std::string_view::npos;
  bool digit = false;
  bool separator = false;
  for (size_t i = pos + 1; i < close; ++i) {
    const char c = line[i];
    if (c >= '0' && c <= '9') {
      digit = true;
    } else if (c == '/' || c == ':' || c == '-') {
      separator = true;
    } else if (std::string_view(". APMapm").find(c) == std::string_view::npos) {
      return std::string_view::npos;
    }
  }
  return digit && separator ? close : std::string_view::npos;
}

bool Allowed(char kind, const WordMatch& m) { return kind == 'c' || (kind == 'm' && m.inComments); }

size_t RawFind(std::string_view line, std::string_view find, size_t from, bool ignoreCase) {
  if (from > line.size()) return std::string_view::npos;
  return ignoreCase ? FindNoCase(line, find, from) : line.find(find, from);
}

// An edge of a rule's text that must not run on into a longer name; a text
// that ends in "_" ("Report_") is a prefix of names.
bool IsWordEdge(char c) { return c != '_' && IsName(c); }

// In a comment every plain hit counts, since nothing there is compiled.
bool IsWholeHit(std::string_view line, const std::string& kinds, size_t hit, std::string_view find,
                const WordMatch& m) {
  const size_t end = hit + find.size();
  if (!Allowed(kinds[hit], m) || !Allowed(kinds[end - 1], m)) return false;
  if (kinds[hit] == 'm') return true;
  if (IsWordEdge(find.front()) && hit > 0 && IsName(line[hit - 1])) return false;
  if (IsWordEdge(find.back()) && end < line.size() && IsName(line[end])) return false;
  return true;
}

std::string_view TrimView(std::string_view s) {
  while (!s.empty() && IsBlank(s.front())) s.remove_prefix(1);
  while (!s.empty() && IsBlank(s.back())) s.remove_suffix(1);
  return s;
}

// The first word of a statement, in lower case.
std::string FirstWord(std::string_view s) {
  s = TrimView(s);
  size_t n = 0;
  while (n < s.size() && IsName(s[n])) ++n;
  return ToLower(s.substr(0, n));
}

// Words that stand as statements of their own, so "Else:" is no label.
constexpr std::string_view kStatementWords[] = {"else", "do",   "loop",   "next",   "wend",
                                                "end",  "stop", "return", "resume", "exit"};

bool IsLabel(std::string_view statement) {
  statement = TrimView(statement);
  if (statement.empty() || !IsName(statement.front()) ||
      (statement.front() >= '0' && statement.front() <= '9'))
    return false;
  for (char c : statement)
    if (!IsName(c)) return false;
  const std::string word = ToLower(statement);
  return std::find(std::begin(kStatementWords), std::end(kStatementWords), word) ==
         std::end(kStatementWords);
}

// An If whose Then has code behind it on the same line.
bool IsSingleLineIf(std::string_view statement, std::string_view kinds) {
  if (FirstWord(statement) != "if") return false;
  const std::string k(kinds);
  for (size_t p = FindWord(statement, "then", 0, kInCode); p != std::string_view::npos;
       p = FindWord(statement, "then", p + 1, kInCode)) {
    for (size_t i = p + 4; i < statement.size(); ++i) {
      if (k[i] == 'm') return false;
      if (!IsBlank(statement[i])) return true;
    }
    return false;
  }
  return false;
}

}  // namespace

namespace {

// Reads the line as Visual Basic does, calling `mark(from, to, kind)` for each
// string or date literal ('s', [from, to]) and for the comment ('m', from
// `from` to the end). Returns where the comment begins, or npos.
template <typename Mark>
size_t ScanKinds(std::string_view line, Mark&& mark) {
  const size_t n = line.size();
  bool statementStart = true;
  size_t i = 0;
  while (i < n) {
    const char c = line[i];
    if (statementStart && IsBlank(c)) {
      ++i;
      continue;
    }
    if (c == '"') {
      size_t j = i + 1;
      while (j < n) {
        if (line[j] == '"') {
          if (j + 1 < n && line[j + 1] == '"') {
            j += 2;
            continue;
          }
          break;
        }
        ++j;
      }
      const size_t end = std::min(j, n - 1);
      mark(i, end, 's');
      i = end + 1;
      statementStart = false;
      continue;
    }
    if (c == '\'' || (statementStart && (c == 'r' || c == 'R') && IsRemAt(line, i))) {
      mark(i, n - 1, 'm');
      return i;
    }
    if (c == '#') {
      const size_t close = DateLiteralEnd(line, i);
      if (close != std::string_view::npos) {
        mark(i, close, 's');
        i = close + 1;
        statementStart = false;
        continue;
      }
    }
    statementStart = c == ':' && !(i + 1 < n && line[i + 1] == '=');
    ++i;
  }
  return std::string_view::npos;
}

}  // namespace

std::string CharKinds(std::string_view line) {
  std::string kinds(line.size(), 'c');
  ScanKinds(line, [&kinds](size_t from, size_t to, char kind) {
    std::fill(kinds.begin() + static_cast<long>(from), kinds.begin() + static_cast<long>(to) + 1,
              kind);
  });
  return kinds;
}

size_t CommentStart(std::string_view line) {
  return ScanKinds(line, [](size_t, size_t, char) {});
}

std::string CodePart(std::string_view line) {
  return std::string(TrimView(line.substr(0, CommentStart(line))));
}

size_t FindWord(std::string_view line, std::string_view find, size_t from, const WordMatch& m,
                int* passed) {
  if (find.empty()) return std::string_view::npos;
  size_t hit = RawFind(line, find, from, m.ignoreCase);
  if (hit == std::string_view::npos) return hit;
  const std::string kinds = CharKinds(line);
  for (; hit != std::string_view::npos; hit = RawFind(line, find, hit + 1, m.ignoreCase)) {
    if (IsWholeHit(line, kinds, hit, find, m)) return hit;
    if (passed) ++*passed;
  }
  return std::string_view::npos;
}

bool ContainsWord(std::string_view line, std::string_view find, const WordMatch& m, int* passed) {
  return FindWord(line, find, 0, m, passed) != std::string_view::npos;
}

std::string ReplaceWords(std::string_view line, std::string_view find, std::string_view with,
                         const WordMatch& m, int* passed) {
  if (find.empty()) return std::string(line);
  size_t hit = RawFind(line, find, 0, m.ignoreCase);
  if (hit == std::string_view::npos) return std::string(line);
  const std::string kinds = CharKinds(line);
  std::string out;
  size_t copied = 0;
  while (hit != std::string_view::npos) {
    if (IsWholeHit(line, kinds, hit, find, m)) {
      out.append(line.substr(copied, hit - copied));
      out.append(with);
      copied = hit + find.size();
      hit = RawFind(line, find, copied, m.ignoreCase);
    } else {
      if (passed) ++*passed;
      hit = RawFind(line, find, hit + 1, m.ignoreCase);
    }
  }
  out.append(line.substr(copied));
  return out;
}

std::vector<std::string> SplitStatements(std::string_view line) {
  // Without a colon the line is one statement, unless it begins with Else.
  if (line.find(':') == std::string_view::npos && !StartsWithNoCase(TrimView(line), "else"))
    return {std::string(line)};
  const std::string kinds = CharKinds(line);
  std::vector<std::string> out;
  auto push = [&out](std::string_view statement) {
    statement = TrimView(statement);
    if (statement.empty()) return;
    // "Else x = 1" is Else and a statement of the block; "Else ' note" stays.
    if (FirstWord(statement) == "else" && statement.size() > 4 && IsBlank(statement[4])) {
      const std::string_view rest = TrimView(statement.substr(4));
      if (!rest.empty() && rest.front() != '\'' && !IsRemAt(rest, 0)) {
        out.emplace_back("Else");
        out.emplace_back(rest);
        return;
      }
    }
    out.emplace_back(statement);
  };
  size_t start = 0;
  while (start < line.size()) {
    while (start < line.size() && IsBlank(line[start])) ++start;
    if (start >= line.size()) break;
    const std::string_view rest = line.substr(start);
    if (IsSingleLineIf(rest, std::string_view(kinds).substr(start))) {
      push(rest);
      break;
    }
    size_t colon = std::string_view::npos;
    for (size_t i = start; i < line.size() && kinds[i] != 'm'; ++i) {
      if (line[i] == ':' && kinds[i] == 'c' && !(i + 1 < line.size() && line[i + 1] == '=')) {
        colon = i;
        break;
      }
    }
    if (colon == std::string_view::npos) {
      push(rest);
      break;
    }
    size_t next = colon + 1;
    while (next < line.size() && IsBlank(line[next])) ++next;
    if (next >= line.size() || kinds[next] == 'm') {
      // Only a comment (or nothing) follows: the colon stays with it.
      push(rest);
      break;
    }
    const std::string_view statement = line.substr(start, colon - start);
    if (out.empty() && IsLabel(statement))
      out.push_back(std::string(TrimView(statement)) + ":");
    else
      push(statement);
    start = colon + 1;
  }
  if (out.size() <= 1) return {std::string(line)};
  return out;
}

bool ContinuesOnNextLine(std::string_view line) {
  line = TrimView(line);
  if (line.empty() || line.back() != '_') return false;
  return line.size() == 1 || IsBlank(line[line.size() - 2]);
}

std::string WithoutContinuation(std::string_view line) {
  std::string_view t = TrimView(line);
  if (ContinuesOnNextLine(t)) t = TrimView(t.substr(0, t.size() - 1));
  return std::string(t);
}

std::vector<std::string> FitLineLength(const std::string& line) {
  std::vector<std::string> out;
  std::string rest = line;
  // A piece leaves room for the indent, and for " _" or "\" & _" behind a
  // cut.
  constexpr size_t kLimit = kFittedLineLength;
  constexpr size_t kRoom = kLimit - 5;
  while (rest.size() > kLimit && out.size() < kMaxContinuations) {
    const std::string kinds = CharKinds(rest);
    size_t cut = std::string::npos;
    for (size_t i = kRoom; i > kRoom / 2; --i) {
      if (rest[i] == ' ' && kinds[i] != 's') {
        cut = i;
        break;
      }
    }
    if (cut != std::string::npos) {
      out.push_back(rest.substr(0, cut) + " _");
      rest = std::string(TrimView(rest.substr(cut)));
      continue;
    }
    // A long string literal is closed and opened again; never between the
    // two quotes of a doubled quote.
    size_t at = kRoom;
    while (at > kRoom / 2 &&
           (kinds[at] != 's' || kinds[at - 1] != 's' || rest[at - 1] == '"' || rest[at] == '"'))
      --at;
    if (at <= kRoom / 2) break;
    out.push_back(rest.substr(0, at) + "\" & _");
    rest = "\"" + rest.substr(at);
  }
  out.push_back(rest);
  return out;
}

}  // namespace morvane

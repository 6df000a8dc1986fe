// Module code of the source tree: stripping export headers and counting the
// declarations section.
#include "platform/source_module.h"

#include <algorithm>
#include <type_traits>
#include <utility>

#include "platform/text_file.h"
#include "platform/text_fold.h"

namespace morvane {

using text::IEquals;
using text::IStartsWith;
using text::Trim;

std::string ModuleCode::Lines(int start, int count) const {
  std::string out;
  if (count < 1) return out;
  int first = start < 1 ? 1 : start;
  int last = start + count - 1;
  if (last > CountOfLines()) last = CountOfLines();
  for (int i = first; i <= last; ++i) {
    if (i > first) out += "\r\n";
    out += Code[static_cast<size_t>(i - 1)];
  }
  return out;
}

namespace {

constexpr std::string_view kScopeWords[] = {"Public ", "Private ", "Friend "};
constexpr std::string_view kProcWords[] = {"Sub ", "Function ", "Property Get ", "Property Let ",
                                           "Property Set "};

bool EatWord(std::string_view* text, std::string_view word) {
  if (!IStartsWith(*text, word)) return false;
  text->remove_prefix(word.size());
  *text = Trim(*text);
  return true;
}

// Lines that go with the procedure below them: comments, blank lines and
// compilation constants.
bool LeadsProcedure(std::string_view line) {
  std::string_view t = Trim(line);
  return t.empty() || t[0] == '\'' || IEquals(t, "Rem") || IStartsWith(t, "Rem ") ||
         IStartsWith(t, "#Const ");
}

bool ContinuesOnNextLine(std::string_view line) {
  std::string_view t = Trim(line);
  return t.size() >= 2 && t.back() == '_' && (t[t.size() - 2] == ' ' || t[t.size() - 2] == '\t');
}

bool IsAttributeLine(std::string_view line) { return IStartsWith(line, "Attribute "); }

// `Attribute Name.VB_UserMemId = 0` and the like inside a procedure: the
// editor hides them as it hides the module's own Attribute lines.
bool IsMemberAttributeLine(std::string_view line) {
  if (!IsAttributeLine(line)) return false;
  std::string_view rest = Trim(line.substr(10));
  size_t dot = rest.find('.');
  size_t blank = rest.find_first_of(" =");
  return dot != std::string_view::npos && dot < blank && IStartsWith(rest.substr(dot + 1), "VB_");
}

// `Lines` is a const vector, whose lines are copied, or a vector the caller
// gives up, whose lines are moved.
template <typename Lines>
void AppendCode(Lines& lines, size_t from, ModuleCode* out) {
  out->Code.reserve(lines.size() - std::min(from, lines.size()));
  for (size_t i = from; i < lines.size(); ++i) {
    if (IsMemberAttributeLine(lines[i])) continue;
    if constexpr (std::is_const_v<Lines>)
      out->Code.push_back(lines[i]);
    else
      out->Code.push_back(std::move(lines[i]));
  }
  out->CountOfDeclarationLines = CountDeclarationLines(out->Code);
}

template <typename Lines>
ModuleCode FromExport(Lines& lines, std::string* vbName) {
  ModuleCode out;
  if (vbName) vbName->clear();
  size_t i = ClassHeaderLength(lines);
  if (i > 0) out.Type = 1;
  for (; i < lines.size() && IsAttributeLine(lines[i]); ++i) {
    if (IsClassAttributeLine(lines[i])) out.Type = 1;
    std::string name = VbNameOf(lines[i]);
    if (!name.empty() && vbName) *vbName = name;
  }
  AppendCode(lines, i, &out);
  return out;
}

bool IsCodeBehindLine(std::string_view line) { return Trim(line) == "CodeBehindForm"; }

// The index of the design's CodeBehindForm line, or the number of lines.
// `Lines` here and below is a vector of lines or a span of views of them.
template <typename Lines>
size_t CodeBehindLine(const Lines& lines) {
  size_t i = 0;
  while (i < lines.size() && !IsCodeBehindLine(lines[i])) ++i;
  return i;
}

// The first line of the code behind, from the line after CodeBehindForm on:
// the Attribute lines are not part of it.
template <typename Lines>
size_t FirstCodeLine(const Lines& lines, size_t from) {
  while (from < lines.size() && IsAttributeLine(lines[from])) ++from;
  return from;
}

}  // namespace

bool IsProcedureHeader(std::string_view line) {
  std::string_view t = Trim(line);
  for (auto w : kScopeWords)
    if (EatWord(&t, w)) break;
  EatWord(&t, "Static ");
  for (auto w : kProcWords)
    if (IStartsWith(t, w)) return true;
  return false;
}

int CountDeclarationLines(const std::vector<std::string>& code) {
  size_t header = 0;
  while (header < code.size() && !(IsProcedureHeader(code[header]) &&
                                   (header == 0 || !ContinuesOnNextLine(code[header - 1]))))
    ++header;
  if (header == code.size()) return static_cast<int>(code.size());
  size_t start = header;
  while (start > 0 && LeadsProcedure(code[start - 1]) &&
         !(start >= 2 && ContinuesOnNextLine(code[start - 2])))
    --start;
  return static_cast<int>(start);
}

std::string VbNameOf(std::string_view line) {
  std::string_view t = Trim(line);
  if (!IStartsWith(t, "Attribute VB_Name")) return {};
  size_t q1 = t.find('"');
  size_t q2 = t.rfind('"');
  if (q1 == std::string_view::npos || q2 <= q1) return {};
  return std::string(t.substr(q1 + 1, q2 - q1 - 1));
}

bool IsClassAttributeLine(std::string_view line) {
  std::string_view t = Trim(line);
  if (!IStartsWith(t, "Attribute ")) return false;
  t = Trim(t.substr(10));
  for (std::string_view key :
       {"VB_GlobalNameSpace", "VB_Creatable", "VB_PredeclaredId", "VB_Exposed"})
    if (IStartsWith(t, key) && Trim(t.substr(key.size())).substr(0, 1) == "=") return true;
  return false;
}

namespace {

template <typename Lines>
size_t HeaderLength(const Lines& lines) {
  size_t i = 0;
  if (lines.empty() || !IStartsWith(Trim(lines[0]), "VERSION 1.0 CLASS")) return 0;
  ++i;
  if (i < lines.size() && IEquals(Trim(lines[i]), "BEGIN")) {
    while (i < lines.size() && !IEquals(Trim(lines[i]), "END")) ++i;
    if (i < lines.size()) ++i;
  }
  return i;
}

// The file a stub names, from the code behind's first line `from` on.
template <typename Lines>
std::string StubFile(const Lines& lines, size_t from) {
  std::string file;
  for (size_t i = from; i < lines.size(); ++i) {
    std::string_view t = Trim(lines[i]);
    if (t.empty() || IsAttributeLine(t)) continue;
    if (!file.empty() || !IStartsWith(t, "' See \"") || t.back() != '"') return {};
    std::string_view named = t.substr(7, t.size() - 8);
    if (named.empty() || named.find('"') != std::string_view::npos) return {};
    file = std::string(named);
  }
  return file;
}

}  // namespace

size_t ClassHeaderLength(const std::vector<std::string>& lines) { return HeaderLength(lines); }

size_t ClassHeaderLength(std::span<const std::string_view> lines) { return HeaderLength(lines); }

// Both shapes of a class module are read: the VBA editor's export with its
// VERSION 1.0 CLASS header, and Access's own text of a class, which starts
// with the class's Attribute lines and names no VB_Name.
ModuleCode ModuleFromExport(const std::vector<std::string>& lines, std::string* vbName) {
  return FromExport(lines, vbName);
}

ModuleCode ModuleFromExport(std::vector<std::string>&& lines, std::string* vbName) {
  return FromExport(lines, vbName);
}

std::string ModuleNameOfExport(std::span<const std::string_view> lines) {
  std::string vbName;
  for (size_t i = ClassHeaderLength(lines); i < lines.size() && IsAttributeLine(lines[i]); ++i) {
    std::string name = VbNameOf(lines[i]);
    if (!name.empty()) vbName = std::move(name);
  }
  return vbName;
}

ModuleCode CodeBehindFromCode(std::vector<std::string>&& lines) {
  ModuleCode out;
  out.Type = 1;
  AppendCode(lines, FirstCodeLine(lines, 0), &out);
  return out;
}

bool HasCodeLines(std::span<const std::string_view> code) {
  for (size_t i = FirstCodeLine(code, 0); i < code.size(); ++i)
    if (!IsMemberAttributeLine(code[i])) return true;
  return false;
}

size_t CodeBehindOffset(std::string_view text) {
  constexpr std::string_view kMarker = "CodeBehindForm";
  for (size_t at = text.find(kMarker); at != std::string_view::npos;
       at = text.find(kMarker, at + kMarker.size())) {
    const size_t start = text.find_last_of("\r\n", at) + 1;  // npos + 1 is 0
    size_t end = FindLineBreak(text, at);
    if (!IsCodeBehindLine(text.substr(start, end - start))) continue;
    if (end == std::string_view::npos) return text.size();
    if (text[end] == '\r' && end + 1 < text.size() && text[end + 1] == '\n') ++end;
    return end + 1;
  }
  return std::string_view::npos;
}

std::string CodeFileOfStub(const std::vector<std::string>& lines) {
  return StubFile(lines, CodeBehindLine(lines) + 1);
}

std::string CodeFileOfStubCode(std::span<const std::string_view> code) { return StubFile(code, 0); }

}  // namespace morvane

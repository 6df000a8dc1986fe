// The translation loop: logical lines, statements, stand-ins for block
// lines, and the physical lines written back.
#include "translator/statements.h"

#include <exception>
#include <span>
#include <string_view>

#include "session/analysis_writers.h"
#include "session/naming.h"
#include "translator/block_keeper.h"
#include "translator/conditional_compilation.h"
#include "translator/form_injection.h"
#include "translator/rule_outcomes.h"
#include "translator/vb_code.h"

namespace morvane {

namespace {

std::string TrimRight(std::string_view text) {
  while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
  return std::string(text);
}

// Cuts the translated text of a continued statement where its lines began:
// each line's text is looked for, whole or by its start, at a blank behind
// the piece before. A line whose text a rule changed beyond recognition
// joins the piece before it. `commented` text may be cut at any blank.
std::vector<std::string> Cut(const std::string& text, const std::vector<std::string>& parts,
                             bool commented) {
  const std::string kinds = commented ? std::string(text.size(), 'm') : CharKinds(text);
  std::vector<std::string> pieces;
  size_t pieceStart = 0;
  for (size_t k = 1; k < parts.size(); ++k) {
    const std::string& part = parts[k];
    size_t at = std::string::npos;
    for (size_t length :
         {part.size(), std::min<size_t>(part.size(), 24), std::min<size_t>(part.size(), 8)}) {
      if (length == 0) break;
      const std::string_view probe(part.data(), length);
      for (size_t hit = text.find(probe, pieceStart + 1); hit != std::string::npos;
           hit = text.find(probe, hit + 1)) {
        if (text[hit - 1] == ' ' && kinds[hit - 1] != 's') {
          at = hit;
          break;
        }
      }
      if (at != std::string::npos) break;
    }
    // A line that a rule changed begins where the line before it, found
    // unchanged, ends.
    const std::string& before = parts[k - 1];
    const size_t end = pieceStart + before.size();
    if (at == std::string::npos && (k == 1 || pieceStart > 0) && end < text.size() &&
        text.compare(pieceStart, before.size(), before) == 0 && text[end] == ' ' &&
        kinds[end] != 's')
      at = end + 1;
    if (at == std::string::npos) continue;
    pieces.push_back(TrimRight(std::string_view(text).substr(pieceStart, at - pieceStart)));
    pieceStart = at;
  }
  pieces.push_back(text.substr(pieceStart));
  return pieces;
}

// The physical lines of a continued statement whose translated text is
// `text`: its own lines when no rule changed it, and otherwise the text cut
// where the lines began. A commented-out statement is commented on every
// line, so that no mark stands inside a statement that goes on.
std::vector<std::string> PhysicalLines(const std::string& text, const std::string& joined,
                                       std::span<const std::string> originals,
                                       const std::vector<std::string>& parts) {
  std::vector<std::string> out;
  if (text == joined) {
    for (const auto& line : originals) out.push_back(TrimBlanks(line));
    return out;
  }
  const std::string mark(kCommentMark);
  auto continued = [](std::vector<std::string> lines) {
    for (size_t i = 0; i + 1 < lines.size(); ++i) lines[i] += " _";
    return lines;
  };
  if (text.starts_with(mark)) {
    for (const auto& piece : continued(Cut(text.substr(mark.size()), parts, true)))
      out.push_back(mark + piece);
    return out;
  }
  if (const size_t tab = text.find("\t" + mark); tab != std::string::npos) {
    const auto pieces = continued(Cut(text.substr(tab + 1 + mark.size()), parts, true));
    out.push_back(text.substr(0, tab + 1) + mark + pieces[0]);
    for (size_t i = 1; i < pieces.size(); ++i) out.push_back(mark + pieces[i]);
    return out;
  }
  return continued(Cut(text, parts, false));
}

// The re-indenter puts blanks ahead of most code lines. The copy of a
// statement that the rules work on, and that is written unless a rule
// rewrites it, leaves room for a few levels of them, so that indenting the
// line needs no buffer of its own; a short line keeps the string's small
// buffer either way.
constexpr size_t kIndentRoom = 16;

std::string WorkingCopy(const std::string& statement) {
  std::string line;
  if (statement.size() > line.capacity()) line.reserve(statement.size() + kIndentRoom);
  line.assign(statement);
  return line;
}

// Rules and the block keeper over one statement; should anything fail, the
// statement goes out as it was read and the run goes on.
std::string TranslateSafely(ModuleTranslation& t, const std::string& statement, bool newLine) {
  const size_t written = t.Output.size();
  t.StatementMarked = false;
  t.PassedHits = 0;
  try {
    std::string text = TranslateStatement(t, WorkingCopy(statement), newLine);
    if (t.StatementMarked)
      if (auto kept = KeepBlock(t, TrimBlanks(statement), text)) text = std::move(*kept);
    return text;
  } catch (const std::exception&) {
    t.Output.resize(written);
    return TrimBlanks(statement);
  }
}

// Type ... End Type blocks of the declarations, for the rules that read a
// member line differently.
void TrackTypeBlock(ModuleTranslation& t, const std::string& statement, bool after) {
  // Behind a statement only the end of an open block is looked for.
  if (after && !t.InTypeBlock) return;
  // The code part is a beginning of the statement past its blanks: a
  // statement that does not begin with a word looked for here cannot have a
  // code part that does.
  std::string_view start = statement;
  while (!start.empty() && (start.front() == ' ' || start.front() == '\t')) start.remove_prefix(1);
  if (after ? !StartsWithNoCase(start, "End Type")
            : !StartsWithNoCase(start, "Public ") && !StartsWithNoCase(start, "Private ") &&
                  !StartsWithNoCase(start, "Type "))
    return;
  const std::string code = CodePart(statement);
  if (after) {
    if (StartsWithNoCase(code, "End Type")) t.InTypeBlock = false;
    return;
  }
  std::string_view rest = code;
  for (std::string_view scope : {"Public ", "Private "})
    if (StartsWithNoCase(rest, scope)) rest = rest.substr(scope.size());
  if (StartsWithNoCase(rest, "Type ")) t.InTypeBlock = true;
}

// `continued`: the lines of a statement continued over several lines.
void WriteStatement(ModuleTranslation& t, const std::string& statement, bool newLine,
                    std::span<const std::string> continued) {
  const bool designer = t.InDesignerBlock();
  BeforeDirective(t, statement);
  TrackTypeBlock(t, statement, false);
  std::string text = TranslateSafely(t, statement, newLine);
  // Past its writing the text is read only by the injection after a form's
  // Load or Activate header, which holds a "_", and by the row of a kept
  // choice; otherwise it is handed over rather than copied.
  const bool textNeeded =
      text.find('_') != std::string::npos || (t.PassedHits > 0 && !t.StatementMarked);
  // Designer lines are copied as they are; a code line that a rule made
  // longer than Visual Basic reads is continued on the next.
  auto write = [&t, designer](std::string&& line) {
    if (designer || t.InDesignerBlock() || line.size() <= kFittedLineLength)
      t.Write(std::move(line));
    else
      for (auto& fitted : FitLineLength(line)) t.Write(std::move(fitted));
  };
  if (!continued.empty()) {
    std::vector<std::string> parts;
    for (const auto& line : continued) parts.push_back(WithoutContinuation(line));
    for (auto& line : PhysicalLines(text, statement, continued, parts)) write(std::move(line));
  } else {
    write(textNeeded ? std::string(text) : std::move(text));
  }
  if (textNeeded) InjectAfterLine(t, text);
  AfterDirective(t, statement);
  TrackTypeBlock(t, statement, true);
  // A rule that left code alone where its plain text would have changed it
  // says so; a statement commented out needs no such row.
  if (textNeeded && t.PassedHits > 0 && !t.StatementMarked)
    ReportRule(t, kReasonKeptChoice, TrimBlanks(statement), text);
}

// A line without a colon that does not begin with Else, which
// SplitStatements gives back whole: it is taken as it is, without a copy.
bool IsOneStatement(std::string_view line) {
  if (line.find(':') != std::string_view::npos) return false;
  while (!line.empty() && (line.front() == ' ' || line.front() == '\t')) line.remove_prefix(1);
  return !StartsWithNoCase(line, "else");
}

bool IsWholeLine(const ModuleTranslation& t, const std::string& trimmed) {
  return trimmed.empty() || trimmed[0] == '\'' || trimmed[0] == '#' ||
         StartsWithNoCase(trimmed, "Attribute ") || !t.Compiled();
}

// `joined` is a buffer that the caller reuses from line to line: most
// logical lines are one line of one statement, which is translated from it
// without a copy of its own.
void TranslateLogicalLine(ModuleTranslation& t, std::span<const std::string> lines,
                          std::string& joined) {
  if (lines.size() == 1) {
    std::string_view line = lines[0];
    while (!line.empty() && line.front() == ' ') line.remove_prefix(1);
    while (!line.empty() && line.back() == ' ') line.remove_suffix(1);
    joined.assign(line);
  } else {
    joined = TrimBlanks(WithoutContinuation(lines[0]));
    for (size_t k = 1; k < lines.size(); ++k) {
      joined += ' ';
      joined += WithoutContinuation(lines[k]);
    }
  }
  const bool comment = !joined.empty() && joined[0] == '\'';
  const std::span<const std::string> continued =
      lines.size() > 1 ? lines : std::span<const std::string>();
  if (IsWholeLine(t, joined) || IsOneStatement(joined)) {
    WriteStatement(t, joined, true, continued);
  } else {
    const std::vector<std::string> statements = SplitStatements(joined);
    for (size_t k = 0; k < statements.size(); ++k)
      WriteStatement(t, statements[k], k == 0,
                     statements.size() == 1 ? continued : std::span<const std::string>());
  }
  // The other lines of a continued statement count as lines of the module.
  const int more = static_cast<int>(lines.size()) - 1;
  if (more > 0) {
    Bump(t.TotalLines, more);
    Bump(t.CodeLines, more);
    if (comment) Bump(t.CommentLines, more);
  }
}

}  // namespace

void TranslateLines(ModuleTranslation& t, const std::vector<std::string>& lines) {
  std::string joined;
  for (size_t i = 0; i < lines.size();) {
    // The designer block is copied line by line; the gate opens behind it.
    if (t.InDesignerBlock()) {
      WriteStatement(t, lines[i], true, {});
      ++i;
      continue;
    }
    size_t last = i;
    while (last + 1 < lines.size() && ContinuesOnNextLine(lines[last])) ++last;
    TranslateLogicalLine(t, std::span<const std::string>(lines).subspan(i, last + 1 - i), joined);
    i = last + 1;
  }
}

}  // namespace morvane

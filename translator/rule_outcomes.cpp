// Rule outcomes: Kept and Marked lines and their analysis rows.
#include "translator/rule_outcomes.h"

#include "session/analysis_writers.h"
#include "session/conversion_session.h"

namespace morvane {

void ReportRule(ModuleTranslation& t, int reason, const std::string& line,
                const std::string& translated) {
  ReportLine(t.Session, t.ModuleName, reason, line, t.CodeLines, translated, t.CurrentRoutine);
}

void Kept(ModuleTranslation& t, std::string& line, const std::string& newText, int reason,
          const std::string& translated, bool count) {
  ReportRule(t, reason, line, translated);
  if (count) Bump(t.LinesPotentiallyConverted);
  // Built in one buffer: the line is long, and the pieces are many.
  std::string kept;
  kept.reserve(newText.size() + 1 + kCommentMark.size() + line.size());
  kept.append(newText).append(1, '\t').append(kCommentMark).append(line);
  line = std::move(kept);
}

void Marked(ModuleTranslation& t, std::string& line, int reason) {
  ReportRule(t, reason, line, std::string());
  Bump(t.LinesNotTranslated);
  line = std::string(kCommentMark) + line;
  t.StatementMarked = true;
}

bool Fires(ModuleTranslation& t, const std::string& line, std::string_view text,
           const WordMatch& m) {
  int passed = 0;
  if (ContainsWord(line, text, m, &passed)) return true;
  t.PassedHits += passed;
  return false;
}

void Replace(ModuleTranslation& t, std::string& line, std::string_view find, std::string_view with,
             const WordMatch& m) {
  line = ReplaceWords(line, find, with, m, &t.PassedHits);
}

}  // namespace morvane

// The three ways a rule can treat a line, shared by every rule family:
// replace it, replace it and keep the old text as a comment behind it with an
// analysis row, or comment it out with an analysis row.
#pragma once

#include <string>

#include "translator/module_translation.h"

namespace morvane {

// Writes the analysis row of a rule for the line as it stands, with the
// current line number and procedure.
void ReportRule(ModuleTranslation& t, int reason, const std::string& line,
                const std::string& translated);

// The new text, a tab, the comment mark and the old line. The row is written
// first; `count` adds the line to LinesPotentiallyConverted.
void Kept(ModuleTranslation& t, std::string& line, const std::string& newText, int reason,
          const std::string& translated, bool count = true);

// The comment mark in front of the line, a row with an empty translated text,
// and LinesNotTranslated + 1.
void Marked(ModuleTranslation& t, std::string& line, int reason);

}  // namespace morvane

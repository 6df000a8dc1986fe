// The three ways a rule can treat a line, shared by every rule family:
// replace it, replace it and keep the old text as a comment behind it with an
// analysis row, or comment it out with an analysis row.
#pragma once

#include <string>
#include <string_view>

#include "translator/module_translation.h"
#include "translator/vb_code.h"

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

// A rule's test: its text stands in the line as a whole word, in code (or in
// a comment when `m` allows). Where only a plain search would find it, the
// rule does not fire and the statement notes the hit passed over.
bool Fires(ModuleTranslation& t, const std::string& line, std::string_view text,
           const WordMatch& m = kInCode);
// A rule's replacement of whole words outside string literals; hits passed
// over are noted on the statement.
void Replace(ModuleTranslation& t, std::string& line, std::string_view find, std::string_view with,
             const WordMatch& m = kInCodeOrComment);

}  // namespace morvane

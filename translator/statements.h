// The translation loop over the lines of one module: the designer block line
// by line, the code statement by statement. A statement continued over
// several lines (" _") is translated as one and written back on its lines;
// a line of several statements (":") is written one statement a line, so a
// rule that comments a statement out takes nothing else with it; a block
// line that a rule comments out keeps its block (block_keeper.h).
#pragma once

#include <string>
#include <vector>

#include "translator/module_translation.h"

namespace morvane {

// Runs the lines through the pipeline and adds the written lines to
// t.Output. Never throws.
void TranslateLines(ModuleTranslation& t, const std::vector<std::string>& lines);

// The pipeline of one statement (module_translator.cpp): returns the text to
// write; lines that rules write ahead of it are already in t.Output.
// `newLine` is false for the second and later statements of one line, which
// the line counters have already counted.
std::string TranslateStatement(ModuleTranslation& t, std::string statement, bool newLine);

}  // namespace morvane

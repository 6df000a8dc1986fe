// The block keeper: a statement that a rule commented out while it opens,
// continues or closes a block (If, ElseIf, Select Case, Case, With, For, Do,
// Loop, While), or declares a procedure or a variable, would leave the block
// unbalanced or the name undeclared. The keeper writes a stand-in that keeps
// the structure and compiles, with the old statement as a comment behind it.
#pragma once

#include <optional>
#include <string>

#include "translator/module_translation.h"

namespace morvane {

// The procedure of the conversion code that a stand-in calls: it raises an
// error that names the module and the line of the analysis.
inline constexpr std::string_view kNotTranslatedCall = "NotTranslated";

// `original`: the statement as read; `marked`: the line the rules wrote (the
// comment mark and the old text). Returns the line to write instead, and
// writes its analysis row; nothing when the comment alone keeps the code
// sound.
std::optional<std::string> KeepBlock(ModuleTranslation& t, const std::string& original,
                                     const std::string& marked);

}  // namespace morvane

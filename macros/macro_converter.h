// Macros into Visual Basic: every macro of the source becomes one Function
// (one per named macro of a group) in MacroCode.bas, its actions rewritten
// through the mapping tables and its conditions and arguments through the
// expression rewriter.
#pragma once

#include <string>
#include <vector>

#include "session/converters.h"

namespace morvane {

struct ConversionSession;

class MacroConverterImpl : public MacroConverter {
 public:
  void ConvertMacros(ConversionSession& s, const std::string& outputPath) override;
};

// Whether a macro ("Macro" or "Group.Name") called from an event needs
// `With CodeContextObject`; `name` receives the macro's procedure name.
bool MacroNeedsContext(ConversionSession& s, std::string& name);

}  // namespace morvane

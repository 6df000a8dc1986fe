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

class DesignStore;

class MacroConverterImpl : public MacroConverter {
 public:
  // `designs`, when given, is the store the form converter reads the same
  // source tree through: the embedded macros are taken from the designs it
  // has already read instead of reading every form and report again.
  explicit MacroConverterImpl(DesignStore* designs = nullptr) : designs_(designs) {}
  TextDocument ConvertMacros(ConversionSession& s) override;

 private:
  DesignStore* designs_;
};

// Whether a macro ("Macro" or "Group.Name") called from an event needs
// `With CodeContextObject`; `name` receives the macro's procedure name.
bool MacroNeedsContext(ConversionSession& s, std::string& name);

}  // namespace morvane

// The per-call translation state and its 16-bit counter arithmetic.
#include "translator/module_translation.h"

#include <utility>

#include "session/converters.h"

namespace morvane {

void Bump(int16_t& counter, int by) {
  int sum = counter + by;
  if (sum >= INT16_MIN && sum <= INT16_MAX) counter = static_cast<int16_t>(sum);
}

ModuleTranslation::ModuleTranslation(ConversionSession& session, int mode, std::string moduleName)
    : Session(session), Mode(mode), ModuleName(std::move(moduleName)) {
  // A form's code refers to its own data control until a form code mark
  // names another one.
  if (Mode == kModeForm) DataSuffix = ModuleName;
}

bool ModuleTranslation::InDesignerBlock() const {
  if (Mode != kModeModule && (EndCount == 0 || BeginCount == 0)) return true;
  return EndCount < BeginCount;
}

}  // namespace morvane

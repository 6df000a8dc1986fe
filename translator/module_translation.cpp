// The per-call translation state and its counter arithmetic.
#include "translator/module_translation.h"

#include <limits>
#include <utility>

#include "session/converters.h"
#include "session/naming.h"

namespace morvane {

void Bump(int& counter, int by) {
  const long long sum = static_cast<long long>(counter) + by;
  if (sum >= std::numeric_limits<int>::min() && sum <= std::numeric_limits<int>::max())
    counter = static_cast<int>(sum);
}

ModuleTranslation::ModuleTranslation(ConversionSession& session, int mode, std::string moduleName)
    : Session(session), Mode(mode), ModuleName(std::move(moduleName)) {
  // A form's code refers to its own data control until a form code mark
  // names another one.
  if (Mode == kModeForm) DataControl = DataControlName(ModuleName);
}

bool ModuleTranslation::InDesignerBlock() const {
  if (Mode != kModeModule && (EndCount == 0 || BeginCount == 0)) return true;
  return EndCount < BeginCount;
}

}  // namespace morvane

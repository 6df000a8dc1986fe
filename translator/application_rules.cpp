// Application rules.
#include "translator/application_rules.h"

#include "session/naming.h"
#include "session/analysis_writers.h"
#include "translator/rule_outcomes.h"
#include "translator/vb_code.h"
#include "translator/vb_text.h"

namespace morvane {

void ApplicationRules(ModuleTranslation& t, std::string& line) {
  if (ContainsWord(line, "Application.hWndAccessApp", kInCode))
    Replace(t, line, "Application.hWndAccessApp", "App.hInstance");
  else if (EqualsNoCase(line, "Application.Quit"))
    line = "End";
  else
    Marked(t, line, kReasonNotHandled);
}

}  // namespace morvane

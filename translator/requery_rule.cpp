// The requery rule.
#include "translator/requery_rule.h"

#include "session/conversion_session.h"
#include "session/naming.h"
#include "session/analysis_writers.h"
#include "translator/rule_outcomes.h"
#include "translator/vb_text.h"

namespace morvane {

namespace {

std::string WithoutBrackets(std::string text) {
  std::erase(text, '[');
  std::erase(text, ']');
  return text;
}

// Where the scan back from ".REQUERY" stops: the end of the control's name.
bool EndsObjectPath(char c) { return c == ']' || c == ' ' || c == '.' || c == '!'; }

}  // namespace

void RequeryRule(ModuleTranslation& t, std::string& line) {
  const int pos = InStrExact(line, ".REQUERY");
  if (pos == 0) return;
  const bool bound = t.Session.Options.ListboxBound;
  const std::string refill = "Call InitializeComboBoxes()";

  int k = pos - 1;
  while (k > 0 && !EndsObjectPath(line[static_cast<size_t>(k - 1)])) --k;
  const std::string head = line.substr(0, static_cast<size_t>(k));
  // The control's name and the "." of ".REQUERY".
  const std::string name = Mid(line, k + 1, pos - k).value_or(std::string());

  if (k > 0 && head.back() == ']') {
    if (!bound) {
      Kept(t, line, refill, kReasonReview, refill);
      return;
    }
    size_t open = head.find('[');
    if (open == std::string::npos) return;
    std::string inner = WithoutBrackets(head.substr(open + 1));
    Kept(t, line, head.substr(0, open) + t.Session.Names.DataControl(inner) + ".Refresh", kReasonReview,
         head + "dat" + name + "Refresh");
    return;
  }
  if (k > 0) {
    if (!bound) {
      Kept(t, line, refill, kReasonReview, refill);
      return;
    }
    std::string text = head + "dat" + name;
    Kept(t, line, WithoutBrackets(text) + "Refresh", kReasonReview, text + "Refresh");
    return;
  }
  // Nothing stands before the name: the form itself, or a bare control name.
  const std::string g = line.substr(0, static_cast<size_t>(pos));
  if (g.size() == 3 && StartsWithNoCase(g, "Me")) {
    t.Write("Me." + t.DataControl + ".Recordset.Requery");
    line = "Me." + t.DataControl + ".Refresh";
  } else if (bound) {
    Kept(t, line, "dat" + WithoutBrackets(g) + "Refresh", kReasonReview, "dat" + g + "Refresh");
  } else {
    Marked(t, line, kReasonNoEquivalent);
  }
}

}  // namespace morvane

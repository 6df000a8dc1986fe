// The mapping tables of macro actions, read once per use from the support
// database: actions by name, their arguments, and the texts of enumerated
// argument values.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace morvane {

class SupportDatabase;

struct MacroAction {
  std::string Action;
  long ActionID = 0;
  std::optional<std::string> MapsTo;  // nullopt: no Visual Basic counterpart
  int NumArgs = 0;
};

struct MacroActionArg {
  bool AutoExpression = false;
  int ArgumentType = 0;  // 4: text
  long LookupBase = 0;   // above 0: an enumeration
};

// Visual Basic's Val: the number a text begins with, as a Double. Blanks,
// tabs and line feeds are passed over wherever they stand; a sign, digits, a
// decimal point and an exponent (E or D) are read up to the first character
// that cannot continue the number; &H and &O start a hexadecimal or octal
// Integer or Long (wrapping into the negative as Visual Basic does). 0 when
// the text begins with no number; a hexadecimal or octal number longer than
// a Long also gives 0, where Visual Basic stops with an overflow.
double Val(std::string_view text);

class MacroTables {
 public:
  // Reads the three tables; empty tables when the database has none.
  explicit MacroTables(SupportDatabase* db);

  // The first action of that name, compared without regard to case.
  const MacroAction* FindAction(const std::string& name) const;
  const MacroActionArg* FindArg(long actionId, int index) const;
  const std::string* FindLookup(long key) const;
  // The same for a key computed in Double: nothing when it is not a whole
  // number that a lookup row can carry.
  const std::string* FindLookup(double key) const;
  const std::vector<MacroAction>& Actions() const { return actions_; }

 private:
  std::vector<MacroAction> actions_;
  std::map<std::pair<long, int>, MacroActionArg> args_;
  std::map<long, std::string> lookups_;
};

}  // namespace morvane

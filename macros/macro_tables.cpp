// Reading the macro mapping tables out of SQLite.
#include "macros/macro_tables.h"

#include "platform/support_db.h"
#include "session/naming.h"

namespace morvane {

MacroTables::MacroTables(SupportDatabase* db) {
  if (!db) return;
  for (auto& r : db->MacroActions())
    actions_.push_back({std::move(r.Action), r.ActionID, std::move(r.MapsTo), r.NumArgs});
  for (const auto& r : db->MacroActionArgs()) {
    MacroActionArg arg;
    arg.ArgumentType = r.ArgumentType;
    arg.LookupBase = r.LookupBase;
    arg.AutoExpression = r.AutoExpression;
    args_[{r.ActionID, r.ArgNumber}] = arg;
  }
  for (auto& r : db->MacroLookups()) lookups_[r.LookupNumber] = std::move(r.Value);
}

const MacroAction* MacroTables::FindAction(const std::string& name) const {
  for (const auto& a : actions_)
    if (EqualsNoCase(a.Action, name)) return &a;
  return nullptr;
}

const MacroActionArg* MacroTables::FindArg(long actionId, int index) const {
  auto it = args_.find({actionId, index});
  return it == args_.end() ? nullptr : &it->second;
}

const std::string* MacroTables::FindLookup(long key) const {
  auto it = lookups_.find(key);
  return it == lookups_.end() ? nullptr : &it->second;
}

}  // namespace morvane

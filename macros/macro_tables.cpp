// Reading the macro mapping tables out of SQLite.
#include "macros/macro_tables.h"

#include <sqlite3.h>

#include "platform/support_db.h"
#include "session/naming.h"

namespace morvane {

namespace {

template <typename Row>
void ForEachRow(sqlite3* db, const char* sql, Row row) {
  sqlite3_stmt* stmt = nullptr;
  if (sqlite3_prepare_v2(db, sql, -1, &stmt, nullptr) != SQLITE_OK) return;
  while (sqlite3_step(stmt) == SQLITE_ROW) row(stmt);
  sqlite3_finalize(stmt);
}

std::optional<std::string> Column(sqlite3_stmt* stmt, int i) {
  if (sqlite3_column_type(stmt, i) == SQLITE_NULL) return std::nullopt;
  auto p = reinterpret_cast<const char*>(sqlite3_column_text(stmt, i));
  return std::string(p, static_cast<size_t>(sqlite3_column_bytes(stmt, i)));
}

}  // namespace

MacroTables::MacroTables(SupportDatabase* db) {
  if (!db || !db->Handle()) return;
  ForEachRow(db->Handle(),
             "SELECT Action, ActionID, MapsTo, NumArgs FROM mtm_tblActions ORDER BY rowid",
             [this](sqlite3_stmt* st) {
               actions_.push_back({Column(st, 0).value_or(""), sqlite3_column_int(st, 1),
                                   Column(st, 2), sqlite3_column_int(st, 3)});
             });
  ForEachRow(db->Handle(),
             "SELECT ActionID, ArgNumber, ArgumentType, LookupBase, AutoExpression "
             "FROM mtm_tblActionArgs",
             [this](sqlite3_stmt* st) {
               MacroActionArg arg;
               arg.ArgumentType = sqlite3_column_int(st, 2);
               arg.LookupBase = sqlite3_column_int(st, 3);
               arg.AutoExpression = sqlite3_column_int(st, 4) != 0;
               args_[{sqlite3_column_int(st, 0), sqlite3_column_int(st, 1)}] = arg;
             });
  ForEachRow(db->Handle(), "SELECT LookupNumber, Value FROM mtm_tblLookups",
             [this](sqlite3_stmt* st) {
               lookups_[sqlite3_column_int(st, 0)] = Column(st, 1).value_or("");
             });
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

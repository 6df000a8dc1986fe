// Reading the macro mapping tables out of SQLite.
#include "macros/macro_tables.h"

#include <sqlite3.h>

#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

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

const std::string* MacroTables::FindLookup(double key) const {
  constexpr double kLimit = 9.0e15;  // whole numbers are exact in a Double up to 2^53
  if (!(key > -kLimit && key < kLimit) || key != std::floor(key)) return nullptr;
  return FindLookup(static_cast<long>(key));
}

double Val(std::string_view text) {
  size_t i = 0;
  auto blanks = [&] {
    while (i < text.size() && (text[i] == ' ' || text[i] == '\t' || text[i] == '\n')) ++i;
  };
  auto digit = [&](int radix) {
    if (i >= text.size()) return -1;
    const char c = static_cast<char>(std::toupper(static_cast<unsigned char>(text[i])));
    const int d = c >= '0' && c <= '9' ? c - '0' : c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
    return d < radix ? d : -1;
  };
  blanks();
  if (i + 1 < text.size() && text[i] == '&') {
    const char kind = static_cast<char>(std::toupper(static_cast<unsigned char>(text[i + 1])));
    const int radix = kind == 'H' ? 16 : kind == 'O' ? 8 : 0;
    if (radix == 0) return 0;
    i += 2;
    uint64_t value = 0;
    for (blanks(); digit(radix) >= 0; ++i, blanks()) {
      value = value * static_cast<uint64_t>(radix) + static_cast<uint64_t>(digit(radix));
      if (value > 0xFFFFFFFFu) return 0;
    }
    // What fits 16 bits is an Integer, the rest a Long.
    if (value <= 0xFFFF) return static_cast<int16_t>(static_cast<uint16_t>(value));
    return static_cast<int32_t>(static_cast<uint32_t>(value));
  }
  std::string number;
  bool negative = false;
  if (i < text.size() && (text[i] == '-' || text[i] == '+')) negative = text[i++] == '-';
  bool any = false;
  for (blanks(); digit(10) >= 0; ++i, blanks()) {
    number += text[i];
    any = true;
  }
  if (i < text.size() && text[i] == '.') {
    number += '.';
    for (++i, blanks(); digit(10) >= 0; ++i, blanks()) {
      number += text[i];
      any = true;
    }
  }
  if (!any) return 0;
  if (i < text.size() && std::strchr("EeDd", text[i])) {
    ++i;
    std::string exponent = "e";
    blanks();
    if (i < text.size() && (text[i] == '-' || text[i] == '+')) exponent += text[i++];
    bool digits = false;
    for (blanks(); digit(10) >= 0; ++i, blanks()) {
      exponent += text[i];
      digits = true;
    }
    if (digits) number += exponent;
  }
  // Read without regard to the locale; beyond a Double's range the value is
  // infinite (or 0), which no lookup row matches.
  double value = 0;
  const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
  if (error == std::errc::result_out_of_range)
    value = number.find("e-") != std::string::npos ? 0.0 : HUGE_VAL;
  return negative ? -value : value;
}

}  // namespace morvane

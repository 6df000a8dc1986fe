// Reading the macro mapping tables out of SQLite.
#include "macros/macro_tables.h"

#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

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

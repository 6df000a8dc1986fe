// ControlDefaults, the recent files and the update description, as text.
#include "shell/settings_values.h"

#include <algorithm>
#include <cctype>
#include <fstream>

namespace morvane {

namespace {

char Flag(bool on) { return on ? '1' : '0'; }

// A list index is one digit; a list without a selection keeps the first.
char Digit(int index) { return static_cast<char>('0' + std::clamp(index, 0, 9)); }

// The character at a 1-based position, or 0 past the end.
char At(const std::string& text, size_t position) {
  return position <= text.size() ? text[position - 1] : '\0';
}

int ListIndex(char c, int count) {
  if (c < '0' || c > '9') return -1;
  const int n = c - '0';
  return n < count ? n : -1;
}

std::string Trim(const std::string& s) {
  size_t b = 0, e = s.size();
  while (b < e && std::isspace(static_cast<unsigned char>(s[b]))) ++b;
  while (e > b && std::isspace(static_cast<unsigned char>(s[e - 1]))) --e;
  return s.substr(b, e - b);
}

bool EqualsNoCase(const std::string& a, const std::string& b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
           return std::tolower(static_cast<unsigned char>(x)) ==
                  std::tolower(static_cast<unsigned char>(y));
         });
}

// Days from 1 March of year 0 of the proleptic Gregorian calendar, shifted
// so that 30 December 1899 is day 0.
long DaysFromCivil(long y, long m, long d) {
  y -= m <= 2;
  const long era = (y >= 0 ? y : y - 399) / 400;
  const long yoe = y - era * 400;
  const long doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
  const long doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
  return era * 146097 + doe - 693899;
}

bool AllDigits(const std::string& s) {
  return !s.empty() && std::all_of(s.begin(), s.end(), [](char c) { return c >= '0' && c <= '9'; });
}

}  // namespace

std::string PackControlDefaults(const WindowOptions& o) {
  std::string t;
  t += Flag(o.SecurityDisabled);
  t += '0';
  t += Digit(o.ListboxIndex);
  t += Flag(o.ListboxBound);
  t += Digit(o.ComboboxIndex);
  t += Flag(o.ComboboxBound);
  t += '0';
  t += Flag(o.SsOptionSet);
  t += Flag(o.Mdi);
  t += Flag(o.StandardControls);
  t += Flag(o.RelativePaths);
  t += Flag(o.CreateProject);
  t += Flag(o.ConvertMacros);
  t += Flag(o.Ado);
  t += Flag(o.DatePicker);
  return t;
}

void UnpackControlDefaults(const std::string& text, int listboxCount, int comboboxCount,
                           WindowOptions* o) {
  o->SecurityDisabled = At(text, 1) == '1';
  o->ListboxIndex = ListIndex(At(text, 3), listboxCount);
  o->ListboxBound = At(text, 4) == '1';
  o->ComboboxIndex = ListIndex(At(text, 5), comboboxCount);
  o->ComboboxBound = At(text, 6) == '1';
  o->SsOptionSet = At(text, 8) == '1';
  o->Mdi = At(text, 9) == '1';
  o->StandardControls = At(text, 10) == '1';
  o->RelativePaths = At(text, 11) == '1';
  o->CreateProject = At(text, 12) == '1';
  o->ConvertMacros = At(text, 13) == '1';
  o->Ado = At(text, 14) == '1';
  o->DatePicker = At(text, 15) != '0';
}

void RotateRecentFiles(RecentFiles* files, const std::string& path) {
  RecentFiles& f = *files;
  if (f[0] == path) return;
  // The entry the path already holds among the first three, or the last.
  size_t from = 3;
  for (size_t i = 1; i < 3; ++i)
    if (f[i] == path) {
      from = i;
      break;
    }
  for (size_t i = from; i > 0; --i) f[i] = f[i - 1];
  f[0] = path;
}

std::string StoredText(const std::string& text) { return text.empty() ? " " : text; }

std::string ReadIniValue(const std::filesystem::path& file, const std::string& section,
                         const std::string& key) {
  std::ifstream in(file, std::ios::binary);
  if (!in) return "";
  std::string line, current;
  while (std::getline(in, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    const std::string t = Trim(line);
    if (t.empty() || t[0] == ';') continue;
    if (t.front() == '[') {
      const size_t end = t.find(']');
      current = end == std::string::npos ? "" : Trim(t.substr(1, end - 1));
      continue;
    }
    const size_t eq = t.find('=');
    if (eq == std::string::npos || !EqualsNoCase(current, section) ||
        !EqualsNoCase(Trim(t.substr(0, eq)), key))
      continue;
    std::string value = Trim(t.substr(eq + 1));
    value = value.substr(0, value.find('\0'));
    return value.substr(0, 1024);
  }
  return "";
}

std::optional<long> DayNumber(const std::string& text) {
  const std::string t = Trim(text);
  // A stored date: the whole days of a number, its time of day dropped.
  const std::string whole = t.substr(0, t.find('.'));
  if (AllDigits(whole) && whole.size() <= 7 &&
      (whole.size() == t.size() || AllDigits(t.substr(whole.size() + 1))))
    return std::stol(whole);

  long y = 0, m = 0, d = 0;
  auto field = [](const std::string& s) -> std::optional<long> {
    if (!AllDigits(s) || s.size() > 4) return std::nullopt;
    return std::stol(s);
  };
  const size_t a = t.find_first_of("-/");
  if (a == std::string::npos) return std::nullopt;
  const size_t b = t.find(t[a], a + 1);
  if (b == std::string::npos) return std::nullopt;
  auto p1 = field(t.substr(0, a)), p2 = field(t.substr(a + 1, b - a - 1)),
       p3 = field(t.substr(b + 1));
  if (!p1 || !p2 || !p3) return std::nullopt;
  if (t[a] == '-') {
    y = *p1, m = *p2, d = *p3;
  } else {
    m = *p1, d = *p2, y = *p3;
  }
  if (y < 100 || m < 1 || m > 12 || d < 1 || d > 31) return std::nullopt;
  return DaysFromCivil(y, m, d);
}

}  // namespace morvane

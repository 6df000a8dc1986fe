// Shared text helpers: identifiers, fields, backward search, expression
// tokens, form references and the integer sort.
#include "translator/text_helpers.h"

#include <random>
#include <utility>

#include "session/conversion_session.h"
#include "session/naming.h"
#include "translator/vb_text.h"

namespace morvane {

bool IsIdentifierChar(unsigned char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
         c > 128;
}

std::string LeadingIdentifier(std::string_view text) {
  size_t n = 0;
  while (n < text.size() && IsIdentifierChar(static_cast<unsigned char>(text[n]))) ++n;
  return std::string(text.substr(0, n));
}

std::string TrailingIdentifier(std::string_view text) {
  if (text.size() < 2 || text.back() == ' ') return std::string();
  size_t end = text.size() - 1;  // one past the identifier's last character
  size_t begin = end;
  while (begin > 0 && IsIdentifierChar(static_cast<unsigned char>(text[begin - 1]))) --begin;
  return std::string(text.substr(begin, end - begin));
}

std::string NthField(std::string_view text, int n, std::string_view delimiter) {
  if (n < 1 || delimiter.empty()) return n == 1 ? std::string(text) : std::string();
  const int step = Len(delimiter);
  const int past_end = Len(text) + 1;
  // The field starts behind the (n-1)th delimiter point; the 0th point lies
  // just before the text.
  int previous = 1 - step;
  int point = previous;
  for (int i = 1; i <= n; ++i) {
    previous = point;
    int from = previous + step;
    int hit = from <= past_end ? InStrExact(text, delimiter, from) : 0;
    point = hit == 0 ? past_end : hit;
  }
  if (point <= previous) return std::string();
  return Mid(text, previous + step, point - previous - step).value_or(std::string());
}

int LastIndexOfText(std::string_view text, std::string_view find, int& start) {
  if (start == 0) start = Len(text);
  for (int i = 0; i < start; ++i) {
    int pos = start - i;
    if (pos <= Len(text) && StartsWithNoCase(text.substr(static_cast<size_t>(pos - 1)), find))
      return i;
  }
  return 0;
}

int LastIndexOfText(std::string_view text, std::string_view find) {
  int start = 0;
  return LastIndexOfText(text, find, start);
}

std::string ExpressionToken(std::string_view text) {
  int depth = 0;
  size_t n = 0;
  for (; n < text.size(); ++n) {
    unsigned char c = static_cast<unsigned char>(text[n]);
    if (IsIdentifierChar(c) || c == '.') continue;
    if (c == '(') {
      ++depth;
      continue;
    }
    if (c == ')') {
      ++n;  // taken, and the scan ends behind it
      break;
    }
    if (c == '"' && depth >= 1) continue;
    break;
  }
  return std::string(text.substr(0, n));
}

namespace {

// The Visual Basic name of a form of the run that `name` names (its Access
// name, or the name it has in code when `compareSafeNames`); empty when no
// selected form has that name.
std::string SelectedForm(const ConversionSession& s, std::string_view name,
                         bool compareSafeNames) {
  for (size_t i = 1; i < s.FormList.size(); ++i) {
    const std::string& entry = s.FormList[i];
    if (!EqualsNoCase(name, compareSafeNames ? SafeName(entry) : entry)) continue;
    // The code keeps its own spelling where it names the form as the run
    // does, case aside.
    const ComponentName* named = s.Names.Find(ComponentRole::Form, entry);
    const std::string written = SafeName(name);
    return named && !EqualsNoCase(named->VbName, written) ? named->VbName : written;
  }
  return std::string();
}

// A name that stands between an opening character and its closing one.
std::string DelimitedFormReference(const ConversionSession& s, std::string_view text, char close) {
  size_t end = text.find(close, 1);
  std::string name(
      text.substr(1, end == std::string_view::npos ? std::string_view::npos : end - 1));
  if (std::string vb = SelectedForm(s, name, false); !vb.empty()) return vb;
  return "GetFormFromName(\"" + name + "\")";
}

}  // namespace

std::string FormReference(const ConversionSession& s, std::string_view text) {
  if (text.empty()) return std::string();
  if (text[0] == '"') return DelimitedFormReference(s, text, '"');
  if (text[0] == '[') return DelimitedFormReference(s, text, ']');
  std::string name = LeadingIdentifier(text);
  if (std::string vb = SelectedForm(s, name, true); !vb.empty()) return vb;
  // A name followed by "!" or "." is an object reference that stays as it is;
  // anything else is a variable holding the form's name.
  char behind = name.size() < text.size() ? text[name.size()] : '\0';
  if (behind == '!' || behind == '.') return name;
  return "GetFormFromName(" + name + ")";
}

void QuickSortInts(std::span<int16_t> values, int first, int last) {
  thread_local std::minstd_rand generator(20011);
  if (values.empty()) return;
  if (first < 0) first = 0;
  if (last >= static_cast<int>(values.size())) last = static_cast<int>(values.size()) - 1;
  while (first < last) {
    if (last - first == 1) {
      if (values[first] > values[last]) std::swap(values[first], values[last]);
      return;
    }
    int pick = std::uniform_int_distribution<int>(first, last)(generator);
    std::swap(values[pick], values[last]);
    const int16_t pivot = values[last];
    int low = first;
    int high = last;
    while (low < high) {
      while (low < high && values[low] <= pivot) ++low;
      while (high > low && values[high] >= pivot) --high;
      if (low < high) std::swap(values[low], values[high]);
    }
    std::swap(values[low], values[last]);
    // The smaller part is sorted by recursion first; the larger one by this
    // loop, which keeps the stack shallow.
    if (low - first < last - low) {
      QuickSortInts(values, first, low - 1);
      first = low + 1;
    } else {
      QuickSortInts(values, low + 1, last);
      last = low - 1;
    }
  }
}

}  // namespace morvane

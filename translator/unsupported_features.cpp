// The unsupported-feature list: the first entry whose text the line holds
// marks the line with its reason; "Attribute " lines stop the list and are
// written at once.
#include "translator/unsupported_features.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

#include "session/naming.h"
#include "translator/rule_outcomes.h"
#include "translator/vb_code.h"

namespace morvane {

namespace {

enum class Match { Exact, Any, AttributeLine, FormReference };

struct Feature {
  std::string_view text;
  std::string_view alternative;  // a second spelling that fires the entry too
  Match match;
  int reason;
};

// Tried in this order; the first that fires ends the list.
constexpr Feature kFeatures[] = {
    {".AllowAdditions", "", Match::Exact, 1},
    {".AllowEdits", "", Match::Exact, 1},
    {".MenuBar", "", Match::Exact, 1},
    {".DataEntry", "", Match::Exact, 1},
    {".AllowDeletions", "", Match::Exact, 1},
    {".RunCommand", "", Match::Any, 1},
    {"CurrentUser()", "", Match::Any, 1},
    {"Attribute ", "", Match::AttributeLine, 0},
    {"LB_INITIALIZE", "acLBInitialize", Match::Any, 8},
    {"LB_OPEN", "acLBOpen", Match::Any, 8},
    {"LB_GETROWCOUNT", "acLBGetRowCount", Match::Any, 8},
    {"LB_GETCOLUMNCOUNT", "acLBGetColumnCount", Match::Any, 8},
    {"LB_GETCOLUMNWIDTH", "acLBGetColumnWidth", Match::Any, 8},
    {"LB_GETVALUE", "acLBGetValue", Match::Any, 8},
    {"LB_END", "acLBEnd", Match::Any, 8},
    {"ACHIDDEN", "", Match::Any, 1},
    {"Reports!", "", Match::Any, 9},
    {".ActiveReport", "", Match::Exact, 9},
    {"DATA_ERRADDED", "", Match::Any, 1},
    {".RecordsetClone", "", Match::Exact, 1},
    {".form", "", Match::FormReference, 1},
    {".DefaultEditing", "", Match::Exact, 1},
    {"DDEExecute", "", Match::Exact, 1},
    {"DDEInitiate", "", Match::Exact, 1},
    {"DDEPoke", "", Match::Exact, 1},
    {"DDERequest", "", Match::Exact, 1},
    {"DDESend", "", Match::Exact, 1},
    {"DDETerminate", "", Match::Exact, 1},
    {".Undo", "", Match::Exact, 1},
    {".Locked", "", Match::Exact, 1},
    {".SourceObject", "", Match::Exact, 1},
    {".RowSource", "", Match::Exact, 1},
    {".Painting", "", Match::Exact, 1},
    {".AllowEditing", "", Match::Exact, 1},
    {".HiddenPageBreak", "", Match::Exact, 1},
    {".AllDataAccessPages", "", Match::Exact, 1},
    {".AllMacros", "", Match::Exact, 1},
    {".AllModules", "", Match::Exact, 1},
    {".AllReports", "", Match::Exact, 1},
    // Assigning an event property has no counterpart either.
    {".OnAction", "", Match::Exact, 12},
    {".OnActivate", "", Match::Exact, 12},
    {".OnAddnNew", "", Match::Exact, 12},
    {".OnApplyFilter", "", Match::Exact, 12},
    {".OnChange", "", Match::Exact, 12},
    {".OnClick", "", Match::Exact, 12},
    {".OnClose", "", Match::Exact, 12},
    {".OnCurrent", "", Match::Exact, 12},
    {".OnDblClick", "", Match::Exact, 12},
    {".OnDeactivate", "", Match::Exact, 12},
    {".OnDelete", "", Match::Exact, 12},
    {".OnEnter", "", Match::Exact, 12},
    {".OnError", "", Match::Exact, 12},
    {".OnExit", "", Match::Exact, 12},
    {".OnFilter", "", Match::Exact, 12},
    {".OnGotFocus", "", Match::Exact, 12},
    {".OnKeyDown", "", Match::Exact, 12},
    {".OnKeyPress", "", Match::Exact, 12},
    {".OnKeyUp", "", Match::Exact, 12},
    {".OnLoad", "", Match::Exact, 12},
    {".OnLostFocus", "", Match::Exact, 12},
    {".OnMouseDown", "", Match::Exact, 12},
    {".OnMouseMove", "", Match::Exact, 12},
    {".OnMouseUp", "", Match::Exact, 12},
    {".OnNotInList", "", Match::Exact, 12},
    {".OnOpen", "", Match::Exact, 12},
    {".OnResize", "", Match::Exact, 12},
    {".OnTimer", "", Match::Exact, 12},
    {".OnUnload", "", Match::Exact, 12},
    {".OnUpdated", "", Match::Exact, 12},
    {".ObjectPalette", "", Match::Exact, 12},
};

constexpr bool FeaturesAreWellFormed() {
  for (size_t i = 0; i < std::size(kFeatures); ++i) {
    if (kFeatures[i].text.empty()) return false;
    for (size_t j = 0; j < i; ++j)
      if (kFeatures[i].text == kFeatures[j].text) return false;
  }
  return true;
}
static_assert(FeaturesAreWellFormed(), "no empty or repeated entry");

// The shortest text or alternative of the list.
constexpr size_t MinNeedle() {
  size_t n = 1000;
  for (const Feature& f : kFeatures) {
    n = std::min(n, f.text.size());
    if (!f.alternative.empty()) n = std::min(n, f.alternative.size());
  }
  return n;
}
constexpr size_t kMinNeedle = MinNeedle();

// The one entry that ends the list at an "Attribute " line.
constexpr size_t AttributeEntry() {
  size_t at = std::size(kFeatures);
  for (size_t i = 0; i < std::size(kFeatures); ++i)
    if (kFeatures[i].match == Match::AttributeLine) {
      if (at != std::size(kFeatures)) return std::size(kFeatures);
      at = i;
    }
  return at;
}
constexpr size_t kAttributeEntry = AttributeEntry();
static_assert(kAttributeEntry < std::size(kFeatures), "one Attribute entry");

// Buckets of three neighbouring lower-case characters, hashed.
constexpr size_t kBuckets = 4096;

size_t TripleKey(char a, char b, char c) {
  return (static_cast<unsigned char>(a) * 961u + static_cast<unsigned char>(b) * 31u +
          static_cast<unsigned char>(c)) &
         (kBuckets - 1);
}

// Each character in lower case, by table.
constexpr auto kFolded = [] {
  std::array<unsigned char, 256> t{};
  for (size_t c = 0; c < 256; ++c)
    t[c] = static_cast<unsigned char>(c >= 'A' && c <= 'Z' ? c + 32 : c);
  return t;
}();

// The entries of the list, one bit each.
struct EntrySet {
  static constexpr size_t kWords = (std::size(kFeatures) + 63) / 64;
  std::array<uint64_t, kWords> words{};
  void set(size_t i) { words[i / 64] |= uint64_t{1} << (i % 64); }
  EntrySet& operator|=(const EntrySet& o) {
    for (size_t w = 0; w < kWords; ++w) words[w] |= o.words[w];
    return *this;
  }
  // The first entry at or after `from` in the set, or kNone.
  static constexpr size_t kNone = static_cast<size_t>(-1);
  size_t Next(size_t from) const {
    for (size_t w = from / 64; w < kWords; ++w) {
      uint64_t bits = words[w];
      if (w == from / 64) bits &= ~uint64_t{0} << (from % 64);
      if (bits != 0) return w * 64 + static_cast<size_t>(std::countr_zero(bits));
    }
    return kNone;
  }
};

// The needles of the list prepared once: the lower-case spelling of those
// matched without regard to case, and for each bucket the entries one of
// whose needles (in lower case) begins with three characters of the bucket.
// A line can hold an entry's text, in either case, only where three of its
// characters fall into a bucket of the entry.
struct Needles {
  std::array<std::string, std::size(kFeatures)> lowText, lowAlternative;
  std::vector<EntrySet> starts = std::vector<EntrySet>(kBuckets);
  // The buckets that begin a needle, one bit each: a small table read for
  // every character, where the large one is read for the few that hit.
  std::array<uint64_t, kBuckets / 64> used{};
  bool Used(size_t key) const { return (used[key / 64] >> (key % 64)) & 1u; }
  Needles() {
    static_assert(kMinNeedle >= 3);
    for (size_t i = 0; i < std::size(kFeatures); ++i) {
      lowText[i] = ToLower(kFeatures[i].text);
      lowAlternative[i] = ToLower(kFeatures[i].alternative);
      for (const std::string* low : {&lowText[i], &lowAlternative[i]})
        if (!low->empty()) {
          const size_t key = TripleKey((*low)[0], (*low)[1], (*low)[2]);
          starts[key].set(i);
          used[key / 64] |= uint64_t{1} << (key % 64);
        }
    }
  }
};

const Needles& PreparedNeedles() {
  static const Needles needles;
  return needles;
}

// `exact` searches the line as written, else its lower-case copy with the
// lower-case needle. A plain search that fails rules the entry out at once,
// which is the case for nearly every line.
bool Holds(const std::string& line, const std::string& lower, std::string_view text,
           std::string_view lowText, bool exact, int* passed) {
  if (text.empty()) return false;
  if (exact ? line.find(text) == std::string::npos : lower.find(lowText) == std::string::npos)
    return false;
  // Only a whole word of the code counts: a word inside a string literal or
  // a comment, or a part of a longer name (".Format" for ".form"), is no use
  // of the feature and must not comment out the statement.
  int here = 0;
  if (ContainsWord(line, text, exact ? kInCodeExact : kInCode, &here)) return true;
  *passed += here;
  return false;
}

// The first entry that fires, or nothing; `attribute` is set when the list
// stops at an "Attribute " line.
char Fold(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c + 32) : c; }

const Feature* FirstFeature(const std::string& line, bool* attribute, int* passed) {
  const Needles& needles = PreparedNeedles();
  // The entries whose text the line may hold; the others cannot fire, nor
  // pass over a hit.
  EntrySet candidates;
  if (line.size() >= 3) {
    // The key of the three that end at i is (a * 31 + b) * 31 + c: the part
    // of the two before c is carried from one character to the next.
    size_t b = kFolded[static_cast<unsigned char>(line[1])];
    size_t pair = kFolded[static_cast<unsigned char>(line[0])] * 31u + b;
    for (size_t i = 2; i < line.size(); ++i) {
      const size_t c = kFolded[static_cast<unsigned char>(line[i])];
      const size_t key = (pair * 31u + c) & (kBuckets - 1);
      if (needles.Used(key)) candidates |= needles.starts[key];
      pair = b * 31u + c;
      b = c;
    }
  }
  // The lower-case copy, made for the first entry that needs it, lives in a
  // buffer that each line reuses.
  thread_local std::string lower;
  bool lowered = false;
  // The "Attribute " entry is tried at its place in the order whether the
  // line holds its text or not.
  candidates.set(kAttributeEntry);
  for (size_t i = candidates.Next(0); i != EntrySet::kNone; i = candidates.Next(i + 1)) {
    const Feature& f = kFeatures[i];
    if (f.match == Match::AttributeLine) {
      if (StartsWithNoCase(line, f.text)) {
        *attribute = true;
        return nullptr;
      }
      continue;
    }
    if (!lowered) {
      lower.assign(line);
      for (char& c : lower) c = Fold(c);
      lowered = true;
    }
    auto holds = [&](std::string_view text, const std::string& low, bool exact) {
      return Holds(line, lower, text, low, exact, passed);
    };
    bool fires = false;
    switch (f.match) {
      case Match::Exact:
        fires = holds(f.text, needles.lowText[i], true) ||
                holds(f.alternative, needles.lowAlternative[i], true);
        break;
      case Match::Any:
        fires = holds(f.text, needles.lowText[i], false) ||
                holds(f.alternative, needles.lowAlternative[i], false);
        break;
      case Match::AttributeLine:
        break;
      case Match::FormReference:
        fires = holds(f.text, needles.lowText[i], false) && !holds("vb.form", "vb.form", false);
        break;
    }
    if (fires) return &f;
  }
  return nullptr;
}

}  // namespace

bool UnsupportedFeatures(ModuleTranslation& t, std::string& line) {
  bool attribute = false;
  int passed = 0;
  const Feature* f = FirstFeature(line, &attribute, &passed);
  if (attribute) {
    t.PassedHits += passed;
    return true;
  }
  if (f) {
    Marked(t, line, f->reason);
    return false;
  }
  t.PassedHits += passed;
  return false;
}

bool UsesUnsupportedFeature(const std::string& text) {
  bool attribute = false;
  int passed = 0;
  return FirstFeature(text, &attribute, &passed) != nullptr ||
         ContainsWord(text, "Application.", kInCode);
}

}  // namespace morvane

// Reading the property table, once, from the text compiled into the program.
#include "design/control_defaults.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <stdexcept>

#include "design/access_control_defaults_data.h"
#include "platform/text_fold.h"

namespace morvane {

namespace {

struct KindName {
  std::string_view Name;
  PropertyKind Kind;
};

constexpr KindName kKinds[] = {
    {"text", PropertyKind::Text},   {"number", PropertyKind::Number}, {"flag", PropertyKind::Flag},
    {"bytes", PropertyKind::Bytes}, {"event", PropertyKind::Event},
};

// Order by case-folded name alone, so a lookup in any case finds the row.
bool LessFolded(const PropertyDefault& a, std::string_view b) {
  size_t n = std::min(a.Name.size(), b.size());
  for (size_t i = 0; i < n; ++i) {
    auto x = static_cast<unsigned char>(text::Fold(a.Name[i]));
    auto y = static_cast<unsigned char>(text::Fold(b[i]));
    if (x != y) return x < y;
  }
  return a.Name.size() < b.size();
}

std::vector<std::string_view> SplitTabs(std::string_view line) {
  std::vector<std::string_view> fields;
  size_t start = 0;
  while (true) {
    size_t tab = line.find('\t', start);
    fields.push_back(line.substr(start, tab == std::string_view::npos ? tab : tab - start));
    if (tab == std::string_view::npos) return fields;
    start = tab + 1;
  }
}

bool IsNumberText(std::string_view v) {
  if (v.empty()) return false;
  std::string s(v);
  char* end = nullptr;
  std::strtod(s.c_str(), &end);
  return end && *end == '\0';
}

}  // namespace

namespace {

constexpr uint64_t kOnes = 0x0101010101010101ull;
constexpr uint64_t kHigh = 0x8080808080808080ull;

uint64_t Load8(const char* p) {
  uint64_t word;
  std::memcpy(&word, p, 8);
  return word;
}

uint32_t Load4(const char* p) {
  uint32_t word;
  std::memcpy(&word, p, 4);
  return word;
}

// text::Fold on each byte of a word: A to Z get their 0x20 bit.
uint64_t FoldWord(uint64_t word) {
  const uint64_t low = word & ~kHigh;
  const uint64_t atLeastA = low + kOnes * (0x80 - 'A');
  const uint64_t aboveZ = low + kOnes * (0x7F - 'Z');
  const uint64_t upper = (atLeastA ^ aboveZ) & ~word & kHigh;
  return word | (upper >> 2);
}

// Calls `fn` with words that together cover every byte of `text`: the whole
// eight-byte words from the start, then the last eight bytes when a tail is
// left (overlapping the word before). A text under eight bytes gives one
// word: its first and last four bytes, or its bytes one by one when shorter.
// Two texts of one length are cut alike, so they are equal when all their
// words are.
template <typename Fn>
void ForEachWord(std::string_view text, Fn fn) {
  const char* p = text.data();
  const size_t n = text.size();
  if (n >= 8) {
    size_t i = 0;
    for (; i + 8 <= n; i += 8) fn(Load8(p + i));
    if (i < n) fn(Load8(p + n - 8));
  } else if (n >= 4) {
    fn(Load4(p) | (static_cast<uint64_t>(Load4(p + n - 4)) << 32));
  } else {
    uint64_t word = 0;
    for (size_t k = 0; k < n; ++k) word |= static_cast<uint64_t>(static_cast<unsigned char>(p[k])) << (8 * k);
    fn(word);
  }
}

// text::IEquals, a word at a time.
bool FoldedEquals(std::string_view a, std::string_view b) {
  const size_t n = a.size();
  if (n != b.size()) return false;
  if (n < 8) return text::IEquals(a, b);
  for (size_t i = 0; i + 8 <= n; i += 8)
    if (FoldWord(Load8(a.data() + i)) != FoldWord(Load8(b.data() + i))) return false;
  return FoldWord(Load8(a.data() + n - 8)) == FoldWord(Load8(b.data() + n - 8));
}

}  // namespace

uint64_t PropertySchema::FoldedHash(std::string_view name) {
  uint64_t h = 14695981039346656037ull ^ name.size();
  ForEachWord(name, [&h](uint64_t word) {
    h = (h ^ FoldWord(word)) * 0x9E3779B97F4A7C15ull;
    h ^= h >> 29;
  });
  return h;
}

bool IsEventPropertyName(std::string_view name) {
  return text::IStartsWith(name, "On") || text::IStartsWith(name, "Before") ||
         text::IStartsWith(name, "After");
}

const PropertyDefault* PropertySchema::Find(std::string_view name) const {
  if (slots_.empty()) return nullptr;
  const uint64_t hash = FoldedHash(name);
  const size_t mask = slots_.size() - 1;
  for (size_t i = hash & mask;; i = (i + 1) & mask) {
    const uint32_t slot = slots_[i];
    if (slot == 0) return nullptr;
    const PropertyDefault& d = properties_[slot - 1];
    if (hashes_[slot - 1] == hash && FoldedEquals(d.Name, name)) return &d;
  }
}

bool ParseControlDefaults(std::string_view text, std::vector<PropertySchema>* out,
                          std::string* err) {
  out->clear();
  int lineNo = 0;
  auto fail = [&](const std::string& message) {
    if (err) *err = "line " + std::to_string(lineNo) + ": " + message;
    return false;
  };
  size_t pos = 0;
  while (pos <= text.size()) {
    size_t nl = text.find('\n', pos);
    std::string_view line = text.substr(pos, nl == std::string_view::npos ? nl : nl - pos);
    pos = nl == std::string_view::npos ? text.size() + 1 : nl + 1;
    ++lineNo;
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    if (text::Trim(line).empty() || line[0] == '#') continue;
    auto f = SplitTabs(line);
    if (f.size() != 4)
      return fail("expected 4 tab-separated fields, found " + std::to_string(f.size()));
    if (f[0].empty() || f[1].empty()) return fail("empty type or property name");
    PropertyDefault d;
    d.Name = std::string(f[1]);
    const KindName* kind = nullptr;
    for (const auto& k : kKinds)
      if (k.Name == f[2]) kind = &k;
    if (!kind) return fail("unknown kind \"" + std::string(f[2]) + "\"");
    d.Kind = kind->Kind;
    d.Value = std::string(f[3]);
    if (d.Kind == PropertyKind::Flag && d.Value != "True" && d.Value != "False")
      return fail("flag " + d.Name + " must default to True or False");
    if (d.Kind == PropertyKind::Number && !IsNumberText(d.Value))
      return fail("number " + d.Name + " has no numeric default");
    if (d.Kind == PropertyKind::Text && d.Value == "(null)") {
      d.IsNull = true;
      d.Value.clear();
    }
    if (out->empty() || out->back().type_ != f[0]) {
      for (const auto& s : *out)
        if (s.type_ == f[0]) return fail("rows of type " + s.type_ + " are not together");
      out->emplace_back();
      out->back().type_ = std::string(f[0]);
    }
    auto& props = out->back().properties_;
    auto it = std::lower_bound(props.begin(), props.end(), d.Name, LessFolded);
    if (it != props.end() && text::IEquals(it->Name, d.Name))
      return fail(out->back().type_ + " lists " + d.Name + " twice");
    props.insert(it, std::move(d));
  }
  for (auto& schema : *out) {
    size_t size = 2;
    while (size < 2 * schema.properties_.size()) size *= 2;
    schema.slots_.assign(size, 0);
    schema.hashes_.clear();
    schema.eventsDefaultEmpty_ = true;
    for (size_t i = 0; i < schema.properties_.size(); ++i) {
      const PropertyDefault& d = schema.properties_[i];
      const bool emptyText =
          (d.Kind == PropertyKind::Text || d.Kind == PropertyKind::Event) && d.Value.empty();
      if (IsEventPropertyName(d.Name) && !emptyText) schema.eventsDefaultEmpty_ = false;
      const uint64_t hash = PropertySchema::FoldedHash(schema.properties_[i].Name);
      schema.hashes_.push_back(hash);
      size_t slot = hash & (size - 1);
      while (schema.slots_[slot] != 0) slot = (slot + 1) & (size - 1);
      schema.slots_[slot] = static_cast<uint32_t>(i + 1);
    }
  }
  return true;
}

const std::vector<PropertySchema>& AllSchemas() {
  static const std::vector<PropertySchema> schemas = [] {
    std::vector<PropertySchema> parsed;
    std::string err;
    std::string_view text(reinterpret_cast<const char*>(kAccessControlDefaultsTsv),
                          sizeof(kAccessControlDefaultsTsv));
    // The table is part of the program; a broken one is a build defect, and
    // the tests read it on their first run.
    if (!ParseControlDefaults(text, &parsed, &err))
      throw std::logic_error("access_control_defaults.tsv: " + err);
    return parsed;
  }();
  return schemas;
}

const PropertySchema* SchemaFor(std::string_view type) {
  for (const auto& s : AllSchemas())
    if (text::IEquals(s.Type(), type)) return &s;
  return nullptr;
}

}  // namespace morvane

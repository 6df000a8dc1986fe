// Database properties and references from the metadata files of an export
// tree, with a small JSON reader of its own (objects, arrays, strings,
// numbers, true/false/null), so the platform layer needs no JSON library.
#include "platform/source_metadata.h"

#include <cstdlib>
#include <memory>
#include <tuple>

#include "platform/encoding.h"
#include "platform/text_file.h"
#include "platform/text_fold.h"

namespace morvane {

using text::IEquals;
using text::Lower;
using text::Trim;

namespace {

struct JsonMember;

struct JsonValue {
  enum Kind { Null, Bool, Number, String, Array, Object } Type = Null;
  std::string Text;  // string, number or boolean as text ("True"/"False")
  // A vector may hold a type that is still incomplete where the vector is
  // declared; a pair may not, so members are a struct of their own.
  std::vector<JsonMember> Members;
  std::vector<JsonValue> Items;

  const JsonValue* Member(std::string_view name) const;
};

struct JsonMember {
  std::string Key;
  JsonValue Value;
};

const JsonValue* JsonValue::Member(std::string_view name) const {
  for (const auto& [k, v] : Members)
    if (IEquals(k, name)) return &v;
  return nullptr;
}

class JsonReader {
 public:
  explicit JsonReader(std::string_view text) : text_(text) {}

  bool Read(JsonValue* out, std::string* err) {
    if (!Value(out, 0)) {
      if (err) *err = "invalid JSON at offset " + std::to_string(pos_);
      return false;
    }
    return true;
  }

 private:
  static constexpr int kMaxDepth = 64;

  void Blanks() {
    while (pos_ < text_.size() && (text_[pos_] == ' ' || text_[pos_] == '\t' ||
                                   text_[pos_] == '\r' || text_[pos_] == '\n'))
      ++pos_;
  }
  bool Eat(char c) {
    Blanks();
    if (pos_ < text_.size() && text_[pos_] == c) {
      ++pos_;
      return true;
    }
    return false;
  }

  bool StringValue(std::string* out) {
    if (!Eat('"')) return false;
    while (pos_ < text_.size()) {
      char c = text_[pos_++];
      if (c == '"') return true;
      if (c != '\\') {
        *out += c;
        continue;
      }
      if (pos_ >= text_.size()) return false;
      char e = text_[pos_++];
      switch (e) {
        case 'n':
          *out += '\n';
          break;
        case 'r':
          *out += '\r';
          break;
        case 't':
          *out += '\t';
          break;
        case 'b':
          *out += '\b';
          break;
        case 'f':
          *out += '\f';
          break;
        case 'u': {
          if (pos_ + 4 > text_.size()) return false;
          char32_t cp = static_cast<char32_t>(
              std::strtoul(std::string(text_.substr(pos_, 4)).c_str(), nullptr, 16));
          pos_ += 4;
          unsigned char b = Windows1252FromCodePoint(cp);
          *out += static_cast<char>(b ? b : '?');
          break;
        }
        default:
          *out += e;
      }
    }
    return false;
  }

  bool Value(JsonValue* out, int depth) {
    if (depth > kMaxDepth) return false;
    Blanks();
    if (pos_ >= text_.size()) return false;
    char c = text_[pos_];
    if (c == '{') {
      ++pos_;
      out->Type = JsonValue::Object;
      if (Eat('}')) return true;
      do {
        std::string key;
        JsonValue v;
        if (!StringValue(&key) || !Eat(':') || !Value(&v, depth + 1)) return false;
        out->Members.push_back({std::move(key), std::move(v)});
      } while (Eat(','));
      return Eat('}');
    }
    if (c == '[') {
      ++pos_;
      out->Type = JsonValue::Array;
      if (Eat(']')) return true;
      do {
        JsonValue v;
        if (!Value(&v, depth + 1)) return false;
        out->Items.push_back(std::move(v));
      } while (Eat(','));
      return Eat(']');
    }
    if (c == '"') {
      out->Type = JsonValue::String;
      return StringValue(&out->Text);
    }
    for (auto [word, type, text] :
         {std::tuple{"true", JsonValue::Bool, "True"},
          std::tuple{"false", JsonValue::Bool, "False"}, std::tuple{"null", JsonValue::Null, ""}}) {
      std::string_view w(word);
      if (text_.substr(pos_, w.size()) == w) {
        pos_ += w.size();
        out->Type = type;
        out->Text = text;
        return true;
      }
    }
    size_t start = pos_;
    while (pos_ < text_.size() &&
           std::string_view("+-.0123456789eE").find(text_[pos_]) != std::string_view::npos)
      ++pos_;
    if (pos_ == start) return false;
    out->Type = JsonValue::Number;
    out->Text = std::string(text_.substr(start, pos_ - start));
    return true;
  }

  std::string_view text_;
  size_t pos_ = 0;
};

bool IsScalar(const JsonValue& v) {
  return v.Type == JsonValue::String || v.Type == JsonValue::Number || v.Type == JsonValue::Bool;
}

// "4.2" -> 4, 2; "4" -> 4, 0.
void ParseVersion(std::string_view text, int* major, int* minor) {
  std::string s(Trim(text));
  *major = std::atoi(s.c_str());
  size_t dot = s.find('.');
  *minor = dot == std::string::npos ? 0 : std::atoi(s.c_str() + dot + 1);
}

void CollectReferences(const JsonValue& v, const std::string& key,
                       std::vector<ReferenceInfo>* out) {
  if (v.Type == JsonValue::Object) {
    const JsonValue* guid = v.Member("GUID");
    if (guid && guid->Type == JsonValue::String) {
      ReferenceInfo r;
      r.Guid = guid->Text;
      const JsonValue* name = v.Member("Name");
      r.Name = name && IsScalar(*name) ? name->Text : key;
      const JsonValue* major = v.Member("Major");
      const JsonValue* minor = v.Member("Minor");
      const JsonValue* version = v.Member("Version");
      if (major && IsScalar(*major)) {
        r.Major = std::atoi(major->Text.c_str());
        r.Minor = minor && IsScalar(*minor) ? std::atoi(minor->Text.c_str()) : 0;
      } else if (version && IsScalar(*version)) {
        ParseVersion(version->Text, &r.Major, &r.Minor);
      }
      out->push_back(r);
      return;
    }
    for (const auto& [k, m] : v.Members) CollectReferences(m, k, out);
  } else if (v.Type == JsonValue::Array) {
    for (const auto& item : v.Items) CollectReferences(item, key, out);
  }
}

std::string Unquoted(std::string_view text) {
  std::string_view t = Trim(text);
  if (t.size() >= 2 && t.front() == '"' && t.back() == '"') t = t.substr(1, t.size() - 2);
  return std::string(t);
}

}  // namespace

MetadataKind MetadataKindOf(const std::filesystem::path& file) {
  std::string name = Lower(file.filename().string());
  std::string ext = Lower(file.extension().string());
  if (ext != ".json" && ext != ".txt" && ext != ".ini") return MetadataKind::None;
  if (name.find("propert") != std::string::npos) return MetadataKind::Properties;
  if (name.find("reference") != std::string::npos) return MetadataKind::References;
  return MetadataKind::None;
}

bool ParseProperties(std::string_view text, bool json, std::map<std::string, std::string>* out,
                     std::string* err) {
  if (json) {
    JsonValue root;
    if (!JsonReader(text).Read(&root, err)) return false;
    const JsonValue* items = root.Member("Items");
    const JsonValue& props = items && items->Type == JsonValue::Object ? *items : root;
    for (const auto& [k, v] : props.Members) {
      if (IsScalar(v)) (*out)[k] = v.Text;
      const JsonValue* value = v.Member("Value");
      if (v.Type == JsonValue::Object && value && IsScalar(*value)) (*out)[k] = value->Text;
    }
    return true;
  }
  for (const auto& line : SplitLines(text)) {
    std::string_view t = Trim(line);
    if (t.empty() || t[0] == '#' || t[0] == ';' || t[0] == '[' || t[0] == '\'') continue;
    size_t sep = t.find_first_of("=:");
    if (sep == std::string_view::npos) continue;
    std::string key(Trim(t.substr(0, sep)));
    if (!key.empty()) (*out)[key] = Unquoted(t.substr(sep + 1));
  }
  return true;
}

bool ParseReferences(std::string_view text, bool json, std::vector<ReferenceInfo>* out,
                     std::string* err) {
  if (json) {
    JsonValue root;
    if (!JsonReader(text).Read(&root, err)) return false;
    CollectReferences(root, "", out);
    return true;
  }
  for (const auto& line : SplitLines(text)) {
    size_t open = line.find('{');
    size_t close = line.find('}', open == std::string::npos ? 0 : open);
    if (open == std::string::npos || close == std::string::npos) continue;
    ReferenceInfo r;
    r.Guid = line.substr(open, close - open + 1);
    std::string before(Trim(line.substr(0, open)));
    while (!before.empty() && (before.back() == ',' || before.back() == ';' ||
                               before.back() == '=' || before.back() == ' '))
      before.pop_back();
    r.Name = Unquoted(before);
    std::string rest = line.substr(close + 1);
    for (char& c : rest)
      if (c == ',' || c == ';' || c == '\t') c = ' ';
    std::string_view t = Trim(rest);
    if (t.find(' ') == std::string_view::npos) {
      ParseVersion(t, &r.Major, &r.Minor);
    } else {
      r.Major = std::atoi(std::string(t).c_str());
      r.Minor = std::atoi(std::string(Trim(t.substr(t.find(' ')))).c_str());
    }
    out->push_back(r);
  }
  return true;
}

}  // namespace morvane

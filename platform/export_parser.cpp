// The SaveAsText design parser. One pass over the lines with an explicit
// stack of open blocks, so nesting costs no recursion and is bounded.
#include "platform/export_parser.h"

#include <cstdint>
#include <cstring>
#include <span>
#include <string>

#include "platform/text_fold.h"

namespace morvane {

namespace {

using text::IEquals;

// Blanks and tabs off both ends, as text::Trim. Export lines are indented by
// up to dozens of blanks, so leading blanks are skipped eight at a time.
std::string_view Trim(std::string_view text) {
  constexpr uint64_t kBlanks = 0x2020202020202020ull;
  const size_t n = text.size();
  size_t b = 0;
  for (uint64_t word; b + 8 <= n; b += 8) {
    std::memcpy(&word, text.data() + b, 8);
    if (word != kBlanks) break;
  }
  while (b < n && (text[b] == ' ' || text[b] == '\t')) ++b;
  size_t e = n;
  while (e > b && (text[e - 1] == ' ' || text[e - 1] == '\t')) --e;
  return text.substr(b, e - b);
}

struct Cursor {
  std::span<const std::string_view> lines;
  std::string_view file;
  std::string* err;

  bool Fail(size_t index, const std::string& message) const {
    if (err) *err = std::string(file) + ":" + std::to_string(index + 1) + ": " + message;
    return false;
  }
};

bool IsBeginOfBlock(std::string_view t) {
  if (IEquals(t, "Begin")) return true;
  if (t.size() > 6 && text::IStartsWith(t, "Begin") && (t[5] == ' ' || t[5] == '\t'))
    return t.find('=') == std::string_view::npos;
  return false;
}

// A property line whose value opens a block of its own ("Key = Begin",
// "Key = {...} Begin").
bool IsValueBlock(std::string_view t) {
  size_t eq = t.find('=');
  if (eq == std::string_view::npos) return false;
  std::string_view v = Trim(t.substr(eq + 1));
  if (v.empty() || v[0] == '"') return false;
  return IEquals(v, "Begin") || text::IEndsWith(v, " Begin");
}

bool IsNumber(std::string_view v) {
  size_t i = 0;
  if (i < v.size() && (v[i] == '-' || v[i] == '+')) ++i;
  size_t digits = 0;
  while (i < v.size() && v[i] >= '0' && v[i] <= '9') ++i, ++digits;
  if (i < v.size() && v[i] == '.') {
    ++i;
    while (i < v.size() && v[i] >= '0' && v[i] <= '9') ++i, ++digits;
  }
  if (digits == 0) return false;
  if (i < v.size() && (v[i] == 'e' || v[i] == 'E')) {
    ++i;
    if (i < v.size() && (v[i] == '-' || v[i] == '+')) ++i;
    size_t exp = 0;
    while (i < v.size() && v[i] >= '0' && v[i] <= '9') ++i, ++exp;
    if (exp == 0) return false;
  }
  return i == v.size();
}

// A key is a name: it starts with a letter or "_" and holds no control
// characters. Anything else on a property line means the text is no export.
bool IsKey(std::string_view key) {
  if (key.empty()) return false;
  unsigned char first = static_cast<unsigned char>(key[0]);
  if (!((first >= 'A' && first <= 'Z') || (first >= 'a' && first <= 'z') || first == '_'))
    return false;
  for (char c : key)
    if (static_cast<unsigned char>(c) < 32 || c == 127) return false;
  return true;
}

int HexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

// One line of a binary value: "0x<hex> ," pieces. False on anything else.
bool DecodeHexLine(std::string_view t, std::string* bytes) {
  size_t i = 0;
  bool any = false;
  while (i < t.size()) {
    char c = t[i];
    if (c == ' ' || c == '\t' || c == ',') {
      ++i;
      continue;
    }
    if (c != '0' || i + 1 >= t.size() || (t[i + 1] != 'x' && t[i + 1] != 'X')) return false;
    i += 2;
    size_t start = i;
    while (i < t.size() && HexDigit(t[i]) >= 0) ++i;
    if ((i - start) % 2 != 0) return false;
    for (size_t k = start; k < i; k += 2)
      bytes->push_back(static_cast<char>(HexDigit(t[k]) * 16 + HexDigit(t[k + 1])));
    any = true;
  }
  return any;
}

// Decodes a quoted piece without backslash escapes: only "" stands for a
// quote. Used when a piece does not close under Access's own escaping, as
// with text from tools that double quotes and leave backslashes alone.
bool DecodeDoubledPiece(std::string_view text, std::string* out, size_t* end) {
  std::string value;
  for (size_t k = 1; k < text.size(); ++k) {
    if (text[k] == '"') {
      if (k + 1 < text.size() && text[k + 1] == '"') {
        value += '"';
        ++k;
        continue;
      }
      *out += value;
      *end = k + 1;
      return true;
    }
    value += text[k];
  }
  return false;
}

void AddProperty(std::vector<ExportProperty>* props, ExportProperty p) {
  for (auto& q : *props) {
    if (IEquals(q.Key, p.Key)) {
      q.Kind = p.Kind;
      q.Value = std::move(p.Value);
      q.Line = p.Line;
      return;
    }
  }
  props->push_back(std::move(p));
}

class Parser {
 public:
  Parser(std::span<const std::string_view> lines, std::string_view file, std::string* err)
      : c_{lines, file, err} {}

  bool Run(ExportDocument* doc) {
    const auto& lines = c_.lines;
    std::vector<ExportBlock*> stack;
    for (size_t i = 0; i < lines.size(); ++i) {
      if (lines[i].size() > kMaxExportLineLength) return LongLine(i);
      std::string_view t = Trim(lines[i]);
      if (t.empty()) continue;
      if (stack.empty() && IEquals(t, "CodeBehindForm")) return TakeCode(i, doc);
      if (IsBeginOfBlock(t)) {
        if (static_cast<int>(stack.size()) >= kMaxExportDepth)
          return c_.Fail(
              i, "blocks are nested deeper than " + std::to_string(kMaxExportDepth) + " levels");
        std::vector<ExportBlock>& siblings = stack.empty() ? doc->Blocks : stack.back()->Children;
        siblings.emplace_back();
        ExportBlock* block = &siblings.back();
        block->Type = std::string(Trim(t.substr(5)));
        block->Line = static_cast<int>(i + 1);
        stack.push_back(block);
        continue;
      }
      if (IEquals(t, "End")) {
        if (stack.empty()) return c_.Fail(i, "\"End\" without a matching \"Begin\"");
        stack.pop_back();
        continue;
      }
      ExportProperty prop;
      bool skipped = false;
      if (!PropertyAt(&i, t, &prop, &skipped)) return false;
      if (skipped) {
        doc->Skipped.push_back(std::move(prop));
        continue;
      }
      AddProperty(stack.empty() ? &doc->Header : &stack.back()->Properties, std::move(prop));
    }
    if (!stack.empty()) {
      const ExportBlock* open = stack.back();
      std::string what = open->Type.empty() ? "\"Begin\"" : "\"Begin " + open->Type + "\"";
      return c_.Fail(lines.empty() ? 0 : lines.size() - 1,
                     "the file ends inside " + what + " opened at line " +
                         std::to_string(open->Line) + " (" + std::to_string(stack.size()) +
                         " block(s) not closed by \"End\")");
    }
    return true;
  }

 private:
  bool LongLine(size_t i) const {
    return c_.Fail(i, "line is " + std::to_string(c_.lines[i].size()) +
                          " characters long; an export line has at most " +
                          std::to_string(kMaxExportLineLength));
  }

  bool TakeCode(size_t i, ExportDocument* doc) const {
    doc->HasCode = true;
    doc->CodeLine = static_cast<int>(i + 1);
    doc->Code.reserve(doc->Code.size() + (c_.lines.size() - i - 1));
    for (size_t k = i + 1; k < c_.lines.size(); ++k) {
      if (c_.lines[k].size() > kMaxExportLineLength) return LongLine(k);
      doc->Code.emplace_back(c_.lines[k]);
    }
    return true;
  }

  // Reads the property that starts on line *i (`t`, trimmed), with any
  // continuation or value-block lines; *i ends on the last line used.
  bool PropertyAt(size_t* i, std::string_view t, ExportProperty* prop, bool* skipped) const {
    size_t eq = t.find('=');
    std::string_view key = eq == std::string_view::npos ? t : Trim(t.substr(0, eq));
    if (eq == std::string_view::npos || !IsKey(key)) {
      std::string shown(t.substr(0, 40));
      for (char& ch : shown)
        if (static_cast<unsigned char>(ch) < 32) ch = '?';
      return c_.Fail(*i, "expected \"Key =value\", \"Begin\" or \"End\", found \"" + shown +
                             (t.size() > 40 ? "...\"" : "\""));
    }
    prop->Key = std::string(key);
    prop->Line = static_cast<int>(*i + 1);
    std::string_view v = Trim(t.substr(eq + 1));
    if (IsValueBlock(t)) {
      if (IEquals(v, "Begin")) return ValueBlock(i, prop);
      *skipped = true;
      return SkipBlock(i, prop);
    }
    if (IEquals(v, "NotDefault")) {
      prop->Kind = ExportValueKind::NotDefault;
      return true;
    }
    if (!v.empty() && v[0] == '"') return QuotedValue(i, v, prop);
    prop->Kind = IsNumber(v) ? ExportValueKind::Number : ExportValueKind::Word;
    prop->Value = std::string(v);
    return true;
  }

  bool QuotedPiece(size_t line, std::string_view piece, std::string* out) const {
    size_t end = 0;
    if (DecodeQuotedPiece(piece, out, &end) || DecodeDoubledPiece(piece, out, &end)) return true;
    return c_.Fail(line, "a quoted value is not closed on its line");
  }

  bool QuotedValue(size_t* i, std::string_view v, ExportProperty* prop) const {
    prop->Kind = ExportValueKind::Text;
    if (!QuotedPiece(*i, v, &prop->Value)) return false;
    while (*i + 1 < c_.lines.size()) {
      const std::string_view next = c_.lines[*i + 1];
      if (next.size() > kMaxExportLineLength) return LongLine(*i + 1);
      std::string_view n = Trim(next);
      if (n.empty() || n[0] != '"') break;
      ++*i;
      if (!QuotedPiece(*i, n, &prop->Value)) return false;
    }
    return true;
  }

  // "Key = Begin": hex lines make a binary value; anything else is a
  // structured value (an embedded macro) kept as its lines.
  bool ValueBlock(size_t* i, ExportProperty* prop) const {
    size_t start = *i;
    size_t first = start + 1;
    while (first < c_.lines.size() && Trim(c_.lines[first]).empty()) ++first;
    if (first >= c_.lines.size()) return EndsInside(start, prop->Key);
    std::string_view f = Trim(c_.lines[first]);
    bool hex = IEquals(f, "End") || text::IStartsWith(f, "0x");
    prop->Kind = hex ? ExportValueKind::Binary : ExportValueKind::Block;
    int depth = 1;
    for (size_t k = start + 1; k < c_.lines.size(); ++k) {
      if (c_.lines[k].size() > kMaxExportLineLength) return LongLine(k);
      std::string_view t = Trim(c_.lines[k]);
      if (t.empty()) continue;
      if (IEquals(t, "End") && --depth == 0) {
        *i = k;
        return true;
      }
      if (hex) {
        if (!DecodeHexLine(t, &prop->Value))
          return c_.Fail(k,
                         "the binary value of " + prop->Key + " holds a line that is no hex data");
        continue;
      }
      if (IsBeginOfBlock(t) || IsValueBlock(t)) {
        if (++depth > kMaxExportDepth)
          return c_.Fail(
              k, "blocks are nested deeper than " + std::to_string(kMaxExportDepth) + " levels");
      }
      if (!prop->Value.empty()) prop->Value += "\r\n";
      prop->Value += t;
    }
    return EndsInside(start, prop->Key);
  }

  bool SkipBlock(size_t* i, ExportProperty* prop) const {
    prop->Kind = ExportValueKind::Block;
    size_t start = *i;
    int depth = 1;
    for (size_t k = start + 1; k < c_.lines.size(); ++k) {
      if (c_.lines[k].size() > kMaxExportLineLength) return LongLine(k);
      std::string_view t = Trim(c_.lines[k]);
      if (IEquals(t, "End") && --depth == 0) {
        *i = k;
        return true;
      }
      if ((IsBeginOfBlock(t) || IsValueBlock(t)) && ++depth > kMaxExportDepth)
        return c_.Fail(
            k, "blocks are nested deeper than " + std::to_string(kMaxExportDepth) + " levels");
    }
    return EndsInside(start, prop->Key);
  }

  bool EndsInside(size_t start, const std::string& key) const {
    return c_.Fail(c_.lines.size() - 1, "the file ends inside the value of " + key +
                                            " begun at line " + std::to_string(start + 1));
  }

  Cursor c_;
};

}  // namespace

const ExportProperty* ExportBlock::Find(std::string_view key) const {
  for (const auto& p : Properties)
    if (IEquals(p.Key, key)) return &p;
  return nullptr;
}

bool DecodeQuotedPiece(std::string_view text, std::string* out, size_t* end) {
  if (text.empty() || text[0] != '"') return false;
  std::string value;
  for (size_t k = 1; k < text.size(); ++k) {
    char c = text[k];
    if (c == '"') {
      if (k + 1 < text.size() && text[k + 1] == '"') {
        value += '"';
        ++k;
        continue;
      }
      if (out->empty())
        *out = std::move(value);
      else
        *out += value;
      *end = k + 1;
      return true;
    }
    if (c == '\\' && k + 1 < text.size()) {
      char n = text[k + 1];
      if (n == '"' || n == '\\') {
        value += n;
        ++k;
        continue;
      }
      if (k + 3 < text.size() && n >= '0' && n <= '3' && text[k + 2] >= '0' && text[k + 2] <= '7' &&
          text[k + 3] >= '0' && text[k + 3] <= '7') {
        value += static_cast<char>((n - '0') * 64 + (text[k + 2] - '0') * 8 + (text[k + 3] - '0'));
        k += 3;
        continue;
      }
    }
    value += c;
  }
  return false;
}

bool ParseExport(std::span<const std::string_view> lines, std::string_view file,
                 ExportDocument* out, std::string* err) {
  *out = ExportDocument();
  return Parser(lines, file, err).Run(out);
}

bool ParseExport(const std::vector<std::string>& lines, std::string_view file, ExportDocument* out,
                 std::string* err) {
  const std::vector<std::string_view> views(lines.begin(), lines.end());
  return ParseExport(views, file, out, err);
}

}  // namespace morvane

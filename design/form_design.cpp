// Reading properties of the design records: the stored value (text, then
// the form's default-control block, then Access's default for the type), the
// conversions between text, numbers and booleans, and the values that Access
// derives (ControlType, Section, BorderStyle, MinButton, EventProcPrefix).
#include "design/form_design.h"

#include <cmath>
#include <cstdlib>

#include "design/control_types.h"
#include "platform/text_fold.h"

namespace morvane {

namespace {

using text::IEquals;


bool IsIdentifierChar(char c) {
  unsigned char u = static_cast<unsigned char>(c);
  return (u >= 'A' && u <= 'Z') || (u >= 'a' && u <= 'z') || (u >= '0' && u <= '9') || u == '_' ||
         u >= 128;
}

constexpr std::string_view kEmbeddedMacroMark = "[Embedded Macro]";

// The block's embedded macro property of an event: the first key that reads
// `event` followed by "EmMacro", without regard to case.
const ExportProperty* FindEmbeddedMacro(const ExportBlock& block, std::string_view event) {
  const size_t size = event.size() + kEmbeddedMacroSuffix.size();
  for (const ExportProperty& p : block.Properties) {
    std::string_view key = p.Key;
    if (key.size() == size && IEquals(key.substr(0, event.size()), event) &&
        IEquals(key.substr(event.size()), kEmbeddedMacroSuffix))
      return &p;
  }
  return nullptr;
}

}  // namespace

std::optional<double> DesignNumber(std::string_view v) {
  v = text::Trim(v);
  if (v.empty()) return std::nullopt;
  // Plain digits, the usual case, with a minus sign or not: a whole number
  // of up to 15 digits is exact as a double, so it is what strtod reads
  // (minus zero included).
  if (v.size() <= 16) {
    std::string_view digits = v;
    const bool negative = digits[0] == '-';
    if (negative) digits.remove_prefix(1);
    if (!digits.empty() && digits.size() <= 15) {
      long long n = 0;
      bool plain = true;
      for (char c : digits) {
        if (c < '0' || c > '9') {
          plain = false;
          break;
        }
        n = n * 10 + (c - '0');
      }
      if (plain) return negative ? -static_cast<double>(n) : static_cast<double>(n);
    }
  }
  // strtod needs a terminated copy; short numbers, the usual case, take one
  // on the stack.
  char small[64];
  std::string large;
  const char* start = small;
  if (v.size() < sizeof small) {
    v.copy(small, v.size());
    small[v.size()] = '\0';
  } else {
    large.assign(v);
    start = large.c_str();
  }
  char* end = nullptr;
  double d = std::strtod(start, &end);
  if (!end || *end != '\0' || !std::isfinite(d)) return std::nullopt;
  return d;
}

// --- DesignObject -----------------------------------------------------------

int DesignObject::Line() const { return block_ ? block_->Line : 0; }

bool DesignObject::HoldsEmbeddedMacros(const ExportBlock* block) {
  if (!block) return false;
  for (const ExportProperty& p : block->Properties)
    if (p.Kind == ExportValueKind::Block && text::IEndsWith(p.Key, kEmbeddedMacroSuffix))
      return true;
  return false;
}

bool DesignObject::MayReadEvents() const {
  if (hasMacros_) return true;
  auto writesEvent = [](const ExportBlock* block) {
    if (!block) return false;
    for (const ExportProperty& p : block->Properties)
      if (IsEventPropertyName(p.Key)) return true;
    return false;
  };
  return writesEvent(block_) || writesEvent(defaults_) ||
         (schema_ && !schema_->EventsDefaultEmpty());
}

bool DesignObject::IsWritten(std::string_view name) const {
  return block_ && block_->Find(name) != nullptr;
}

std::optional<DesignObject::Value> DesignObject::Computed(std::string_view) const {
  return std::nullopt;
}

std::optional<DesignObject::Value> DesignObject::FromExport(const ExportProperty& p) const {
  Value v;
  switch (p.Kind) {
    case ExportValueKind::Number:
      v.kind = Value::Kind::Number;
      v.ref = p.Value;
      return v;
    case ExportValueKind::Text:
    case ExportValueKind::Word:
    case ExportValueKind::Block:
      v.ref = p.Value;
      return v;
    case ExportValueKind::Binary:
      v.kind = Value::Kind::Bytes;
      v.ref = p.Value;
      return v;
    case ExportValueKind::NotDefault: {
      // The opposite of Access's own default; a boolean that the table does
      // not know is False by default.
      v.kind = Value::Kind::Flag;
      const PropertyDefault* d = schema_ ? schema_->Find(p.Key) : nullptr;
      v.flag = !(d && d->Kind == PropertyKind::Flag && d->Value == "True");
      return v;
    }
  }
  return std::nullopt;
}

std::optional<DesignObject::Value> DesignObject::Stored(std::string_view name) const {
  if (block_)
    if (const ExportProperty* p = block_->Find(name)) return FromExport(*p);
  if (defaults_)
    if (const ExportProperty* p = defaults_->Find(name)) return FromExport(*p);
  if (schema_) {
    if (const PropertyDefault* d = schema_->Find(name)) {
      Value v;
      switch (d->Kind) {
        case PropertyKind::Text:
        case PropertyKind::Event:
          v.kind = d->IsNull ? Value::Kind::Null : Value::Kind::Text;
          v.ref = d->Value;
          break;
        case PropertyKind::Number:
          v.kind = Value::Kind::Number;
          v.ref = d->Value;
          break;
        case PropertyKind::Flag:
          v.kind = Value::Kind::Flag;
          v.flag = d->Value == "True";
          break;
        case PropertyKind::Bytes:
          v.kind = Value::Kind::Bytes;
          break;
      }
      return v;
    }
  }
  return std::nullopt;
}

std::optional<DesignObject::Value> DesignObject::Resolve(std::string_view name) const {
  if (auto c = Computed(name)) return c;
  auto v = Stored(name);
  // An event whose action is an embedded macro names that macro; the text
  // may leave the event out or mark it "[Embedded Macro]".
  if (hasMacros_ && IsEventPropertyName(name) &&
      (!v ||
       (v->kind == Value::Kind::Text && (v->text().empty() || v->text() == kEmbeddedMacroMark)))) {
    const ExportProperty* m = FindEmbeddedMacro(*block_, name);
    if (m && m->Kind == ExportValueKind::Block)
      return Value::Of(Value::Kind::Text, MacroOwner() + "." + std::string(name));
  }
  return v;
}

std::optional<std::string> DesignObject::Text(std::string_view name) const {
  auto v = Resolve(name);
  if (!v) return std::nullopt;
  switch (v->kind) {
    case Value::Kind::Text:
    case Value::Kind::Number:
      if (v->owned) return std::move(v->own);
      return std::string(v->ref);
    case Value::Kind::Flag:
      return std::string(v->flag ? "-1" : "0");
    case Value::Kind::Null:
      return std::string();
    case Value::Kind::Bytes:
      return std::nullopt;
  }
  return std::nullopt;
}

std::optional<double> DesignObject::Real(std::string_view name) const {
  auto v = Resolve(name);
  if (!v) return std::nullopt;
  switch (v->kind) {
    case Value::Kind::Text:
    case Value::Kind::Number:
      return DesignNumber(v->text());
    case Value::Kind::Flag:
      return v->flag ? -1.0 : 0.0;
    default:
      return std::nullopt;
  }
}

std::optional<long> DesignObject::Number(std::string_view name) const {
  auto d = Real(name);
  if (!d || *d > 2147483647.0 || *d < -2147483648.0) return std::nullopt;
  return static_cast<long>(std::lround(*d));
}

std::optional<bool> DesignObject::Flag(std::string_view name) const {
  auto v = Resolve(name);
  if (!v) return std::nullopt;
  switch (v->kind) {
    case Value::Kind::Flag:
      return v->flag;
    case Value::Kind::Number:
    case Value::Kind::Text: {
      std::string_view t = text::Trim(v->text());
      if (IEquals(t, "True") || IEquals(t, "Yes") || IEquals(t, "On")) return true;
      if (IEquals(t, "False") || IEquals(t, "No") || IEquals(t, "Off")) return false;
      if (auto d = DesignNumber(t)) return *d != 0;
      return std::nullopt;
    }
    default:
      return std::nullopt;
  }
}

std::optional<std::string> DesignObject::Bytes(std::string_view name) const {
  auto v = Resolve(name);
  if (!v || v->kind != Value::Kind::Bytes) return std::nullopt;
  return std::string(v->text());
}

bool DesignObject::Has(std::string_view name) const { return Resolve(name).has_value(); }

bool DesignObject::IsNull(std::string_view name) const {
  auto v = Resolve(name);
  return v && v->kind == Value::Kind::Null;
}

std::optional<std::string> DesignObject::EmbeddedMacro(std::string_view event) const {
  if (!hasMacros_) return std::nullopt;
  const ExportProperty* m = FindEmbeddedMacro(*block_, event);
  if (!m || m->Kind != ExportValueKind::Block) return std::nullopt;
  return m->Value;
}

// --- SectionDesign ----------------------------------------------------------

std::span<const ControlDesign> SectionDesign::Controls() const {
  return form_->Controls().subspan(first_, count_);
}

std::optional<DesignObject::Value> SectionDesign::Computed(std::string_view name) const {
  if (IEquals(name, "Section")) return Value::Of(Value::Kind::Number, std::to_string(index_));
  return std::nullopt;
}

std::string SectionDesign::MacroOwner() const { return form_->Name() + "." + Name(); }

// --- ControlDesign ----------------------------------------------------------

const DesignObject& ControlDesign::Parent() const {
  if (parent_ < 0) return *form_;
  return form_->Controls()[static_cast<size_t>(parent_)];
}

const ControlDesign* ControlDesign::ParentControl() const {
  return parent_ < 0 ? nullptr : &form_->Controls()[static_cast<size_t>(parent_)];
}

std::span<const ControlDesign> ControlDesign::Controls() const {
  return form_->Controls().subspan(index_ + 1, descendants_);
}

std::vector<const ControlDesign*> ControlDesign::Pages() const {
  std::vector<const ControlDesign*> pages;
  for (const ControlDesign& c : Controls())
    if (c.ControlType() == kPage && c.ParentControl() == this) pages.push_back(&c);
  return pages;
}

const FormDesign* ControlDesign::Form(std::string* err) const {
  std::string where = "subform control \"" + Name() + "\" of \"" + form_->Name() + "\"";
  if (type_ != kSubform) {
    if (err) *err = "\"" + Name() + "\" of \"" + form_->Name() + "\" is no subform control";
    return nullptr;
  }
  std::string source = Text("SourceObject").value_or("");
  bool report = false;
  if (text::IStartsWith(source, "Form.")) {
    source.erase(0, 5);
  } else if (text::IStartsWith(source, "Report.")) {
    source.erase(0, 7);
    report = true;
  }
  if (source.empty()) {
    if (err) *err = where + " has no SourceObject";
    return nullptr;
  }
  if (!form_->Resolver()) {
    if (err) *err = where + ": no designs are open to find \"" + source + "\"";
    return nullptr;
  }
  return form_->Resolver()(*this, source, report, err);
}

std::string ControlDesign::EventProcPrefix() const {
  if (auto explicitPrefix = Stored("EventProcPrefix");
      explicitPrefix && IsWritten("EventProcPrefix"))
    return std::string(explicitPrefix->text());
  std::string prefix = Name();
  for (char& c : prefix)
    if (!IsIdentifierChar(c)) c = '_';
  return prefix;
}

std::optional<DesignObject::Value> ControlDesign::Computed(std::string_view name) const {
  if (IEquals(name, "ControlType")) return Value::Of(Value::Kind::Number, std::to_string(type_));
  if (IEquals(name, "Section")) return Value::Of(Value::Kind::Number, std::to_string(section_));
  if (IEquals(name, "EventProcPrefix")) return Value::Of(Value::Kind::Text, EventProcPrefix());
  // The text keeps a border as OldBorderStyle (transparent or not) and
  // BorderLineStyle; Access shows them as one BorderStyle: 0 transparent,
  // else the line style plus 1.
  if (IEquals(name, "BorderStyle") && !IsWritten("BorderStyle")) {
    auto old = Stored("OldBorderStyle");
    if (!old) return std::nullopt;
    auto oldNumber = DesignNumber(old->text());
    if (!oldNumber) return std::nullopt;
    long style = 0;
    if (*oldNumber != 0) {
      auto line = Stored("BorderLineStyle");
      auto lineNumber = line ? DesignNumber(line->text()) : std::nullopt;
      style = (lineNumber ? std::lround(*lineNumber) : 0) + 1;
    }
    return Value::Of(Value::Kind::Number, std::to_string(style));
  }
  return std::nullopt;
}

std::string ControlDesign::MacroOwner() const { return form_->Name() + "." + Name(); }

// --- FormDesign -------------------------------------------------------------

const ControlDesign* FormDesign::Control(std::string_view name) const {
  for (const ControlDesign& c : controls_)
    if (IEquals(c.Name(), name)) return &c;
  return nullptr;
}

const SectionDesign* FormDesign::Section(int n) const {
  for (const SectionDesign& s : sections_)
    if (s.Index() == n) return &s;
  return nullptr;
}

const GroupLevelDesign* FormDesign::GroupLevel(int i) const {
  if (i < 0 || static_cast<size_t>(i) >= levels_.size()) return nullptr;
  return &levels_[static_cast<size_t>(i)];
}

std::vector<FormDesign::EmbeddedMacroText> FormDesign::EmbeddedMacros() const {
  std::vector<EmbeddedMacroText> macros;
  auto collect = [&macros](const DesignObject& object, const std::string& owner) {
    if (!object.Block()) return;
    for (const ExportProperty& p : object.Block()->Properties) {
      if (p.Kind != ExportValueKind::Block || !text::IEndsWith(p.Key, kEmbeddedMacroSuffix))
        continue;
      std::string event = p.Key.substr(0, p.Key.size() - kEmbeddedMacroSuffix.size());
      macros.push_back({owner + "." + event, p.Value});
    }
  };
  collect(*this, Name());
  for (const SectionDesign& s : sections_) collect(s, Name() + "." + s.Name());
  for (const ControlDesign& c : controls_) collect(c, Name() + "." + c.Name());
  return macros;
}

std::optional<DesignObject::Value> FormDesign::Computed(std::string_view name) const {
  if (IEquals(name, "Name")) {
    Value v;
    v.ref = Name();
    return v;
  }
  // The text keeps both window buttons in MinMaxButtons: 1 min, 2 max, 3 both.
  bool minButton = IEquals(name, "MinButton");
  if (!IsReport() && (minButton || IEquals(name, "MaxButton"))) {
    auto both = Stored("MinMaxButtons");
    auto n = both ? DesignNumber(both->text()) : std::nullopt;
    if (!n) return std::nullopt;
    long bits = std::lround(*n);
    Value v;
    v.kind = Value::Kind::Flag;
    v.flag = (bits & (minButton ? 1 : 2)) != 0;
    return v;
  }
  return std::nullopt;
}

}  // namespace morvane

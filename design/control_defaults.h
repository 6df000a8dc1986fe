// The table of which properties each Access object type has and the value
// Access gives one that the text leaves out (data/access_control_defaults.tsv,
// compiled in). Reading a property that the type's table lacks fails.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace morvane {

enum class PropertyKind { Text, Number, Flag, Bytes, Event };

struct PropertyDefault {
  std::string Name;
  PropertyKind Kind = PropertyKind::Text;
  std::string Value;    // as the table writes it; flags "True"/"False"
  bool IsNull = false;  // a text property whose default is Null
};

class PropertySchema {
 public:
  const std::string& Type() const { return type_; }
  // The property by name, without regard to case; null when the type does
  // not have it.
  const PropertyDefault* Find(std::string_view name) const;
  const std::vector<PropertyDefault>& Properties() const { return properties_; }
  // Whether every property the type has under an event's name reads as
  // empty when the text leaves it out, as Access's event defaults do.
  bool EventsDefaultEmpty() const { return eventsDefaultEmpty_; }

 private:
  friend bool ParseControlDefaults(std::string_view, std::vector<PropertySchema>*, std::string*);
  // Case-blind hash of a name, so that a name in any case finds its row
  // without a folded copy.
  static uint64_t FoldedHash(std::string_view name);
  std::string type_;
  std::vector<PropertyDefault> properties_;  // sorted by name, case folded
  std::vector<uint64_t> hashes_;              // FoldedHash of each property's name
  // Open addressing over properties_: each slot holds a position plus one,
  // or 0 when empty; a power of two in size, at most half full.
  std::vector<uint32_t> slots_;
  bool eventsDefaultEmpty_ = true;
};

// Whether a property name is an event's: On..., Before... or After...,
// without regard to case.
bool IsEventPropertyName(std::string_view name);

// The schema of a block type ("TextBox", "Form", "GroupedCheckBox", ...)
// from the compiled-in table; null for a type the table does not describe.
const PropertySchema* SchemaFor(std::string_view type);
const std::vector<PropertySchema>& AllSchemas();

// Parses table text: tab-separated rows "type, property, kind, default",
// blank lines and "#" comments allowed. False with "line N: ..." on a
// malformed row, an unknown kind, a flag that is neither True nor False, a
// number default that is no number, or a property listed twice for a type.
bool ParseControlDefaults(std::string_view text, std::vector<PropertySchema>* out,
                          std::string* err);

}  // namespace morvane

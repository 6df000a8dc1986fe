// The design records of an Access form or report, read from its SaveAsText
// text: `FormDesign`, `SectionDesign`, `ControlDesign`, `PageDesign`, and the
// group levels of a report. Properties are read by their Access names.
//
// Reading rule: a property the text writes gives that value; one the text
// leaves out gives the default of the form's default-control block for the
// type, else Access's own default for the type (control_defaults.h); a
// property the type does not have is a failed read (nullopt).
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "design/control_defaults.h"
#include "platform/export_parser.h"

namespace morvane {

class FormDesign;
class ControlDesign;

enum class DesignKind { Form, Report, Section, Control, GroupLevel };

// The key of an event's embedded macro block is the event's name plus this
// ("OnClick" + "EmMacro").
inline constexpr std::string_view kEmbeddedMacroSuffix = "EmMacro";

// A number as the records read it from text: blanks around it allowed,
// nothing else after it; nullopt for no number.
std::optional<double> DesignNumber(std::string_view text);

// Common to all records: properties by name.
class DesignObject {
 public:
  virtual ~DesignObject() = default;
  DesignObject(const DesignObject&) = delete;
  DesignObject& operator=(const DesignObject&) = delete;
  DesignObject(DesignObject&&) = default;

  DesignKind Kind() const { return kind_; }

  // Text of any property; numbers as written, booleans as -1 or 0, Null as
  // "". Binary properties fail.
  std::optional<std::string> Text(std::string_view name) const;
  // Whole number: numbers rounded, booleans -1 or 0, numeric text parsed.
  std::optional<long> Number(std::string_view name) const;
  std::optional<double> Real(std::string_view name) const;
  // Booleans; a number is true when not 0.
  std::optional<bool> Flag(std::string_view name) const;
  // Binary properties (PictureData ...): the bytes, empty by default.
  std::optional<std::string> Bytes(std::string_view name) const;
  // Whether the object has the property at all.
  bool Has(std::string_view name) const;
  // A text property whose value is Null (a form's unset Caption).
  bool IsNull(std::string_view name) const;
  // Whether the text writes the property itself.
  bool IsWritten(std::string_view name) const;
  // False when every event property (On..., Before..., After...) reads as
  // empty: neither the object's text nor its default-control block writes
  // one, it carries no embedded macro, and its type's table gives none a
  // value. A reader of many events asks this once instead of each event.
  bool MayReadEvents() const;

  // The Name property, read once when the design is loaded.
  const std::string& Name() const { return name_; }
  // Line of the object's "Begin" in the text, 0 for none.
  int Line() const;
  const ExportBlock* Block() const { return block_; }

  // The text of the embedded macro of an event ("OnClick"), when the object
  // carries one (OnClickEmMacro = Begin ... End).
  std::optional<std::string> EmbeddedMacro(std::string_view event) const;

 protected:
  // A read value. Its text is a view of the export or the property table,
  // which live as long as the design, or of `own` for a value computed here.
  struct Value {
    enum class Kind { Text, Number, Flag, Bytes, Null } kind = Kind::Text;
    std::string_view ref;
    bool flag = false;
    bool owned = false;
    std::string own;

    std::string_view text() const { return owned ? std::string_view(own) : ref; }
    static Value Of(Kind kind, std::string text) {
      Value v;
      v.kind = kind;
      v.owned = true;
      v.own = std::move(text);
      return v;
    }
  };

  DesignObject(DesignKind kind, const ExportBlock* block, const ExportBlock* defaults,
               const PropertySchema* schema)
      : kind_(kind),
        block_(block),
        defaults_(defaults),
        schema_(schema),
        hasMacros_(HoldsEmbeddedMacros(block)) {}

  // Values that no text or table holds: the type, the section, properties
  // Access derives from others. nullopt to read normally.
  virtual std::optional<Value> Computed(std::string_view name) const;
  // The prefix of the names of this object's embedded macros.
  virtual std::string MacroOwner() const = 0;

  std::optional<Value> Resolve(std::string_view name) const;
  std::optional<Value> Stored(std::string_view name) const;

 private:
  friend class DesignLoader;
  // Whether the block has an embedded macro block of any event.
  static bool HoldsEmbeddedMacros(const ExportBlock* block);
  std::optional<Value> FromExport(const ExportProperty& p) const;

  DesignKind kind_;
  const ExportBlock* block_;     // the object's own block (null for none)
  const ExportBlock* defaults_;  // the form's default-control block for the type
  const PropertySchema* schema_;
  bool hasMacros_;  // the block has an embedded macro; most have none
  std::string name_;
};

// One section: detail, headers, footers, report group headers and footers.
class SectionDesign : public DesignObject {
 public:
  // 0 detail, 1 form/report header, 2 footer, 3 page header, 4 page footer,
  // 5 + 2i group header of level i, 6 + 2i its footer.
  int Index() const { return index_; }
  // The controls of the section, nested ones included, in text order.
  std::span<const ControlDesign> Controls() const;
  const FormDesign& Owner() const { return *form_; }

 private:
  friend class DesignLoader;
  SectionDesign(const FormDesign* form, const ExportBlock* block, const PropertySchema* schema,
                int index)
      : DesignObject(DesignKind::Section, block, nullptr, schema), form_(form), index_(index) {}
  std::optional<Value> Computed(std::string_view name) const override;
  std::string MacroOwner() const override;

  const FormDesign* form_;
  int index_;
  size_t first_ = 0, count_ = 0;
};

// One group level of a report (a BreakLevel record): ControlSource,
// SortOrder, GroupHeader, GroupFooter, GroupOn, GroupInterval, KeepTogether.
class GroupLevelDesign : public DesignObject {
 public:
  int Index() const { return index_; }

 private:
  friend class DesignLoader;
  GroupLevelDesign(const ExportBlock* block, const PropertySchema* schema, int index)
      : DesignObject(DesignKind::GroupLevel, block, nullptr, schema), index_(index) {}
  std::string MacroOwner() const override { return {}; }
  int index_;
};

class ControlDesign : public DesignObject {
 public:
  // Access's ControlType; 0 for a block type no Access version defines.
  int ControlType() const { return type_; }
  // The block name in the text ("TextBox").
  const std::string& TypeName() const { return Block()->Type; }
  int Section() const { return section_; }

  // The holder: the form or report, or the control that nests this one (the
  // text box of an attached label, the option group of its members, the tab
  // control of a page, the page of the controls on it).
  const DesignObject& Parent() const;
  // The holder when it is a control; null when it is the form.
  const ControlDesign* ParentControl() const;
  const FormDesign& Owner() const { return *form_; }

  // Everything nested in this control, in text order.
  std::span<const ControlDesign> Controls() const;
  // The pages of a tab control, in order.
  std::vector<const ControlDesign*> Pages() const;
  // The design of a subform control's SourceObject ("Form.X", "Report.X" or
  // "X"), through the form's resolver; null with a message when missing.
  const FormDesign* Form(std::string* err = nullptr) const;
  // The prefix of the control's event procedures: the name with every
  // character that cannot stand in an identifier turned into "_", unless the
  // text gives one.
  std::string EventProcPrefix() const;

 private:
  friend class DesignLoader;
  ControlDesign(const FormDesign* form, const ExportBlock* block, const ExportBlock* defaults,
                const PropertySchema* schema, int type, int section, long parent)
      : DesignObject(DesignKind::Control, block, defaults, schema),
        form_(form),
        type_(type),
        section_(section),
        parent_(parent) {}
  std::optional<Value> Computed(std::string_view name) const override;
  std::string MacroOwner() const override;

  const FormDesign* form_;
  int type_;
  int section_;
  long parent_;  // index in the form's controls, -1 for the form
  size_t index_ = 0, descendants_ = 0;
};

// A page of a tab control is a control of type 124 with Name, Caption and
// Controls.
using PageDesign = ControlDesign;

class FormDesign : public DesignObject {
 public:
  // Opens the design of a subform control's source object. `sourceObject` is
  // the name without its "Form."/"Report." prefix; `report` tells which.
  using SubformResolver =
      std::function<const FormDesign*(const ControlDesign& control, const std::string& sourceObject,
                                      bool report, std::string* err)>;

  struct EmbeddedMacroText {
    std::string Name;  // "<form>.<control>.<event>" or "<form>.<event>"
    std::string Text;  // the macro's saved text, one line per CR LF
  };

  bool IsReport() const { return Kind() == DesignKind::Report; }
  const std::string& File() const { return file_; }
  // The Version = line of the text, 0 when absent.
  int Version() const { return version_; }

  // All controls in the order of the text, nested ones after their holder.
  std::span<const ControlDesign> Controls() const { return controls_; }
  // The control of that name (without regard to case), or null.
  const ControlDesign* Control(std::string_view name) const;
  // Section n, or null when the design has no such section (a failed read).
  const SectionDesign* Section(int n) const;
  std::span<const SectionDesign> Sections() const { return sections_; }
  // Report group levels, in order (level 0 first).
  std::span<const GroupLevelDesign> GroupLevels() const { return levels_; }
  const GroupLevelDesign* GroupLevel(int i) const;

  // The module text after CodeBehindForm, Attribute lines included.
  bool HasCode() const { return hasCode_; }
  const std::vector<std::string>& Code() const { return doc_.Code; }

  std::vector<EmbeddedMacroText> EmbeddedMacros() const;
  // Things read but not converted: later Access versions' control types,
  // blocks of unknown kind. Each names the file and line.
  const std::vector<std::string>& Notes() const { return notes_; }

  void SetSubformResolver(SubformResolver resolver) { resolver_ = std::move(resolver); }
  const SubformResolver& Resolver() const { return resolver_; }

 private:
  friend class DesignLoader;
  FormDesign(DesignKind kind, const ExportBlock* block, const PropertySchema* schema)
      : DesignObject(kind, block, nullptr, schema) {}
  std::optional<Value> Computed(std::string_view name) const override;
  std::string MacroOwner() const override { return Name(); }

  std::string file_;
  int version_ = 0;
  bool hasCode_ = false;
  ExportDocument doc_;
  std::vector<ControlDesign> controls_;
  std::vector<SectionDesign> sections_;
  std::vector<GroupLevelDesign> levels_;
  std::vector<std::string> notes_;
  SubformResolver resolver_;
};

}  // namespace morvane

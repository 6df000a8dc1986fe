// Building the design records from the parsed export. The form's own block
// holds its properties, a bare block with the default-control templates (one
// block per control type), the report's BreakLevel records and the section
// blocks; exports differ on whether the sections sit in that bare block or
// beside it, so both are read. Controls nest in bare blocks inside their
// section and inside their holder.
#include "design/design_loader.h"

#include <cstdlib>

#include "design/control_types.h"
#include "platform/encoding.h"
#include "platform/text_fold.h"

namespace morvane {

class DesignLoader {
 public:
  static std::unique_ptr<FormDesign> Load(std::span<const std::string_view> lines,
                                          const std::string& file, const std::string& name,
                                          std::string* err);

  DesignLoader(FormDesign* form, const std::string& file) : form_(form), file_(file) {}

  void Build(const ExportBlock& root) {
    for (const ExportBlock& child : root.Children) {
      if (child.Type.empty()) {
        for (const ExportBlock& inner : child.Children) Classify(inner);
      } else {
        Classify(child);
      }
    }
    // Sections first, then controls: the controls' pointers into their form
    // are fixed once all vectors have their final size.
    form_->controls_.reserve(CountControls());
    for (const PendingSection& p : pending_) {
      SectionDesign& s = form_->sections_[p.index];
      s.first_ = form_->controls_.size();
      AddChildren(*s.Block(), -1, s.Index());
      s.count_ = form_->controls_.size() - s.first_;
    }
    // Names are read often; each record reads its own once, now that all
    // records are in place.
    for (SectionDesign& s : form_->sections_) ReadName(s);
    for (GroupLevelDesign& g : form_->levels_) ReadName(g);
    for (ControlDesign& c : form_->controls_) ReadName(c);
  }

 private:
  struct PendingSection {
    size_t index;
  };

  static void ReadName(DesignObject& o) { o.name_ = o.Text("Name").value_or(""); }

  void Note(int line, const std::string& message) {
    form_->notes_.push_back(file_ + ":" + std::to_string(line) + ": " + message);
  }

  void Classify(const ExportBlock& b) {
    int number = SectionNumberOf(b.Type);
    if (number >= 0) return AddSection(b, number);
    if (text::IEquals(b.Type, "BreakLevel")) {
      int index = static_cast<int>(form_->levels_.size());
      form_->levels_.push_back(GroupLevelDesign(&b, SchemaFor("BreakLevel"), index));
      return;
    }
    if (ControlTypeByName(b.Type)) {
      templates_.push_back(&b);
      return;
    }
    Note(b.Line, "block \"" + b.Type + "\" is not read");
  }

  void AddSection(const ExportBlock& b, int number) {
    if (number >= 5) {
      const ExportProperty* level = b.Find("BreakLevel");
      long n =
          level && level->Kind == ExportValueKind::Number ? std::atol(level->Value.c_str()) : 0;
      if (n < 0 || n > 9) {
        Note(b.Line, "group section \"" + b.Type + "\" has an unknown level; not read");
        return;
      }
      number += 2 * static_cast<int>(n);
    }
    if (form_->Section(number)) {
      Note(b.Line, "a second section " + std::to_string(number) + " is not read");
      return;
    }
    const PropertySchema* schema = SchemaFor(form_->IsReport() ? "ReportSection" : "FormSection");
    form_->sections_.push_back(SectionDesign(form_, &b, schema, number));
    pending_.push_back({form_->sections_.size() - 1});
  }

  // The controls of a holder: blocks inside its bare block(s), and typed
  // blocks written directly in it.
  template <typename Fn>
  static void ForEachNested(const ExportBlock& holder, Fn fn) {
    for (const ExportBlock& child : holder.Children) {
      if (child.Type.empty()) {
        for (const ExportBlock& inner : child.Children)
          if (!inner.Type.empty()) fn(inner);
      } else {
        fn(child);
      }
    }
  }

  size_t CountControls() const {
    size_t n = 0;
    std::vector<const ExportBlock*> todo;
    for (const PendingSection& p : pending_) todo.push_back(form_->sections_[p.index].Block());
    while (!todo.empty()) {
      const ExportBlock* b = todo.back();
      todo.pop_back();
      ForEachNested(*b, [&](const ExportBlock& c) {
        ++n;
        todo.push_back(&c);
      });
    }
    return n;
  }

  const ExportBlock* TemplateFor(std::string_view type) const {
    const ExportBlock* found = nullptr;
    for (const ExportBlock* t : templates_)
      if (text::IEquals(t->Type, type)) found = t;
    return found;
  }

  void AddChildren(const ExportBlock& holder, long parent, int section) {
    ForEachNested(holder, [&](const ExportBlock& c) { AddControl(c, parent, section); });
  }

  void AddControl(const ExportBlock& b, long parent, int section) {
    const ControlTypeRow* row = ControlTypeByName(b.Type);
    int type = row ? row->Number : 0;
    if (!row)
      Note(b.Line, "control type \"" + b.Type + "\" is unknown; the control is passed over");
    else if (!row->Converted)
      Note(b.Line, "control \"" + NameOf(b) + "\" is of type " + b.Type +
                       ", which has no counterpart; it is passed over");
    std::string schemaType = b.Type;
    if (parent >= 0 && (type == kOptionButton || type == kCheckBox || type == kToggleButton) &&
        form_->controls_[static_cast<size_t>(parent)].ControlType() == kOptionGroup)
      schemaType = "Grouped" + b.Type;
    size_t index = form_->controls_.size();
    form_->controls_.push_back(ControlDesign(form_, &b, TemplateFor(b.Type), SchemaFor(schemaType),
                                             type, section, parent));
    form_->controls_[index].index_ = index;
    AddChildren(b, static_cast<long>(index), section);
    form_->controls_[index].descendants_ = form_->controls_.size() - index - 1;
  }

  static std::string NameOf(const ExportBlock& b) {
    const ExportProperty* p = b.Find("Name");
    return p ? p->Value : std::string();
  }

  FormDesign* form_;
  std::string file_;
  std::vector<const ExportBlock*> templates_;
  std::vector<PendingSection> pending_;
};

std::unique_ptr<FormDesign> LoadDesign(std::span<const std::string_view> lines,
                                       const std::string& file, const std::string& name,
                                       std::string* err) {
  return DesignLoader::Load(lines, file, name, err);
}

std::unique_ptr<FormDesign> LoadDesign(const std::vector<std::string>& lines,
                                       const std::string& file, const std::string& name,
                                       std::string* err) {
  const std::vector<std::string_view> views(lines.begin(), lines.end());
  return DesignLoader::Load(views, file, name, err);
}

std::unique_ptr<FormDesign> DesignLoader::Load(std::span<const std::string_view> lines,
                                               const std::string& file, const std::string& name,
                                               std::string* err) {
  ExportDocument doc;
  if (!ParseExport(lines, file, &doc, err)) return nullptr;
  const ExportBlock* root = nullptr;
  for (const ExportBlock& b : doc.Blocks) {
    if (text::IEquals(b.Type, "Form") || text::IEquals(b.Type, "Report")) {
      root = &b;
      break;
    }
  }
  if (!root) {
    if (err) *err = file + ":1: no \"Begin Form\" or \"Begin Report\" block; not a form or report";
    return nullptr;
  }
  bool report = text::IEquals(root->Type, "Report");
  std::unique_ptr<FormDesign> form(
      new FormDesign(report ? DesignKind::Report : DesignKind::Form, root, SchemaFor(root->Type)));
  form->name_ = name;
  form->file_ = file;
  for (const ExportProperty& h : doc.Header)
    if (text::IEquals(h.Key, "Version") && h.Kind == ExportValueKind::Number)
      form->version_ = std::atoi(h.Value.c_str());
  form->hasCode_ = doc.HasCode;
  // Moving the document keeps its blocks where they are: `root` stays valid.
  form->doc_ = std::move(doc);
  DesignLoader(form.get(), file).Build(*root);
  for (const ExportProperty& s : form->doc_.Skipped)
    form->notes_.push_back(file + ":" + std::to_string(s.Line) + ": the value of " + s.Key +
                           " is of a kind that is not read");
  return form;
}

std::unique_ptr<FormDesign> LoadDesignFile(const std::filesystem::path& file,
                                           const std::string& name, std::string* err) {
  std::vector<std::string> lines;
  if (!ReadExportLines(file, &lines, err)) return nullptr;
  return LoadDesign(lines, file.string(), name, err);
}

}  // namespace morvane

// Opening designs by name from a source tree, with a cache of loaded designs
// and the resolver that gives a subform control its form.
#include "design/design_store.h"

#include "design/design_loader.h"
#include "platform/encoding.h"
#include "platform/text_file.h"
#include "platform/text_fold.h"

namespace morvane {

namespace {

const char* KindWord(AccessObjectKind kind) {
  return kind == AccessObjectKind::Report ? "report" : "form";
}

}  // namespace

DesignStore::DesignStore(const SourceTree& tree)
    : source_([&tree](AccessObjectKind kind, const std::string& name, ExportText* out,
                      bool* missing, std::string* err) {
        const SourceObject* object = tree.Find(kind, name);
        if (!object) {
          *missing = true;
          return false;
        }
        // Messages of the designs are Windows-1252 text, as their names are.
        out->File = Utf8ToWindows1252(object->File.string());
        out->Name = object->Name;
        return tree.LoadDesignBytes(kind, object->Name, &out->Text, err);
      }) {}

DesignStore::DesignStore(LineSource source) : source_(std::move(source)) {}

std::string DesignStore::Key(AccessObjectKind kind, const std::string& name) {
  return std::string(KindWord(kind)) + ":" + text::Lower(name);
}

const FormDesign* DesignStore::Open(AccessObjectKind kind, const std::string& name,
                                    std::string* err) {
  std::string key = Key(kind, name);
  auto found = entries_.find(key);
  if (found == entries_.end()) {
    Entry entry;
    ExportText text;
    bool missing = false;
    std::string readErr;
    if (!source_(kind, name, &text, &missing, &readErr)) {
      entry.Error = missing ? std::string("the ") + KindWord(kind) + " \"" + name +
                                  "\" is not in the source tree"
                            : readErr;
    } else {
      const std::string& file = text.File;
      // Views of the text spare a copy of each of its lines.
      const std::vector<std::string_view> lines =
          text.Lines.empty() ? SplitLineViews(text.Text)
                             : std::vector<std::string_view>(text.Lines.begin(), text.Lines.end());
      entry.Design = LoadDesign(lines, file, text.Name.empty() ? name : text.Name, &entry.Error);
      if (entry.Design) {
        bool isReport = entry.Design->IsReport();
        if (isReport != (kind == AccessObjectKind::Report)) {
          entry.Error =
              file + ":1: holds a " + (isReport ? "report" : "form") + ", not a " + KindWord(kind);
          entry.Design.reset();
        } else {
          entry.Design->SetSubformResolver(
              [this](const ControlDesign& control, const std::string& source, bool report,
                     std::string* e) { return ResolveSubform(control, source, report, e); });
        }
      }
    }
    found = entries_.emplace(key, std::move(entry)).first;
  }
  if (!found->second.Design && err) *err = found->second.Error;
  return found->second.Design.get();
}

const FormDesign* DesignStore::ResolveSubform(const ControlDesign& control,
                                              const std::string& source, bool report,
                                              std::string* err) {
  AccessObjectKind kind = report ? AccessObjectKind::Report : AccessObjectKind::Form;
  std::string openErr;
  const FormDesign* design = Open(kind, source, &openErr);
  if (!design && err)
    *err = "subform control \"" + control.Name() + "\" of \"" + control.Owner().Name() +
           "\": " + openErr;
  return design;
}

void DesignStore::Close(AccessObjectKind kind, const std::string& name) {
  entries_.erase(Key(kind, name));
}

size_t DesignStore::OpenCount() const {
  size_t n = 0;
  for (const auto& [key, entry] : entries_)
    if (entry.Design) ++n;
  return n;
}

}  // namespace morvane

// The designs of a source tree, opened by name: what stands in for opening a
// form or report in design view. Each design is loaded once and kept; a
// subform control's Form opens its SourceObject through the same store.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "design/form_design.h"
#include "platform/source_tree.h"

namespace morvane {

class DesignStore {
 public:
  // An object's export as the store needs it.
  struct ExportText {
    std::vector<std::string> Lines;  // Windows-1252
    std::string Text;                // or the whole text, which the lines are split from
    std::string File;                // named in messages
    std::string Name;                // the object's own spelling; empty: as asked
  };
  // Finds an object's export. False with a message when the object is not
  // there or cannot be read; `missing` tells the first case from the second.
  using LineSource = std::function<bool(AccessObjectKind kind, const std::string& name,
                                        ExportText* out, bool* missing, std::string* err)>;

  explicit DesignStore(const SourceTree& tree);
  explicit DesignStore(LineSource source);

  // The design of a form or report; null with a message naming the object
  // (and the file and line when the text is at fault). A failure is kept, so
  // asking again does not read the file again.
  const FormDesign* Open(AccessObjectKind kind, const std::string& name, std::string* err);
  const FormDesign* OpenForm(const std::string& name, std::string* err) {
    return Open(AccessObjectKind::Form, name, err);
  }
  const FormDesign* OpenReport(const std::string& name, std::string* err) {
    return Open(AccessObjectKind::Report, name, err);
  }
  // Forgets a design (closing it); the next Open reads it again. Records of
  // the design obtained earlier are no longer valid.
  void Close(AccessObjectKind kind, const std::string& name);
  size_t OpenCount() const;

 private:
  struct Entry {
    std::unique_ptr<FormDesign> Design;
    std::string Error;
  };
  static std::string Key(AccessObjectKind kind, const std::string& name);
  const FormDesign* ResolveSubform(const ControlDesign& control, const std::string& source,
                                   bool report, std::string* err);

  LineSource source_;
  std::map<std::string, Entry> entries_;
};

}  // namespace morvane

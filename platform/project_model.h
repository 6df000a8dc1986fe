// The project model: what stands in for the development environment's
// project object. It keeps the component list and the references, offers the
// code-module operations on each component's text, writes each component's
// file once it is complete, and writes the project file in VB6's own .vbp
// format.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "platform/catalog.h"
#include "platform/text_document.h"

namespace morvane {

enum class ComponentKind { Module, Class, Form, Designer, UserControl };

class OutputDirectory;

// The code part of a component's text: everything behind the designer block
// and the Attribute lines. A module of no text (a component already written)
// is empty and takes no edits.
class CodeModule {
 public:
  // The part of the text ahead of the code is found once: the operations
  // change only the code.
  explicit CodeModule(TextDocument* text);
  int CountOfLines() const;
  // Lines before the first procedure, as the VBA editor counts them.
  int CountOfDeclarationLines() const;
  std::string Lines(int start, int count) const;
  void InsertLines(int line, const std::string& text);
  void DeleteLines(int start, int count);
  // Adds text to the end of the declarations section.
  void AddFromString(const std::string& text);

 private:
  // The code lines, from the first behind the header to the end.
  std::vector<std::string>::iterator Begin() const;
  int Count() const;
  TextDocument* text_;
  size_t head_ = 0;
};

struct ProjectComponent {
  std::string Name;
  ComponentKind Kind = ComponentKind::Module;
  std::filesystem::path File;
  // The text until the component's file is written.
  std::shared_ptr<TextDocument> Text;
  // The control libraries its Object lines name.
  std::vector<std::string> Objects;
  CodeModule Code() const { return CodeModule(Text.get()); }
};

class ProjectModel {
 public:
  // Type 0 standard executable, 3 ActiveX control project.
  explicit ProjectModel(int type = 0) : type_(type) {}

  std::string Name;
  // True when the components are listed as relative paths from the .vbp.
  int Type() const { return type_; }

  const std::vector<ProjectComponent>& Components() const { return components_; }
  const ProjectComponent* Find(const std::string& name) const;
  // Adds a component whose file will be `file`; its kind and name come from
  // its text (VB_Name, the form's or designer's Begin line). A class kept in
  // a .bas is a class. A component with the same name replaces the earlier
  // one in place.
  const ProjectComponent* Add(const std::filesystem::path& file, TextDocument text);
  // The component `text` makes, as Add would add it, without its text: for
  // a file written from that text elsewhere.
  static ProjectComponent Describe(const std::filesystem::path& file, const TextDocument& text);
  const ProjectComponent* Add(ProjectComponent component);
  // Adds a file that is already on disk. Null when it cannot be read.
  const ProjectComponent* AddFile(const std::filesystem::path& file);
  void Remove(const std::string& name);
  // Writes the component's file and lets its text go. False with the
  // message of the failed write.
  bool WriteComponent(const std::string& name, OutputDirectory& out, std::string* err);
  // Lets the text of a component go whose file was written from that same
  // text elsewhere.
  void Written(const std::string& name);
  // The bytes of the component's file; its text is let go. Empty when the
  // component has no text.
  std::string TakeBytes(const std::string& name);

  const std::vector<ReferenceInfo>& References() const { return references_; }
  void AddFromGuid(const std::string& guid, int major, int minor);

  // Records the request only: nothing can compile here.
  void MakeCompiledFile() { compileRequested_ = true; }
  bool CompileRequested() const { return compileRequested_; }

  // Writes the .vbp (and remembers its path for later saves).
  bool SaveAs(const std::filesystem::path& vbpFile, std::string* err);
  // The text SaveAs writes, with component paths relative to `baseDir`.
  std::string VbpText(const std::filesystem::path& baseDir) const;

 private:
  int type_;
  std::vector<ProjectComponent> components_;
  std::vector<ReferenceInfo> references_;
  bool compileRequested_ = false;
};

}  // namespace morvane

// The one authority for the names a run writes: the Visual Basic name of each
// form, report and module (the name of its Begin line, VB_Name, references
// in code and in the .vbp), and the name of its file. Names are handed out
// once, in the order objects are registered, and every use asks here, so a
// name is the same wherever it stands. Visual Basic names are identifiers of
// at most 40 characters, unique without regard to case among the project's
// components and never a word Visual Basic keeps or a component the run
// generates; file names are unique without regard to case, never a device
// name, and within what a file system takes.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

namespace morvane {

enum class ComponentRole { Form, Report, Module, Generated };

struct ComponentName {
  std::string VbName;  // Windows-1252
  std::string File;    // file name stem, Windows-1252 (UTF-8 on disk)
};

// A name that had to change beyond the usual mapping, for the analysis.
struct Renaming {
  std::string Object;  // the Access name
  ComponentName Name;
  std::string Why;
};

class NameRegistry {
 public:
  // The components the run generates keep their names; a user's object of
  // the same name takes another.
  NameRegistry();

  // The name of an object, handed out the first time it is asked for.
  const ComponentName& Name(ComponentRole role, const std::string& accessName);
  // The name already handed out, or null.
  const ComponentName* Find(ComponentRole role, const std::string& accessName) const;
  // The data control of a form: "dat" and the form's name, within 40
  // characters.
  std::string DataControl(const std::string& formName);

  const std::vector<Renaming>& Renamings() const { return renamings_; }
  // How many names have been handed out: a name asked for the first time
  // makes it grow.
  size_t Count() const { return names_.size(); }

 private:
  std::string Key(ComponentRole role, const std::string& name) const;
  bool VbNameTaken(const std::string& name) const;
  bool FileTaken(const std::string& stem) const;

  std::map<std::string, ComponentName> names_;
  std::set<std::string> vbNames_;  // lower case
  std::set<std::string> files_;    // lower case
  std::vector<Renaming> renamings_;
};

}  // namespace morvane

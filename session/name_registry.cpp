// Handing out the names of a run's components and files.
#include "session/name_registry.h"

#include <algorithm>

#include "session/naming.h"

namespace morvane {

namespace {

// What a run writes besides the objects' own files.
constexpr const char* kGeneratedComponents[] = {"MacroCode", "MorvaneConversionCode", "MDIParent",
                                                "rptEnvironment"};
constexpr const char* kGeneratedFiles[] = {"morvane", "analysis", "_Startup"};

// A file name stem keeps far from the 255 bytes a file system takes for a
// name, as the stem is written in UTF-8 and takes an extension.
constexpr size_t kMaxFileStem = 120;

std::string FileStemOf(const std::string& name) {
  std::string stem = SafeFileName(name);
  for (char& c : stem)
    if (static_cast<unsigned char>(c) < 0x20) c = '_';
  // Windows drops a trailing dot or blank, and a name must not be empty.
  while (!stem.empty() && (stem.back() == '.' || stem.back() == ' ')) stem.pop_back();
  if (stem.empty()) stem = "_";
  if (stem.size() > kMaxFileStem) stem.resize(kMaxFileStem);
  if (IsDeviceName(stem)) stem += "_";
  return stem;
}

}  // namespace

NameRegistry::NameRegistry() {
  for (const char* name : kGeneratedComponents) Name(ComponentRole::Generated, name);
  for (const char* file : kGeneratedFiles) files_.push_back(ToLower(file));
}

std::string NameRegistry::Key(ComponentRole role, const std::string& name) const {
  return std::to_string(static_cast<int>(role)) + ":" + ToLower(name);
}

bool NameRegistry::VbNameTaken(const std::string& name) const {
  return std::find(vbNames_.begin(), vbNames_.end(), ToLower(name)) != vbNames_.end();
}

bool NameRegistry::FileTaken(const std::string& stem) const {
  return std::find(files_.begin(), files_.end(), ToLower(stem)) != files_.end();
}

const ComponentName& NameRegistry::Name(ComponentRole role, const std::string& accessName) {
  const std::string key = Key(role, accessName);
  if (auto it = names_.find(key); it != names_.end()) return it->second;

  ComponentName n;
  std::string why;
  n.VbName = VbIdentifier(accessName);
  if (IsReservedWord(n.VbName)) {
    n.VbName = "a" + n.VbName;
    why = "a word Visual Basic keeps for itself";
  }
  // Each clash adds an "A", the name cut to make room within 40 characters.
  while (VbNameTaken(n.VbName)) {
    if (n.VbName.size() >= 40) n.VbName.resize(39);
    n.VbName += "A";
    if (why.empty()) why = "another object has that name";
  }
  vbNames_.push_back(ToLower(n.VbName));

  // Modules keep their Access name in their file, as far as a file name can
  // hold it; forms and reports are named after their Visual Basic name.
  n.File = FileStemOf(role == ComponentRole::Module ? accessName : n.VbName);
  while (FileTaken(n.File)) {
    n.File += "_";
    if (why.empty()) why = "another object's file has that name";
  }
  files_.push_back(ToLower(n.File));

  if (role != ComponentRole::Generated) {
    if (why.empty() && n.VbName != SafeName(accessName))
      why = SafeName(accessName).empty() ? "its name has no character a Visual Basic name can hold"
            : n.VbName.size() < SafeName(accessName).size()
                ? "Visual Basic names have at most 40 characters"
                : "a Visual Basic name starts with a letter and holds no such character";
    if (!why.empty()) renamings_.push_back({accessName, n, why});
  }
  return names_.emplace(key, std::move(n)).first->second;
}

const ComponentName* NameRegistry::Find(ComponentRole role, const std::string& accessName) const {
  auto it = names_.find(Key(role, accessName));
  return it == names_.end() ? nullptr : &it->second;
}

std::string NameRegistry::DataControl(const std::string& formName) {
  return DataControlName(Name(ComponentRole::Form, formName).VbName);
}

}  // namespace morvane

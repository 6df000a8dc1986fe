// The project model: component list, references, code-module operations on
// component files, and the VB6 project file.
#include "platform/project_model.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <span>

#include "platform/encoding.h"
#include "platform/output_directory.h"
#include "platform/text_file.h"
#include "platform/text_fold.h"

namespace morvane {

namespace {

using text::Trim;

// A Sub, Function or Property header, with its optional scope words.
bool IsProcedureHeader(std::string_view raw) {
  std::string_view s = Trim(raw);
  for (std::string_view scope : {"Public ", "Private ", "Friend ", "Static "}) {
    if (text::IStartsWith(s, scope)) s = Trim(s.substr(scope.size()));
  }
  if (text::IStartsWith(s, "Static ")) s = Trim(s.substr(7));
  return text::IStartsWith(s, "Sub ") || text::IStartsWith(s, "Function ") ||
         text::IStartsWith(s, "Property ");
}

// Lines before the first procedure; the comment lines directly above the
// first procedure belong to it, as in the VBA editor.
int DeclarationLineCount(std::span<const std::string> code) {
  size_t first = code.size();
  for (size_t i = 0; i < code.size(); ++i)
    if (IsProcedureHeader(code[i])) {
      first = i;
      break;
    }
  if (first == code.size()) return static_cast<int>(code.size());
  size_t n = first;
  while (n > 0 && Trim(code[n - 1]).starts_with('\'')) --n;
  return static_cast<int>(n);
}

// Index of the first code line: behind the VERSION line, Object= lines, the
// designer or class header block, and the Attribute lines.
size_t CodeStart(const std::vector<std::string>& lines) {
  size_t i = 0;
  while (i < lines.size()) {
    const std::string_view t = Trim(lines[i]);
    if (t.starts_with("VERSION ") || t.starts_with("Object =") || t.starts_with("Object=") ||
        t.starts_with("Attribute ")) {
      ++i;
    } else if (t == "BEGIN") {  // class header, closed by "END" or "End"
      while (i < lines.size() &&
             !(Trim(lines[i]).size() == 3 && text::IStartsWith(Trim(lines[i]), "end")))
        ++i;
      ++i;
    } else if (t.starts_with("Begin ") && i < lines.size()) {  // designer block
      int depth = 0;
      for (; i < lines.size(); ++i) {
        const std::string_view d = Trim(lines[i]);
        if (d.starts_with("Begin ") || d == "Begin" || d.starts_with("BeginProperty ")) ++depth;
        if (d == "End" || d == "EndProperty") --depth;
        if (depth == 0) break;
      }
      ++i;
    } else {
      break;
    }
  }
  return std::min(i, lines.size());
}

// The project's name as Visual Basic takes it: an identifier of at most 40
// characters that begins with a letter. Other characters become "_".
std::string ProjectIdentifier(const std::string& name) {
  std::string out;
  for (char c : name) {
    const unsigned char u = static_cast<unsigned char>(c);
    out += (u < 128 && std::isalnum(u)) ? c : '_';
  }
  if (out.empty() || !std::isalpha(static_cast<unsigned char>(out[0]))) out = "P" + out;
  return out.substr(0, 40);
}

// The libraries the header's Object lines name, each once.
std::vector<std::string> ObjectLines(const std::vector<std::string>& lines) {
  std::vector<std::string> objects;
  for (const auto& l : lines) {
    std::string_view t = Trim(l);
    if (t.starts_with("Begin ") || t.starts_with("Attribute ")) break;
    // VB writes "Object = ", the form writer "Object=".
    if (!t.starts_with("Object")) continue;
    std::string_view assigned = Trim(t.substr(6));
    if (assigned.empty() || assigned.front() != '=') continue;
    std::string value(Trim(assigned.substr(1)));
    value.erase(std::remove(value.begin(), value.end(), '"'), value.end());
    if (std::find(objects.begin(), objects.end(), value) == objects.end()) objects.push_back(value);
  }
  return objects;
}

std::string AttributeName(const std::vector<std::string>& lines) {
  for (const auto& l : lines) {
    std::string_view t = Trim(l);
    if (t.starts_with("Attribute VB_Name")) {
      size_t q1 = t.find('"');
      size_t q2 = t.rfind('"');
      if (q1 != std::string_view::npos && q2 > q1)
        return std::string(t.substr(q1 + 1, q2 - q1 - 1));
    }
  }
  return "";
}

}  // namespace

CodeModule::CodeModule(TextDocument* text) : text_(text) {
  if (text_) head_ = CodeStart(text_->Lines());
}

std::vector<std::string>::iterator CodeModule::Begin() const {
  return text_->Lines().begin() + static_cast<long>(head_);
}

int CodeModule::Count() const {
  return text_ ? static_cast<int>(text_->Lines().size() - head_) : 0;
}

int CodeModule::CountOfLines() const { return Count(); }

int CodeModule::CountOfDeclarationLines() const {
  if (!text_) return 0;
  return DeclarationLineCount(std::span<const std::string>(text_->Lines()).subspan(head_));
}

std::string CodeModule::Lines(int start, int count) const {
  std::string out;
  for (int i = start; i < start + count && i >= 1 && i <= Count(); ++i) {
    if (i > start) out += "\r\n";
    out += *(Begin() + (i - 1));
  }
  return out;
}

void CodeModule::InsertLines(int line, const std::string& text) {
  if (!text_) return;
  const int at = std::clamp(line, 1, Count() + 1) - 1;
  auto add = SplitLines(text);
  if (text.empty()) add.assign(1, "");
  text_->Lines().insert(Begin() + at, add.begin(), add.end());
  text_->CloseLastLine();
}

void CodeModule::DeleteLines(int start, int count) {
  if (!text_ || start < 1 || count < 1 || start > Count()) return;
  const int end = std::min(Count(), start - 1 + count);
  text_->Lines().erase(Begin() + (start - 1), Begin() + end);
  text_->CloseLastLine();
}

void CodeModule::AddFromString(const std::string& text) {
  if (!text_) return;
  auto add = SplitLines(text);
  const int at = CountOfDeclarationLines();
  text_->Lines().insert(Begin() + at, add.begin(), add.end());
  text_->CloseLastLine();
}

const ProjectComponent* ProjectModel::Find(const std::string& name) const {
  for (const auto& c : components_)
    if (c.Name.size() == name.size() && text::IStartsWith(c.Name, name)) return &c;
  return nullptr;
}

const ProjectComponent* ProjectModel::Add(const std::filesystem::path& file, TextDocument text) {
  ProjectComponent c = Describe(file, text);
  c.Text = std::make_shared<TextDocument>(std::move(text));
  return Add(std::move(c));
}

ProjectComponent ProjectModel::Describe(const std::filesystem::path& file,
                                        const TextDocument& text) {
  const std::vector<std::string>& lines = text.Lines();
  ProjectComponent c;
  c.File = file;
  c.Kind = ComponentKind::Module;
  for (size_t i = 0; i < lines.size() && i < 40; ++i) {
    std::string_view t = Trim(lines[i]);
    if (t.starts_with("VERSION 1.0 CLASS")) {
      c.Kind = ComponentKind::Class;
      break;
    }
    if (t.starts_with("Begin VB.Form") || t.starts_with("Begin VB.MDIForm")) {
      c.Kind = ComponentKind::Form;
      break;
    }
    if (t.starts_with("Begin VB.UserControl")) {
      c.Kind = ComponentKind::UserControl;
      break;
    }
    if (t.starts_with("Begin {")) {
      c.Kind = ComponentKind::Designer;
      break;
    }
  }
  c.Name = AttributeName(lines);
  if (c.Name.empty()) c.Name = file.stem().string();
  c.Objects = ObjectLines(lines);
  return c;
}

const ProjectComponent* ProjectModel::Add(ProjectComponent c) {
  for (auto& existing : components_) {
    if (existing.Name == c.Name) {
      existing = std::move(c);
      return &existing;
    }
  }
  components_.push_back(std::move(c));
  return &components_.back();
}

const ProjectComponent* ProjectModel::AddFile(const std::filesystem::path& file) {
  std::string bytes;
  if (!ReadFileBytes(file, &bytes, nullptr)) return nullptr;
  const ProjectComponent* c = Add(file, TextDocument::FromBytes(bytes));
  // The file is on disk already.
  for (auto& existing : components_)
    if (&existing == c) existing.Text.reset();
  return c;
}

std::string ProjectModel::TakeBytes(const std::string& name) {
  for (auto& c : components_) {
    if (c.Name != name || !c.Text) continue;
    c.Objects = ObjectLines(c.Text->Lines());
    std::string bytes = c.Text->Bytes();
    c.Text.reset();
    return bytes;
  }
  return std::string();
}

bool ProjectModel::WriteComponent(const std::string& name, OutputDirectory& out, std::string* err) {
  const ProjectComponent* c = Find(name);
  if (!c || !c->Text) return true;
  const std::filesystem::path file = c->File;
  return out.Write(file, TakeBytes(name), err);
}

void ProjectModel::Written(const std::string& name) {
  for (auto& c : components_)
    if (c.Name == name) c.Text.reset();
}

void ProjectModel::Remove(const std::string& name) {
  const ProjectComponent* c = Find(name);
  if (!c) return;
  components_.erase(components_.begin() + (c - components_.data()));
}

void ProjectModel::AddFromGuid(const std::string& guid, int major, int minor) {
  references_.push_back({"", guid, major, minor});
}

namespace {

struct KnownReference {
  const char* guid;
  const char* file;
  const char* description;
};

// Type libraries the project file names by path and title; any other
// reference is written with its GUID and version alone.
constexpr KnownReference kKnownReferences[] = {
    {"{00020430-0000-0000-C000-000000000046}", "C:\\WINDOWS\\System32\\stdole2.tlb",
     "OLE Automation"},
    {"{00000205-0000-0010-8000-00AA006D2EA4}",
     "C:\\Program Files\\Common Files\\System\\ado\\msado25.tlb",
     "Microsoft ActiveX Data Objects 2.5 Library"},
    {"{00025E01-0000-0000-C000-000000000046}",
     "C:\\Program Files\\Common Files\\Microsoft Shared\\DAO\\dao360.dll",
     "Microsoft DAO 3.6 Object Library"},
    {"{000204EF-0000-0000-C000-000000000046}",
     "C:\\Program Files\\Common Files\\Microsoft Shared\\VBA\\VBA6\\VBE6.DLL",
     "Visual Basic For Applications"},
    {"{4AFFC9A0-5F99-101B-AF4E-00AA003F0F07}",
     "C:\\Program Files\\Microsoft Office\\Office\\MSACC9.OLB",
     "Microsoft Access 9.0 Object Library"},
    {"{642AC760-AAB4-11D0-8494-00A0C90DC8A9}", "C:\\WINDOWS\\System32\\MSDBRPTR.DLL",
     "Microsoft Data Report Designer 6.0"},
    {"{6B263850-900B-11D0-9484-00A0C91110ED}", "C:\\WINDOWS\\System32\\MSSTDFMT.DLL",
     "Microsoft Data Formatting Object Library 6.0"},
    {"{3D5C6BF0-69A3-11D0-B393-00A0C9055D8E}",
     "C:\\Program Files\\Common Files\\Designer\\MSDERUN.DLL",
     "Microsoft Data Environment Instance 1.0"},
};

std::string HexVersion(int major, int minor) {
  char buf[32];
  std::snprintf(buf, sizeof buf, "%x.%x", major, minor);
  return buf;
}

std::string RelativeTo(const std::filesystem::path& file, const std::filesystem::path& base) {
  // A file of the base folder itself needs no look at the disk.
  std::filesystem::path rel = file.lexically_relative(base);
  std::error_code ec;
  if (rel.empty() || rel.has_parent_path() || rel == "." || rel == "..")
    rel = std::filesystem::relative(file, base, ec);
  std::string s = (ec || rel.empty()) ? file.string() : rel.string();
  std::replace(s.begin(), s.end(), '/', '\\');
  return s;
}

}  // namespace

std::string ProjectModel::VbpText(const std::filesystem::path& baseDir) const {
  std::vector<std::string> out;
  out.push_back(type_ == 3 ? "Type=Control" : "Type=Exe");
  for (const auto& r : references_) {
    const KnownReference* known = nullptr;
    for (const auto& k : kKnownReferences)
      if (text::IStartsWith(r.Guid, k.guid) &&
          r.Guid.size() == std::char_traits<char>::length(k.guid))
        known = &k;
    out.push_back("Reference=*\\G" + r.Guid + "#" + HexVersion(r.Major, r.Minor) + "#0#" +
                  (known ? known->file : "") + "#" + (known ? known->description : r.Name));
  }
  // Each control library a form names in its Object lines, once.
  std::vector<std::string> objects;
  for (const auto& c : components_) {
    const std::vector<std::string> own = c.Text ? ObjectLines(c.Text->Lines()) : c.Objects;
    for (const auto& value : own)
      if (std::find(objects.begin(), objects.end(), value) == objects.end())
        objects.push_back(value);
  }
  for (const auto& o : objects) out.push_back("Object=" + o);
  for (const auto& c : components_) {
    // File names are UTF-8 on disk; the project file holds Windows-1252.
    std::string rel = Utf8ToWindows1252(RelativeTo(c.File, baseDir));
    switch (c.Kind) {
      case ComponentKind::Module:
        out.push_back("Module=" + c.Name + "; " + rel);
        break;
      case ComponentKind::Class:
        out.push_back("Class=" + c.Name + "; " + rel);
        break;
      case ComponentKind::Form:
        out.push_back("Form=" + rel);
        break;
      case ComponentKind::Designer:
        out.push_back("Designer=" + rel);
        break;
      case ComponentKind::UserControl:
        out.push_back("UserControl=" + rel);
        break;
    }
  }
  const std::string name = Name.empty() ? "Project1" : Name;
  if (type_ != 3) out.push_back("Startup=\"Sub Main\"");
  out.push_back("HelpFile=\"\"");
  out.push_back("Title=\"" + name + "\"");
  out.push_back(std::string("ExeName32=\"") + name + (type_ == 3 ? ".ocx\"" : ".exe\""));
  out.push_back("Command32=\"\"");
  out.push_back("Name=\"" + ProjectIdentifier(name) + "\"");
  out.push_back("HelpContextID=\"0\"");
  out.push_back("CompatibleMode=\"0\"");
  for (const char* line : {"MajorVer=1",
                           "MinorVer=0",
                           "RevisionVer=0",
                           "AutoIncrementVer=0",
                           "ServerSupportFiles=0",
                           "CompilationType=0",
                           "OptimizationType=0",
                           "FavorPentiumPro(tm)=0",
                           "CodeViewDebugInfo=0",
                           "NoAliasing=0",
                           "BoundsCheck=0",
                           "OverflowCheck=0",
                           "FlPointCheck=0",
                           "FDIVCheck=0",
                           "UnroundedFP=0",
                           "StartMode=0",
                           "Unattended=0",
                           "Retained=0",
                           "ThreadPerObject=0",
                           "MaxNumberOfThreads=1",
                           "",
                           "[MS Transaction Server]",
                           "AutoRefresh=1"})
    out.push_back(line);
  return JoinCrLf(out);
}

bool ProjectModel::SaveAs(const std::filesystem::path& vbpFile, std::string* err) {
  return WriteFileWhole(vbpFile, VbpText(vbpFile.parent_path()), err);
}

}  // namespace morvane

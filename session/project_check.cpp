// The check of a generated project directory.
#include "session/project_check.h"

#include <algorithm>
#include <map>
#include <set>
#include <system_error>

#include "platform/encoding.h"
#include "platform/project_model.h"
#include "platform/support_db.h"
#include "platform/text_file.h"
#include "session/conversion_session.h"
#include "session/naming.h"
#include "session/vb6_check.h"

namespace morvane {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kCheckedExtensions[] = {".bas", ".cls", ".frm", ".ctl", ".dsr"};

// A file name on disk (UTF-8) as the system's text.
std::string SystemName(const fs::path& path) {
  DecodedText decoded;
  std::string err;
  const std::string name = path.filename().string();
  if (DecodeToWindows1252(name, &decoded, &err) != DecodeStatus::Ok) return name;
  return decoded.Text;
}

std::string Unquoted(std::string_view value) {
  std::string v = TrimBlanks(value);
  if (v.size() >= 2 && v.front() == '"' && v.back() == '"') v = v.substr(1, v.size() - 2);
  return v;
}

// The Attribute VB_Name of a component's text; empty when it has none.
std::string VbName(const std::vector<std::string>& lines) {
  for (const auto& line : lines) {
    const std::string t = TrimBlanks(line);
    if (!StartsWithNoCase(t, "Attribute VB_Name")) continue;
    const size_t eq = t.find('=');
    return eq == std::string::npos ? std::string() : Unquoted(std::string_view(t).substr(eq + 1));
  }
  return std::string();
}

struct Component {
  std::string Name;  // VB_Name, or the name the .vbp gives a module or class
  size_t Line;       // its line in the .vbp
};

// The files of the directory by their name in lower case.
using DirectoryIndex = std::map<std::string, fs::path>;

void CheckProjectFile(const fs::path& file, const std::string& name, const DirectoryIndex& files,
                      std::vector<ProjectFinding>* out) {
  const size_t first = out->size();
  std::vector<std::string> lines;
  std::string err;
  if (!ReadTextLines(file, &lines, &err)) {
    out->push_back({name, 0, "cannot be read: " + err, "", false});
    return;
  }
  auto finding = [&](size_t line, std::string problem) {
    out->push_back({name, line + 1, std::move(problem), lines[line], false});
  };
  std::vector<Component> components;
  bool named = false;
  for (size_t i = 0; i < lines.size(); ++i) {
    const std::string& line = lines[i];
    const size_t eq = line.find('=');
    if (eq == std::string::npos) continue;
    const std::string key = TrimBlanks(std::string_view(line).substr(0, eq));
    const std::string value = TrimBlanks(std::string_view(line).substr(eq + 1));
    if (key == "Name") {
      named = true;
      if (!IsVb6Identifier(Unquoted(value)))
        finding(i, "project name \"" + Unquoted(value) + "\" is no Visual Basic name");
      continue;
    }
    std::string path;
    std::string given;
    if (key == "Module" || key == "Class") {
      const size_t semicolon = value.find(';');
      given = TrimBlanks(std::string_view(value).substr(0, semicolon));
      path =
          semicolon == std::string::npos ? std::string() : TrimBlanks(value.substr(semicolon + 1));
    } else if (key == "Form" || key == "UserControl" || key == "Designer" ||
               key == "PropertyPage" || key == "UserDocument") {
      path = value;
    } else {
      continue;
    }
    std::replace(path.begin(), path.end(), '\\', '/');
    fs::path found;
    if (path.find('/') == std::string::npos) {
      const auto hit = files.find(ToLower(path));
      if (hit != files.end()) found = hit->second;
    } else if (std::error_code ec; fs::exists(file.parent_path() / path, ec)) {
      found = file.parent_path() / path;
    }
    if (found.empty()) {
      finding(i, "lists " + path + ", which the directory does not hold");
      continue;
    }
    std::vector<std::string> text;
    if (given.empty() && ReadTextLines(found, &text, nullptr)) given = VbName(text);
    if (!given.empty()) components.push_back({given, i});
  }
  if (!named) out->push_back({name, 0, "the project has no Name line", "", false});
  // Visual Basic loads one component of a name; the second stops the load.
  std::map<std::string, size_t> seen;
  for (const auto& c : components) {
    const auto [it, added] = seen.emplace(ToLower(c.Name), c.Line);
    if (!added)
      finding(c.Line, "a second component named " + c.Name + " (the first is on line " +
                          std::to_string(it->second + 1) + ")");
  }
  std::stable_sort(
      out->begin() + static_cast<long>(first), out->end(),
      [](const ProjectFinding& a, const ProjectFinding& b) { return a.Line < b.Line; });
}

// The classes of the directory's control projects: "<project>.<control>"
// in lower case, for each user control a project of Type=Control lists.
std::set<std::string> ControlClasses(const std::vector<fs::path>& paths,
                                     const DirectoryIndex& files) {
  std::set<std::string> classes;
  for (const auto& path : paths) {
    if (ToLower(path.extension().string()) != ".vbp") continue;
    std::vector<std::string> lines;
    if (!ReadTextLines(path, &lines, nullptr)) continue;
    std::string project;
    std::vector<std::string> controls;
    for (const auto& line : lines) {
      const size_t eq = line.find('=');
      if (eq == std::string::npos) continue;
      const std::string key = TrimBlanks(std::string_view(line).substr(0, eq));
      const std::string value = TrimBlanks(std::string_view(line).substr(eq + 1));
      if (key == "Name") project = Unquoted(value);
      if (key != "UserControl") continue;
      const auto hit = files.find(ToLower(value));
      std::vector<std::string> text;
      if (hit != files.end() && ReadTextLines(hit->second, &text, nullptr))
        controls.push_back(VbName(text));
    }
    for (const auto& c : controls) classes.insert(ToLower(project + "." + c));
  }
  return classes;
}

// What a designer block names in other files: the binary file and offset of
// a property ("Picture = "x.frx":001C"), which must be there, and the user
// control a data repeater repeats, which a control project of the directory
// must hold.
void CheckReferences(const std::string& name, const std::vector<std::string>& lines,
                     const DirectoryIndex& files, const std::set<std::string>& classes,
                     std::vector<ProjectFinding>* out) {
  bool repeated = false;
  for (size_t i = 0; i < lines.size(); ++i) {
    const std::string t = TrimBlanks(lines[i]);
    if (StartsWithNoCase(t, "Attribute ")) break;
    if (StartsWithNoCase(t, "BeginProperty RepeatedControlName")) repeated = true;
    if (StartsWithNoCase(t, "EndProperty")) repeated = false;
    const size_t eq = t.find('=');
    if (eq == std::string::npos) continue;
    const std::string key = TrimBlanks(std::string_view(t).substr(0, eq));
    const std::string value = TrimBlanks(std::string_view(t).substr(eq + 1));
    if (repeated && key == "Name") {
      if (!classes.count(ToLower(Unquoted(value))))
        out->push_back({name, i + 1,
                        "the data repeater repeats " + Unquoted(value) +
                            ", which no control project of the directory holds",
                        lines[i], false});
      continue;
    }
    // "file":offset
    if (value.size() < 4 || value.front() != '"') continue;
    const size_t close = value.find('"', 1);
    if (close == std::string::npos || close + 1 >= value.size() || value[close + 1] != ':')
      continue;
    const std::string file = value.substr(1, close - 1);
    const std::string offset = value.substr(close + 2);
    if (offset.empty() || offset.find_first_not_of("0123456789ABCDEFabcdef") != std::string::npos)
      continue;
    const auto hit = files.find(ToLower(file));
    std::error_code ec;
    const auto size = hit == files.end() ? 0 : fs::file_size(hit->second, ec);
    if (hit == files.end() || ec) {
      out->push_back({name, i + 1, key + " names " + file + ", which the directory does not hold",
                      lines[i], false});
    } else if (std::stoull(offset, nullptr, 16) >= size) {
      out->push_back(
          {name, i + 1, key + " names a record past the end of " + file, lines[i], false});
    }
  }
}

}  // namespace

bool CheckProject(const fs::path& dir, std::vector<ProjectFinding>* findings, std::string* err) {
  std::error_code ec;
  if (!fs::is_directory(dir, ec)) {
    if (err) *err = dir.string() + ": no such directory";
    return false;
  }
  DirectoryIndex files;
  std::vector<fs::path> paths;
  for (fs::directory_iterator it(dir, ec), end; !ec && it != end; it.increment(ec)) {
    if (!it->is_regular_file(ec)) continue;
    paths.push_back(it->path());
    files.emplace(ToLower(SystemName(it->path())), it->path());
  }
  if (ec) {
    if (err) *err = dir.string() + ": " + ec.message();
    return false;
  }
  std::sort(paths.begin(), paths.end());
  const std::set<std::string> classes = ControlClasses(paths, files);
  for (const auto& path : paths) {
    const std::string ext = ToLower(path.extension().string());
    const std::string name = SystemName(path);
    if (ext == ".vbp") {
      CheckProjectFile(path, name, files, findings);
      continue;
    }
    if (std::find(std::begin(kCheckedExtensions), std::end(kCheckedExtensions), ext) ==
        std::end(kCheckedExtensions))
      continue;
    std::string bytes;
    std::string readErr;
    if (!ReadFileBytes(path, &bytes, &readErr)) {
      findings->push_back({name, 0, "cannot be read: " + readErr, "", false});
      continue;
    }
    const std::vector<std::string> lines = SplitLines(bytes);
    const size_t first = findings->size();
    for (auto& f : CheckVb6File(name, bytes)) {
      const std::string text = f.Line >= 1 && f.Line <= lines.size() ? lines[f.Line - 1] : "";
      findings->push_back({name, f.Line, std::move(f.Problem), text, f.Loads});
    }
    if (ext != ".bas" && ext != ".cls") CheckReferences(name, lines, files, classes, findings);
    std::stable_sort(
        findings->begin() + static_cast<long>(first), findings->end(),
        [](const ProjectFinding& a, const ProjectFinding& b) { return a.Line < b.Line; });
  }
  return true;
}

std::string FormatFinding(const ProjectFinding& f) {
  return f.File + ":" + std::to_string(f.Line) + ": " + (f.Loads ? "warning: " : "") + f.Problem;
}

namespace {

void Record(ConversionSession& s, const ProjectFinding& f) {
  ++s.CheckFindings;
  if (!f.Loads) ++s.BlockingFindings;
  if (s.SupportDb)
    s.SupportDb->AddReportOutput({fs::path(f.File).stem().string(), kReasonWouldNotLoad, f.Text,
                                  static_cast<int>(f.Line), f.Problem, ""});
}

}  // namespace

std::vector<ProjectFinding> CheckComponentText(const std::filesystem::path& file,
                                               const std::vector<std::string>& lines) {
  const std::string name = SystemName(file);
  std::vector<ProjectFinding> findings;
  for (auto& f : CheckVb6Lines(name, lines))
    findings.push_back({name, f.Line, std::move(f.Problem),
                        f.Line >= 1 && f.Line <= lines.size() ? lines[f.Line - 1] : "", f.Loads});
  return findings;
}

void RecordCheckFindings(ConversionSession& s, const std::vector<ProjectFinding>& findings) {
  for (const auto& f : findings) Record(s, f);
}

void CheckComponent(ConversionSession& s, const std::string& component) {
  if (const ProjectComponent* c = s.ActiveProject->Find(component); c && c->Text)
    RecordCheckFindings(s, CheckComponentText(c->File, c->Text->Lines()));
}

bool WriteCheckedComponent(ConversionSession& s, const std::string& component, std::string* err) {
  CheckComponent(s, component);
  return s.ActiveProject->WriteComponent(component, *s.Output, err);
}

int CheckConversionOutput(ConversionSession& s) {
  if (s.ActiveProject) {
    const std::string file = s.ProjectFile;
    if (!IsVb6Identifier(s.ActiveProject->Name))
      Record(s, {file, 0, "project name \"" + s.ActiveProject->Name + "\" is no Visual Basic name",
                 "", false});
    std::map<std::string, int> seen;
    for (const auto& c : s.ActiveProject->Components())
      if (++seen[ToLower(c.Name)] == 2)
        Record(s, {file, 0, "a second component named " + c.Name, "", false});
  }
  if (s.BlockingFindings > 0 && s.SupportDb)
    s.SupportDb->AddRunNote(
        "", std::to_string(s.BlockingFindings) +
                " place(s) in the generated files would keep Visual Basic 6 from loading or "
                "compiling the project; the analysis names each (morvane check OUTDIR lists them)");
  return s.CheckFindings;
}

}  // namespace morvane

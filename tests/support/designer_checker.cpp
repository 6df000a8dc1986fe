// The designer checker: reads each .dsr as lines of "Key = Value" inside
// nested blocks, and checks the counts and names that VB6 relies on when it
// loads a DataReport or a data environment.
#include "support/designer_checker.h"

#include <map>
#include <set>
#include <string_view>

#include "platform/text_file.h"
#include "session/naming.h"

namespace morvane::test {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kDataReport = "{78E93846-85FD-11D0-8487-00A0C90DC8A9}";
constexpr std::string_view kDataEnvironment = "{C0E45035-5775-11D0-B388-00A0C9055D8E}";

// The class of each item type.
const std::map<std::string, std::string> kItemClasses = {
    {"3", "{1C13A8E1-A0B6-11D0-848E-00A0C90DC8A9}"},
    {"4", "{1C13A8E2-A0B6-11D0-848E-00A0C90DC8A9}"},
    {"5", "{1C13A8E3-A0B6-11D0-848E-00A0C90DC8A9}"},
    {"6", "{1C13A8E4-A0B6-11D0-848E-00A0C90DC8A9}"},
    {"7", "{1C13A8E5-A0B6-11D0-848E-00A0C90DC8A9}"},
    {"13", "{49FF6930-2B8C-11D1-8DA9-00A0C90FFFC2}"},
};

struct Line {
  int number;
  std::string key;    // before " =" or the whole line
  std::string value;  // behind "=", blanks trimmed, quotes kept
};

std::string Unquoted(const std::string& v) {
  if (v.size() >= 2 && v.front() == '"' && v.back() == '"') return v.substr(1, v.size() - 2);
  return v;
}

// The designer part of a file: the lines up to the End of its Begin block.
std::vector<Line> DesignerLines(const std::vector<std::string>& raw) {
  std::vector<Line> out;
  for (size_t i = 0; i < raw.size(); ++i) {
    const std::string t = TrimBlanks(raw[i]);
    if (StartsWithNoCase(t, "Attribute ")) break;
    Line l{static_cast<int>(i + 1), t, ""};
    if (size_t eq = t.find('='); eq != std::string::npos && !StartsWithNoCase(t, "Begin")) {
      l.key = TrimBlanks(t.substr(0, eq));
      l.value = TrimBlanks(t.substr(eq + 1));
    }
    out.push_back(l);
  }
  return out;
}

// The word behind a prefix ("BeginProperty Item3 {..}" -> "Item3").
std::string Word(const std::string& text, size_t from) {
  size_t end = text.find(' ', from);
  return text.substr(from, end == std::string::npos ? std::string::npos : end - from);
}

class FileCheck {
 public:
  FileCheck(std::string file, std::vector<std::string>* problems)
      : file_(std::move(file)), problems_(problems) {}

  void Problem(int line, const std::string& what) {
    problems_->push_back(file_ + ":" + std::to_string(line) + ": " + what);
  }

  // Begin/End and BeginProperty/EndProperty nest properly.
  void Balance(const std::vector<Line>& lines) {
    std::vector<std::pair<bool, int>> stack;  // property block?, line
    for (const Line& l : lines) {
      if (StartsWithNoCase(l.key, "BeginProperty ")) {
        stack.push_back({true, l.number});
      } else if (StartsWithNoCase(l.key, "Begin ")) {
        stack.push_back({false, l.number});
      } else if (EqualsNoCase(l.key, "EndProperty") || EqualsNoCase(l.key, "End")) {
        const bool property = EqualsNoCase(l.key, "EndProperty");
        if (stack.empty() || stack.back().first != property) {
          Problem(l.number, l.key + " without its Begin");
          return;
        }
        stack.pop_back();
      }
    }
    if (!stack.empty()) Problem(stack.back().second, "block not closed");
  }

  void DataReport(const std::vector<Line>& lines, const std::set<std::string>& members) {
    int sections = 0, declaredSections = -1, sectionLine = 0;
    int items = 0, declaredItems = -1, itemsLine = 0;
    std::string pendingType;
    int depth = 0, sectionDepth = -1;
    auto closeSection = [&]() {
      if (sectionDepth < 0) return;
      if (declaredItems != items)
        Problem(itemsLine, "NumControls = " + std::to_string(declaredItems) + " but " +
                               std::to_string(items) + " items");
      sectionDepth = -1;
    };
    for (const Line& l : lines) {
      if (StartsWithNoCase(l.key, "BeginProperty ")) {
        ++depth;
        const std::string name = Word(l.key, 14);
        if (StartsWithNoCase(name, "Section")) {
          ++sections;
          sectionDepth = depth;
          items = 0;
          declaredItems = -1;
        } else if (StartsWithNoCase(name, "Item") && depth == sectionDepth + 1) {
          const std::string number = name.substr(4);
          if (number != std::to_string(items))
            Problem(l.number, name + " where Item" + std::to_string(items) + " belongs");
          const size_t brace = l.key.find('{');
          const std::string guid = brace == std::string::npos ? "" : l.key.substr(brace);
          auto known = kItemClasses.find(pendingType);
          if (known == kItemClasses.end())
            Problem(l.number, "item of unknown type " + pendingType);
          else if (known->second != guid)
            Problem(l.number, "item of type " + pendingType + " with class " + guid);
          ++items;
          pendingType.clear();
        }
      } else if (EqualsNoCase(l.key, "EndProperty")) {
        if (depth == sectionDepth) closeSection();
        --depth;
      } else if (EqualsNoCase(l.key, "NumSections")) {
        declaredSections = std::stoi(l.value);
        sectionLine = l.number;
      } else if (EqualsNoCase(l.key, "NumControls")) {
        declaredItems = std::stoi(l.value);
        itemsLine = l.number;
      } else if (StartsWithNoCase(l.key, "ItemType")) {
        pendingType = l.value;
      } else if (EqualsNoCase(l.key, "DataMember")) {
        const std::string member = Unquoted(l.value);
        if (!members.count(ToLower(member)))
          Problem(l.number, "DataMember \"" + member + "\" is not in the data environment");
      }
    }
    if (declaredSections != sections)
      Problem(sectionLine, "NumSections = " + std::to_string(declaredSections) + " but " +
                               std::to_string(sections) + " sections");
  }

  // The commands and groupings of the environment, lower case.
  std::set<std::string> Environment(const std::vector<Line>& lines) {
    std::set<std::string> members;
    int declared = -1, declaredLine = 0, recordsets = 0;
    for (const Line& l : lines) {
      if (StartsWithNoCase(l.key, "BeginProperty Recordset")) ++recordsets;
      if (EqualsNoCase(l.key, "NumRecordsets")) {
        declared = std::stoi(l.value);
        declaredLine = l.number;
      }
      if (EqualsNoCase(l.key, "CommandName") || EqualsNoCase(l.key, "GroupingName")) {
        const std::string name = Unquoted(l.value);
        if (!members.insert(ToLower(name)).second)
          Problem(l.number, "a second command or grouping \"" + name + "\"");
      }
    }
    if (declared != recordsets)
      Problem(declaredLine, "NumRecordsets = " + std::to_string(declared) + " but " +
                                std::to_string(recordsets) + " commands");
    return members;
  }

 private:
  std::string file_;
  std::vector<std::string>* problems_;
};

}  // namespace

std::vector<std::string> CheckReportDesigners(const fs::path& dir) {
  std::vector<std::string> problems;
  std::map<std::string, std::vector<Line>> reports;
  std::set<std::string> members;
  for (const auto& entry : fs::directory_iterator(dir)) {
    if (!EqualsNoCase(entry.path().extension().string(), ".dsr")) continue;
    const std::string name = entry.path().filename().string();
    std::vector<std::string> raw;
    if (!ReadTextLines(entry.path(), &raw, nullptr)) {
      problems.push_back(name + ":0: cannot be read");
      continue;
    }
    std::vector<Line> lines = DesignerLines(raw);
    FileCheck check(name, &problems);
    check.Balance(lines);
    const std::string head = lines.size() > 1 ? lines[1].key : "";
    if (head.find(kDataEnvironment) != std::string::npos)
      members = check.Environment(lines);
    else if (head.find(kDataReport) != std::string::npos)
      reports[name] = std::move(lines);
    else
      problems.push_back(name + ":2: a designer of unknown class");
  }
  for (const auto& [name, lines] : reports) FileCheck(name, &problems).DataReport(lines, members);
  return problems;
}

}  // namespace morvane::test

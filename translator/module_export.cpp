// Module export and the move of declaration blocks.
#include "translator/module_export.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "platform/project_model.h"
#include "platform/source_tree.h"
#include "platform/text_file.h"
#include "session/conversion_session.h"
#include "session/converters.h"
#include "session/naming.h"
#include "translator/declaration_section.h"

namespace morvane {

namespace {

constexpr std::string_view kDeclarationsMark = "'MORVANE Declarations Code for ";
constexpr std::string_view kEndDeclarationsMark = "'MORVANE End Declarations Code for ";

// The class header lines above the name, without and with the VB6-only keys.
constexpr std::string_view kClassHeadStart[] = {"VERSION 1.0 CLASS", "BEGIN",
                                                "MultiUse = -1  'True"};
constexpr std::string_view kClassHeadVb6[] = {"Persistable = 0", "DataBindingBehavior = 0",
                                              "DataSourceBehavior = 0", "MTSTransactionMode = 0"};
constexpr std::string_view kClassAttributes[] = {
    "Attribute VB_GlobalNameSpace = False",
    "Attribute VB_Creatable = True",
    "Attribute VB_PredeclaredId = False",
    "Attribute VB_Exposed = False",
};

AccessObjectKind KindOf(int mode) {
  if (mode == kModeForm) return AccessObjectKind::Form;
  if (mode == kModeReport) return AccessObjectKind::Report;
  return AccessObjectKind::Module;
}

std::string NameAttribute(const std::string& name) {
  return "Attribute VB_Name = \"" + name + "\"";
}

// Moves the lines out of `code`, which the caller no longer reads.
void AddCodeLines(ModuleCode& code, int start, int count, std::vector<std::string>* out) {
  for (int i = std::max(start, 1); i < start + count && i <= code.CountOfLines(); ++i)
    out->push_back(std::move(code.Code[static_cast<size_t>(i - 1)]));
}

std::string TrimmedStart(const std::string& line) {
  size_t first = line.find_first_not_of(" \t");
  return first == std::string::npos ? std::string() : line.substr(first);
}

// All code lines of the module, exactly `count` of them.
std::vector<std::string> ReadCode(const CodeModule& code, int count) {
  std::vector<std::string> lines = SplitLines(code.Lines(1, count));
  lines.resize(static_cast<size_t>(std::max(count, 0)));
  return lines;
}

}  // namespace

bool ExportModuleText(ConversionSession& s, const std::string& name, int mode, TextDocument& into) {
  if (!s.AccessApp) return false;
  ModuleCode code;
  if (!s.AccessApp->LoadModule(KindOf(mode), name, &code, nullptr)) return false;

  std::vector<std::string> out;
  if (mode == kModeForm || mode == kModeReport) {
    const ComponentRole role = mode == kModeReport ? ComponentRole::Report : ComponentRole::Form;
    out.push_back(NameAttribute(s.Names.Name(role, name).VbName));
  } else {
    const std::string unique = s.Names.Name(ComponentRole::Module, name).VbName;
    if (code.Type == 1) {
      out.assign(std::begin(kClassHeadStart), std::end(kClassHeadStart));
      if (!s.Options.IsVb5)
        out.insert(out.end(), std::begin(kClassHeadVb6), std::end(kClassHeadVb6));
      out.push_back("End");
      out.push_back(NameAttribute(unique));
      out.insert(out.end(), std::begin(kClassAttributes), std::end(kClassAttributes));
    } else {
      out.push_back(NameAttribute(unique));
    }
  }

  const int declarations = std::clamp(code.CountOfDeclarationLines, 0, code.CountOfLines());
  AddCodeLines(code, 1, declarations, &out);
  // In a form's text an empty line sets the procedures apart from the
  // declarations, even when there are none.
  if (mode == kModeForm) out.emplace_back();
  AddCodeLines(code, declarations + 1, code.CountOfLines() - declarations, &out);

  into.AppendLines(std::move(out));
  return true;
}

void MoveDeclarationBlocks(ConversionSession& s, const std::string& name) {
  const ProjectComponent* component = s.ActiveProject ? s.ActiveProject->Find(name) : nullptr;
  if (!component) return;
  CodeModule code = component->Code();

  const int n = code.CountOfLines();
  std::vector<std::string> lines = ReadCode(code, n);
  for (int i = code.CountOfDeclarationLines() + 1; i <= n; ++i) {
    if (!TrimmedStart(lines[static_cast<size_t>(i - 1)]).starts_with(kDeclarationsMark)) continue;
    int end = i + 1;
    while (end <= n &&
           !TrimmedStart(lines[static_cast<size_t>(end - 1)]).starts_with(kEndDeclarationsMark))
      ++end;
    if (end > n) continue;  // no end mark: the block stays where it is
    // The block runs through the end mark and the one line behind it.
    const int count = std::min(end + 1, n) - i + 1;
    const std::string text = code.Lines(i, count);
    code.DeleteLines(i, count);
    code.AddFromString(text);
    lines = ReadCode(code, n);
  }

  // A line that two generators put into the declarations keeps its first
  // copy. Each deletion moves the section's end up by a line, so that the
  // search never reaches into the procedures behind it (where a repeated
  // "End Sub" is no declaration).
  int declarations = code.CountOfDeclarationLines();
  lines = ReadCode(code, code.CountOfLines());
  for (int i = 1; i <= declarations && i <= static_cast<int>(lines.size());) {
    if (RepeatsDeclaration(lines, static_cast<size_t>(i - 1))) {
      code.DeleteLines(i, 1);
      lines.erase(lines.begin() + (i - 1));
      --declarations;
    } else {
      ++i;
    }
  }
}

}  // namespace morvane

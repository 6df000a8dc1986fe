// The stack of #If blocks.
#include "translator/conditional_compilation.h"

#include "session/analysis_writers.h"
#include "session/compiler_conditions.h"
#include "session/naming.h"
#include "translator/rule_outcomes.h"
#include "translator/text_helpers.h"
#include "translator/vb_code.h"
#include "translator/vba64_rules.h"

namespace morvane {

namespace {

// Whether the statement's first character past its blanks is a "#": only
// such a statement can be a directive, and nearly none is.
bool MayBeDirective(const std::string& statement) {
  for (char c : statement)
    if (c != ' ' && c != '\t') return c == '#';
  return false;
}

// The directive word of a statement ("#if", "#elseif", "#else", "#end",
// "#const") and the text behind it.
std::pair<std::string, std::string> Directive(const std::string& statement) {
  // The code part begins with the statement's first character past its
  // blanks, so a statement whose first one is no "#" is no directive.
  if (!MayBeDirective(statement)) return {};
  const std::string code = CodePart(statement);
  if (code.empty() || code[0] != '#') return {};
  size_t end = 1;
  while (end < code.size() && IsIdentifierChar(static_cast<unsigned char>(code[end]))) ++end;
  return {ToLower(code.substr(0, end)), TrimBlanks(std::string_view(code).substr(end))};
}

// The condition of "#If x Then": x.
std::string Condition(const std::string& rest) {
  const size_t then = FindWord(rest, "Then", 0, kInCode);
  return TrimBlanks(std::string_view(rest).substr(0, then));
}

std::optional<bool> Holds(const ModuleTranslation& t, const std::string& rest) {
  return CompilerCondition(Condition(rest), t.CompilerConstants);
}

}  // namespace

void BeforeDirective(ModuleTranslation& t, const std::string& statement) {
  if (!MayBeDirective(statement)) return;
  const auto [word, rest] = Directive(statement);
  if (word != "#end" || t.Conditionals.empty()) return;
  ModuleTranslation::Conditional& c = t.Conditionals.back();
  if (c.FirstBranchEnd == 0) c.FirstBranchEnd = t.Output.size();
  // "#If VBA7 Then" alone: the code was written for VBA7 only, which runs
  // 32-bit too; the branch for Visual Basic 6 is its 32-bit reading.
  if (!c.VbaSevenOnly || c.Taken || c.HadElse || !c.ParentActive) return;
  std::vector<std::string> branch(t.Output.begin() + static_cast<long>(c.FirstBranchBegin),
                                  t.Output.begin() + static_cast<long>(c.FirstBranchEnd));
  t.Write("#Else");
  for (const auto& line : branch) t.Write(Vba64Rewrite(line));
  ReportRule(t, kReason64Bit, "#If VBA7 Then", "#Else branch written for Visual Basic 6");
  Bump(t.LinesPotentiallyConverted);
}

void AfterDirective(ModuleTranslation& t, const std::string& statement) {
  if (!MayBeDirective(statement)) return;
  const auto [word, rest] = Directive(statement);
  if (word == "#if") {
    ModuleTranslation::Conditional c;
    c.ParentActive = t.Compiled();
    // A condition that cannot be read leaves every branch to the rules.
    const auto holds = Holds(t, rest);
    c.Unknown = !holds;
    c.BranchActive = holds.value_or(true);
    c.Taken = c.BranchActive;
    c.VbaSevenOnly = EqualsNoCase(Condition(rest), "VBA7");
    c.FirstBranchBegin = t.Output.size();
    t.Conditionals.push_back(c);
  } else if ((word == "#elseif" || word == "#else") && !t.Conditionals.empty()) {
    ModuleTranslation::Conditional& c = t.Conditionals.back();
    if (c.FirstBranchEnd == 0 && t.Output.size() > 0) c.FirstBranchEnd = t.Output.size() - 1;
    if (word == "#else") c.HadElse = true;
    if (c.Unknown) {
      c.BranchActive = true;
    } else if (word == "#else") {
      c.BranchActive = !c.Taken;
    } else {
      const auto holds = Holds(t, rest);
      if (!holds) c.Unknown = true;
      c.BranchActive = !c.Taken && holds.value_or(true);
    }
    c.Taken = c.Taken || c.BranchActive;
  } else if (word == "#end") {
    if (!t.Conditionals.empty()) t.Conditionals.pop_back();
  } else if (word == "#const" && t.Compiled()) {
    const size_t equals = rest.find('=');
    if (equals == std::string::npos) return;
    t.CompilerConstants.emplace_back(ToLower(TrimBlanks(rest.substr(0, equals))),
                                     TrimBlanks(rest.substr(equals + 1)));
  }
}

}  // namespace morvane

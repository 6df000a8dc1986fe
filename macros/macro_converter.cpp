// The macro reader: walks the saved text of each macro, builds one Function
// per macro (or per named macro of a group), and turns each action into a
// statement through the mapping tables.
#include "macros/macro_converter.h"

#include <array>
#include <filesystem>
#include <optional>

#include "design/design_store.h"
#include "design/form_design.h"
#include "macros/macro_expression.h"
#include "macros/macro_names.h"
#include "macros/macro_tables.h"
#include "platform/catalog.h"
#include "platform/export_parser.h"
#include "platform/output_directory.h"
#include "platform/source_tree.h"
#include "platform/support_db.h"
#include "platform/text_file.h"
#include "session/conversion_session.h"
#include "session/naming.h"
#include "session/analysis_writers.h"

namespace morvane {

namespace {

constexpr long kMsgBoxAction = 22;     // a Beep before the statement
constexpr long kRunCodeAction = 33;    // "Call Foo()" becomes "Foo"
constexpr long kStopMacroAction = 45;  // "Exit" becomes "Exit Function"
constexpr int kTextArgument = 4;
constexpr size_t kMaxArgs = 10;

struct MacroActionRecord {
  std::array<std::string, kMaxArgs + 1> Args;  // from 1
  size_t Count = 0;
  std::string Condition;
  std::string Action;
};

std::string ReplaceAllNoCase(const std::string& text, const std::string& find,
                             const std::string& with) {
  std::string out;
  size_t from = 0;
  for (size_t at; (at = FindNoCase(text, find, from)) != std::string::npos; from = at + find.size())
    out += text.substr(from, at - from) + with;
  return out + text.substr(from);
}

std::string RemoveChar(std::string text, char c) {
  std::erase(text, c);
  return text;
}

class MacroWriter {
 public:
  MacroWriter(ConversionSession& s, const MacroTables& tables, int contextProbe)
      : s_(s), tables_(tables), contextProbe_(contextProbe) {}

  // Walks one macro; false when its text cannot be read.
  bool ConvertMacroText(const std::string& macroName, std::string subName, std::string* err);
  // Walks the text of a macro embedded in a form or report's event, as the
  // procedure `procName`.
  void ConvertEmbeddedMacro(const std::vector<std::string>& lines, const std::string& procName);
  const std::string& Output() const { return out_; }
  bool ContextFound() const { return contextProbe_ == 2; }

 private:
  void AddMacroLine(std::string text);
  void EmitAction();
  void ConvertActionArgument(long actionId, int index, std::string& value);
  void FinishProcedure();
  void BuildProcWrapper();
  void ReportAction(const std::string& why);
  void Reset();
  void Walk(std::vector<std::string> lines, const std::string& macroName, std::string subName,
            bool grouped);
  void ReportKeptChoice(const std::string& code, const std::string& why);

  ConversionSession& s_;
  const MacroTables& tables_;
  int contextProbe_;
  std::string out_;
  std::string procName_;
  std::string macroHead_, macroBody_, macroTail_;
  bool inIfBlock_ = false;
  bool needsContext_ = false;
  MacroActionRecord record_;
  // Where the body's last "End If" of a conditional action starts, so that
  // an action whose condition is "..." can join that block.
  std::optional<size_t> lastEndIf_;
  // An empty row of a macro of its own was passed over; the next action
  // says so in the analysis.
  bool passedGap_ = false;
};

void MacroWriter::AddMacroLine(std::string text) {
  // Templates whose trailing arguments are empty lose one separator.
  if (!text.empty() && (text.back() == ' ' || text.back() == ',')) text.pop_back();
  macroBody_ += text + "\r\n";
}

void MacroWriter::ReportAction(const std::string& why) {
  if (!s_.SupportDb || contextProbe_ > 0) return;
  std::string line = record_.Action;
  for (size_t i = 1; i <= record_.Count; ++i) line += (i == 1 ? " " : ", ") + record_.Args[i];
  if (!record_.Condition.empty()) line = "If " + record_.Condition + ": " + line;
  s_.SupportDb->AddReportOutput({"MacroCode", kReasonNoCounterpart, line, 0, why, procName_});
}

void MacroWriter::ReportKeptChoice(const std::string& code, const std::string& why) {
  if (!s_.SupportDb || contextProbe_ > 0) return;
  s_.SupportDb->AddReportOutput({"MacroCode", kReasonKeptChoice, code, 0, why, procName_});
}

void MacroWriter::ConvertActionArgument(long actionId, int index, std::string& value) {
  const MacroActionArg* arg = tables_.FindArg(actionId, index);
  // A missing row leaves the argument as it stands; the rest of the macro
  // is converted all the same.
  const MacroActionArg plain;
  if (!arg) arg = &plain;
  if (arg->AutoExpression && arg->ArgumentType == kTextArgument) {
    std::string text = !value.empty() && value[0] == '=' ? value.substr(1) : value;
    value = ConvertMacroExpression(text, &needsContext_);
  } else if (!value.empty() && value[0] == '=') {
    std::string text = value.substr(1);
    value = ConvertMacroExpression(text, &needsContext_);
  } else if (arg->ArgumentType == kTextArgument) {
    value = "\"" + DoubleQuotes(value) + "\"";
  } else if (!value.empty() && arg->LookupBase > 0) {
    const std::string* text = tables_.FindLookup(static_cast<double>(arg->LookupBase) + Val(value));
    value = text ? *text : std::string();
  }
}

void MacroWriter::EmitAction() {
  MacroActionRecord& r = record_;
  // RunCommand's argument would be mapped by a function private to Access;
  // the stored command number is already the constant's value.
  const MacroAction* action = tables_.FindAction(r.Action);
  if (!action) {
    ReportAction("unknown macro action; nothing written");
    return;
  }
  std::string s = action->MapsTo.value_or("");
  for (int i = 1; i <= action->NumArgs && i <= static_cast<int>(kMaxArgs); ++i) {
    ConvertActionArgument(action->ActionID, i - 1, r.Args[i]);
    s = ReplaceAllNoCase(s, "|" + std::to_string(i), r.Args[i]);
  }
  const std::string c = TrimBlanks(r.Condition);
  bool joined = false;
  if (c.empty()) {
    if (inIfBlock_) {
      inIfBlock_ = false;
      macroBody_ += "End If\r\n";
    }
    lastEndIf_.reset();
  } else if (c == "...") {
    r.Condition.clear();
    // The action shares the condition of the action before: it goes into
    // that action's block, which is closed again behind it.
    if (lastEndIf_ && macroBody_.compare(*lastEndIf_, 8, "End If\r\n") == 0) {
      macroBody_.erase(*lastEndIf_, 8);
      joined = true;
    }
  } else {
    AddMacroLine("If (" + c + ") Then");
    inIfBlock_ = true;
  }
  if (action->ActionID == kMsgBoxAction && r.Args[2] != "0") AddMacroLine("Beep");
  if (action->ActionID == kStopMacroAction) s += " Function";
  if (action->ActionID == kRunCodeAction && s.size() >= 2 && s.ends_with("()"))
    s = s.size() > 7 ? s.substr(5, s.size() - 7) : std::string();
  // A template whose argument is empty can leave half a statement ("x =",
  // "Call"): that is kept as a comment.
  const std::string statement = TrimBlanks(s);
  if (!statement.empty() && (statement.back() == '=' || statement == "Call")) {
    ReportAction("an argument the statement needs is empty; kept as a comment");
    s = "'MORVANE " + statement;
  }
  if (!s.empty())
    AddMacroLine(s);
  else
    ReportAction("no Visual Basic counterpart; nothing written");
  if (joined) {
    lastEndIf_ = macroBody_.size();
    macroBody_ += "End If\r\n";
  } else if (!r.Condition.empty() && inIfBlock_) {
    inIfBlock_ = false;
    lastEndIf_ = macroBody_.size();
    macroBody_ += "End If\r\n";
  } else if (!c.empty() && c != "...") {
    lastEndIf_.reset();
  }
}

void MacroWriter::BuildProcWrapper() {
  if (procName_.empty()) return;
  const std::string rule = "'" + std::string(60, '-') + "\r\n";
  macroHead_ = rule + "' " + procName_ + "\r\n'\r\n" + rule + "Function " + procName_ +
               " ()\r\nOn Error GoTo " + procName_ + "_Err\r\n";
  if (needsContext_) {
    macroHead_ += "With CodeContextObject\r\n";
    if (contextProbe_ == 1) contextProbe_ = 2;
  }
  macroTail_.clear();
  if (inIfBlock_) {
    macroTail_ += "End If\r\n";
    inIfBlock_ = false;
  }
  if (needsContext_) macroTail_ += "End With\r\n";
  macroTail_ += "\r\n" + procName_ + "_Exit:\r\nExit Function\r\n\r\n" + procName_ +
                "_Err:\r\nMsgBox Error$\r\nResume " + procName_ +
                "_Exit\r\n\r\nEnd Function\r\n\r\n";
}

void MacroWriter::FinishProcedure() {
  BuildProcWrapper();
  // Actions of a group that follow an empty row and no macro name belong to
  // no macro: Access never runs them. Written as they are, they would stand
  // outside any procedure; they are kept as comments.
  if (procName_.empty() && !macroBody_.empty()) {
    std::string commented;
    for (const auto& line : SplitLines(macroBody_))
      if (!line.empty()) commented += "'MORVANE " + line + "\r\n";
    ReportKeptChoice(TrimBlanks(SplitLines(macroBody_).front()),
                     "actions behind an empty row of a macro group, outside any macro; kept as "
                     "comments");
    macroBody_ = commented;
  }
  if (!macroHead_.empty() || !macroBody_.empty() || !macroTail_.empty())
    out_ += macroHead_ + "\r\n" + macroBody_ + "\r\n" + macroTail_ + "\r\n";
  macroHead_.clear();
  macroBody_.clear();
  macroTail_.clear();
  needsContext_ = false;
  lastEndIf_.reset();
}

// Argument and comment values are decoded from the export's quoting (\" and
// \\ and octal escapes); a value that is not quoted is taken as it stands.
std::string DecodedValue(const std::string& line, size_t eq) {
  std::string rest = TrimBlanks(std::string_view(line).substr(eq + 1));
  std::string value;
  size_t end = 0;
  if (DecodeQuotedPiece(rest, &value, &end)) return value;
  return line.size() >= eq + 3 ? line.substr(eq + 2, line.size() - eq - 3) : std::string();
}

void MacroWriter::Reset() {
  inIfBlock_ = false;
  needsContext_ = false;
  record_ = MacroActionRecord{};
  macroHead_.clear();
  macroBody_.clear();
  macroTail_.clear();
  lastEndIf_.reset();
  passedGap_ = false;
}

bool MacroWriter::ConvertMacroText(const std::string& macroName, std::string subName,
                                   std::string* err) {
  Reset();
  std::vector<std::string> lines;
  if (!s_.AccessApp || !s_.AccessApp->LoadMacroText(macroName, &lines, err)) return false;
  for (auto& line : lines) line = TrimBlanks(line);

  bool grouped = false;
  for (const auto& line : lines) {
    size_t eq = line.find('=');
    if (eq != std::string::npos && TrimBlanks(std::string_view(line).substr(0, eq)) == "MacroName")
      grouped = true;
  }
  if (!grouped) {
    const size_t dot = macroName.find('.');
    procName_ = MacroIdentifier(dot == std::string::npos ? macroName : macroName.substr(0, dot));
  } else {
    procName_.clear();
  }
  Walk(std::move(lines), macroName, std::move(subName), grouped);
  return true;
}

void MacroWriter::ConvertEmbeddedMacro(const std::vector<std::string>& text,
                                       const std::string& procName) {
  Reset();
  std::vector<std::string> lines = text;
  for (auto& line : lines) line = TrimBlanks(line);
  procName_ = procName;
  Walk(std::move(lines), procName, std::string(), false);
  // The probe looks at the one procedure the text holds.
  if (contextProbe_ == 1) BuildProcWrapper();
}

// A long value goes on in the next line as another quoted piece; the pieces
// are one value.
std::vector<std::string> JoinValuePieces(std::vector<std::string> lines) {
  std::vector<std::string> out;
  for (auto& line : lines) {
    if (!out.empty() && line.size() >= 2 && line.front() == '"' && line.back() == '"' &&
        out.back().find('=') != std::string::npos && out.back().size() >= 2 &&
        out.back().back() == '"') {
      out.back().pop_back();
      out.back() += line.substr(1);
      continue;
    }
    out.push_back(std::move(line));
  }
  return out;
}

void MacroWriter::Walk(std::vector<std::string> lines, const std::string& macroName,
                       std::string subName, bool grouped) {
  std::string previous;
  for (const auto& line : JoinValuePieces(std::move(lines))) {
    const size_t eq = line.find('=');
    if (eq != std::string::npos) {
      const std::string key = TrimBlanks(std::string_view(line).substr(0, eq));
      // The value of Key ="text" stands between the two quotes.
      const std::string raw =
          line.size() >= eq + 3 ? line.substr(eq + 2, line.size() - eq - 3) : std::string();
      if (key == "Comment") {
        std::string text = DecodedValue(line, eq);
        for (char& ch : text)
          if (ch == '\r' || ch == '\n') ch = ' ';
        AddMacroLine("'" + text);
      } else if (key == "MacroName") {
        FinishProcedure();
        subName = RemoveChar(line.substr(eq + 1), '"');
        procName_ = MacroProcName(s_, macroName, subName);
      } else if (key == "Condition") {
        inIfBlock_ = true;
        // The condition is read from the export's quoting, as arguments
        // are: with the backslashes of its escapes dropped afterwards, a
        // string literal in it would change ("*" read as " * ").
        std::string text = DecodedValue(line, eq);
        bool joined = false;
        record_.Condition = ConvertMacroExpression(text, &needsContext_, &joined);
        std::string plain = raw;
        bool ignored = false;
        if (joined ||
            RemoveChar(ConvertMacroExpression(plain, &ignored), '\\') != record_.Condition)
          ReportKeptChoice(raw, record_.Condition);
      } else if (key == "Action") {
        record_.Action = raw;
      } else if (key == "Argument") {
        if (record_.Count < kMaxArgs) record_.Args[++record_.Count] = DecodedValue(line, eq);
      }
    } else if (previous == "Begin" && line == "End") {
      // An empty row ends a macro of a group; in a macro of its own, as
      // Access runs it, it is only a gap between actions.
      if (grouped) {
        FinishProcedure();
        procName_.clear();
      } else {
        passedGap_ = true;
      }
    } else if (line == "End") {
      if (!record_.Action.empty()) {
        if (passedGap_)
          ReportKeptChoice(record_.Action,
                           "an empty row before this action does not end the macro; the "
                           "action stays in its procedure");
        passedGap_ = false;
        EmitAction();
      }
      inIfBlock_ = false;
      record_ = MacroActionRecord{};
    }
    previous = line;
  }
  if (contextProbe_ <= 0) FinishProcedure();
}

// A macro embedded in an event of a form or report is named
// "<form>.<control>.<event>" or "<form>.<event>"; its lines come from the
// design. Empty when the name is no such macro.
std::optional<std::vector<std::string>> EmbeddedMacroLines(ConversionSession& s,
                                                           const std::string& name) {
  const size_t dot = name.find('.');
  if (!s.AccessApp || dot == std::string::npos) return std::nullopt;
  const std::string owner = name.substr(0, dot);
  DesignStore store(*s.AccessApp);
  for (auto kind : {AccessObjectKind::Form, AccessObjectKind::Report}) {
    const FormDesign* design = store.Open(kind, owner, nullptr);
    if (!design) continue;
    for (const auto& m : design->EmbeddedMacros())
      if (EqualsNoCase(m.Name, name)) return SplitLines(m.Text);
  }
  return std::nullopt;
}

bool IsTreeMacro(ConversionSession& s, const std::string& name) {
  if (!s.SourceDb) return false;
  for (const auto& m : s.SourceDb->ContainerDocuments("Scripts"))
    if (EqualsNoCase(m, name)) return true;
  return false;
}

}  // namespace

TextDocument MacroConverterImpl::ConvertMacros(ConversionSession& s) {
  if (s.OptionWordLength != 11 || !s.SourceDb) return TextDocument();
  MacroTables tables(s.SupportDb);
  std::string text = "Attribute VB_Name = \"MacroCode\"\r\nPublic CodeContextObject As VB.Form\r\n";
  const auto macros = s.SourceDb->ContainerDocuments("Scripts");
  bool any = !macros.empty();
  for (const auto& name : macros) {
    MacroWriter writer(s, tables, 0);
    std::string err;
    if (writer.ConvertMacroText(name, std::string(), &err))
      text += writer.Output();
    else if (s.SupportDb)
      s.SupportDb->AddRunNote(name, "the macro's text could not be read: " + err);
  }
  // Macros embedded in the events of forms and reports follow, each a
  // procedure named after its form, control and event.
  if (s.AccessApp) {
    std::optional<DesignStore> own;
    DesignStore& store = designs_ ? *designs_ : own.emplace(*s.AccessApp);
    for (auto [kind, container] : {std::pair{AccessObjectKind::Form, "Forms"},
                                   std::pair{AccessObjectKind::Report, "Reports"}}) {
      for (const auto& owner : s.SourceDb->ContainerDocuments(container)) {
        const FormDesign* design = store.Open(kind, owner, nullptr);
        if (!design) continue;
        for (const auto& m : design->EmbeddedMacros()) {
          const size_t dot = m.Name.find('.');
          MacroWriter writer(s, tables, 0);
          writer.ConvertEmbeddedMacro(
              SplitLines(m.Text), MacroProcName(s, m.Name.substr(0, dot), m.Name.substr(dot + 1)));
          text += writer.Output();
          any = true;
        }
      }
    }
  }
  // A source without macros of either kind gets no macro module.
  if (!any) return TextDocument();
  // The startup form, for whoever replaces the macros that opened it.
  if (auto startup = s.SourceDb->Property("StartupForm");
      !macros.empty() && startup && !startup->empty() && s.Output)
    s.Output->Write("_Startup.txt", *startup + "\r\n", nullptr);
  return TextDocument::FromBytes(text);
}

bool MacroNeedsContext(ConversionSession& s, std::string& name) {
  MacroTables tables(s.SupportDb);
  s.MacroProcNames.assign(1, std::string());
  s.MacroProcIdentifiers.clear();
  const size_t dot = name.find('.');
  const std::string macro = dot == std::string::npos ? name : name.substr(0, dot);
  const std::string sub = dot == std::string::npos ? std::string() : name.substr(dot + 1);
  name = MacroProcName(s, macro, sub);
  MacroWriter writer(s, tables, 1);
  if (!IsTreeMacro(s, macro)) {
    if (auto lines = EmbeddedMacroLines(s, macro + (sub.empty() ? "" : "." + sub))) {
      writer.ConvertEmbeddedMacro(*lines, name);
      return writer.ContextFound();
    }
  }
  writer.ConvertMacroText(macro, sub, nullptr);
  return writer.ContextFound();
}

}  // namespace morvane

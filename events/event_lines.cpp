// The building blocks of the event writers: event values into lines, new
// procedures, and renamed headers inside one form's code section.
#include "events/event_lines.h"

#include <utility>

#include "macros/macro_converter.h"
#include "platform/line_editor.h"
#include "platform/text_file.h"
#include "session/analysis_reasons.h"
#include "session/conversion_session.h"
#include "session/analysis_writers.h"

namespace morvane {

namespace {

// The translator's mark ahead of the code of each form in a form file; the
// form's name follows it.
constexpr std::string_view kFormCodeMark = "'MORVANE Form Code for ";

// A new procedure whose header the output file already holds.

}  // namespace

EventValue ClassifyEvent(const std::string& value) {
  if (value.empty()) return EventValue::Empty;
  if (value == kEventProcedure) return EventValue::EventProcedure;
  if (value[0] == '=') return EventValue::Expression;
  return EventValue::Macro;
}

std::string ExpressionCall(const std::string& value) {
  return "Call " + (value.empty() ? value : value.substr(1));
}

EventCode::EventCode(ConversionSession& s, std::string formName, std::string sectionForm,
                     std::string fileForm)
    : s_(s),
      formName_(std::move(formName)),
      sectionForm_(std::move(sectionForm)),
      fileForm_(std::move(fileForm)) {}

std::string EventCode::EventLine(const std::string& value, const std::string& ownLine) const {
  switch (ClassifyEvent(value)) {
    case EventValue::Empty:
      return std::string();
    case EventValue::EventProcedure:
      return ownLine;
    case EventValue::Expression:
      return ExpressionCall(value);
    case EventValue::Macro:
      return MacroCallText(value);
  }
  return std::string();
}

std::string EventCode::MacroCallText(std::string macroName) const {
  // The call also turns the macro's name into its procedure's name.
  if (MacroNeedsContext(s_, macroName))
    return "Set CodeContextObject = Me\r\nCall " + macroName +
           "\r\nSet CodeContextObject = Nothing";
  return "Call " + macroName;
}

void EventCode::WriteEventProc(const std::string& header,
                               const std::vector<std::string>& lines) const {
  SetAsideDuplicate(header);
  AppendProc(header, lines);
}

void EventCode::SetAsideDuplicate(const std::string& header) const {
  const int found = IsDuplicateLine(header);
  if (found == 0) return;
  // The event ran its expression, macro or generated code in Access, never
  // the module's procedure of the same name; that one keeps its code under
  // another name, so that the form does not define the procedure twice.
  const size_t paren = header.find('(');
  const std::string kept = paren == std::string::npos
                               ? header + "_NotEvent"
                               : header.substr(0, paren) + "_NotEvent" + header.substr(paren);
  ReportLine(s_, formName_, kReasonDuplicateProcedure, header, found, kept, header);
  RenameProcLine(header, kept);
}

void EventCode::AppendProc(const std::string& header, const std::vector<std::string>& lines) const {
  std::vector<std::string> text{"", header};
  text.insert(text.end(), lines.begin(), lines.end());
  text.emplace_back("End Sub");
  Append(text);
}

void EventCode::Append(const std::vector<std::string>& lines) const {
  s_.Form().Text.Append(JoinCrLf(lines));
}

void EventCode::RenameProcLine(const std::string& oldLine, const std::string& newLine) const {
  TextDocument& text = s_.Form().Text;
  std::vector<std::string>& lines = text.Lines();
  const std::string ownMark = std::string(kFormCodeMark) + sectionForm_;
  // The file's own form owns the text ahead of the first marked section.
  bool inSection = sectionForm_ == fileForm_;
  bool changed = false;
  for (auto& line : lines) {
    if (line == ownMark) {
      inSection = true;
    } else if (line.starts_with(kFormCodeMark)) {
      inSection = false;
    } else if (inSection && line == oldLine) {
      line = newLine;
      changed = true;
    }
  }
  if (changed) {
    text.SplitBreaks(0, lines.size());
    text.CloseLastLine();
  }
}

int EventCode::IsDuplicateLine(const std::string& line) const {
  return morvane::IsDuplicateLine(s_.Form().Text, line, 0);
}

void EventCode::InsertLine(const std::string& anchor, const std::string& text, int position) const {
  morvane::InsertLine(s_.Form().Text, anchor, text, position);
}

void EventCode::ChangeLine2(const std::string& oldLine, const std::string& newLine) const {
  morvane::ChangeLine2(s_.Form().Text, oldLine, newLine);
}

void EventCode::ChangeLine(const std::string& line) const {
  morvane::ChangeLine(s_.Form().Text, line, 0);
}

}  // namespace morvane

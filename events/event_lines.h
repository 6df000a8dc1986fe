// The building blocks of the event writers: what an event value stands for
// inside a procedure, new procedures appended to the form's output file,
// renamed procedure headers inside one form's code section, and the line
// edits on procedures that are already there.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace morvane {

struct ConversionSession;

// The value of an event property that sends the event to the form's module.
inline constexpr std::string_view kEventProcedure = "[Event Procedure]";

// What an event property holds, tried in this order.
enum class EventValue {
  Empty,
  EventProcedure,  // exactly "[Event Procedure]"
  Expression,      // begins with "="
  Macro,           // anything else: a macro's name
};
EventValue ClassifyEvent(const std::string& value);

// "Call " and an expression's value without its leading "=".
std::string ExpressionCall(const std::string& value);

// Line positions of InsertLine: directly behind the anchor, or at the end of
// the procedure that the anchor opens.
inline constexpr int kBehindHeader = 0;
inline constexpr int kEndOfProcedure = 1;

// The event code of one form's controls or events, written into the text of
// the session's current form.
class EventCode {
 public:
  // `formName` names the form in the analysis rows. `sectionForm` is the form
  // whose code section renames work in; `fileForm` is the form whose output
  // text is being built: its own code stands ahead of any other form's marked
  // section, so that part of the file belongs to its section too.
  EventCode(ConversionSession& s, std::string formName, std::string sectionForm,
            std::string fileForm);

  ConversionSession& Session() const { return s_; }
  const std::string& FormName() const { return formName_; }

  // The text that stands for an event value inside a procedure: the call of
  // an expression, `ownLine` for "[Event Procedure]", the call of a macro's
  // procedure, nothing for an empty value.
  std::string EventLine(const std::string& value, const std::string& ownLine) const;
  // The call of the procedure generated for a macro; three lines as one text
  // when the macro needs the form as its context.
  std::string MacroCallText(std::string macroName) const;

  // A new procedure at the end of the file. A header that already stands in
  // the file is reported (reason 11) and the procedure is written all the
  // same.
  void WriteEventProc(const std::string& header, const std::vector<std::string>& lines) const;
  // An empty line, the header, the lines and "End Sub" at the end of the file,
  // without looking for the header first.
  void AppendProc(const std::string& header, const std::vector<std::string>& lines) const;
  // Lines at the end of the file, each followed by CR LF.
  void Append(const std::vector<std::string>& lines) const;
  // A procedure of the module under `header`, which the event about to be
  // written would define a second time, is renamed with "_NotEvent" and
  // reported.
  void SetAsideDuplicate(const std::string& header) const;

  // Replaces the line `oldLine` by `newLine` wherever it stands, exactly, in
  // the code section of `sectionForm`.
  void RenameProcLine(const std::string& oldLine, const std::string& newLine) const;

  // The line-editing library on the form text.
  int IsDuplicateLine(const std::string& line) const;
  void InsertLine(const std::string& anchor, const std::string& text, int position) const;
  void ChangeLine2(const std::string& oldLine, const std::string& newLine) const;
  void ChangeLine(const std::string& line) const;

 private:
  ConversionSession& s_;
  std::string formName_;
  std::string sectionForm_;
  std::string fileForm_;
};

}  // namespace morvane

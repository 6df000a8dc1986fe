// Whole-line edits on text documents, and the re-indenter.
//
// Lines are compared whole, with leading and trailing blanks and tabs left
// out and case ignored, since the files may already have been indented and
// Visual Basic does not distinguish case. An anchor made of blanks only
// stands for the top of the file: text placed behind it becomes the first
// lines. Placement 0 puts the new text directly behind the anchor, so calls
// on one anchor read in reverse order. Placement 1 on a procedure header puts
// it ahead of the procedure's closing line, so calls keep their order; on any
// other anchor it goes directly behind the anchor.
#include "platform/line_editor.h"

#include <algorithm>
#include <cctype>
#include <optional>
#include <vector>

#include "platform/text_file.h"
#include "platform/text_fold.h"

namespace morvane {

namespace {

std::string Trim(const std::string& s) { return std::string(text::Trim(s)); }

bool SameLine(const std::string& a, const std::string& b) {
  return text::IEquals(text::Trim(a), text::Trim(b));
}

std::optional<size_t> FindLine(const std::vector<std::string>& lines, const std::string& line,
                               size_t from = 0) {
  for (size_t i = from; i < lines.size(); ++i)
    if (SameLine(lines[i], line)) return i;
  return std::nullopt;
}

// Strips Public/Private/Friend/Static in front of a statement.
std::string WithoutScope(std::string s) {
  for (bool again = true; again;) {
    again = false;
    for (const char* scope : {"Public ", "Private ", "Friend ", "Static "}) {
      if (text::IStartsWith(s, scope)) {
        s = Trim(s.substr(std::char_traits<char>::length(scope)));
        again = true;
      }
    }
  }
  return s;
}

// "Sub", "Function" or "Property" when the line opens a procedure.
std::string ProcedureKind(const std::string& line) {
  std::string s = WithoutScope(Trim(line));
  for (const char* kind : {"Sub", "Function", "Property"})
    if (text::IStartsWith(s, std::string(kind) + " ")) return kind;
  return "";
}

bool IsProcedureEnd(const std::string& line) {
  std::string s = Trim(line);
  return text::IEquals(s, "End Sub") || text::IEquals(s, "End Function") ||
         text::IEquals(s, "End Property") || text::IStartsWith(s, "End Sub ") ||
         text::IStartsWith(s, "End Function ") || text::IStartsWith(s, "End Property ");
}

}  // namespace

int IsDuplicateLine(const TextDocument& doc, const std::string& line, int) {
  int count = 0;
  for (const auto& l : doc.Lines())
    if (SameLine(l, line)) ++count;
  return count;
}

void InsertLine(TextDocument& doc, const std::string& anchor, const std::string& newLine,
                int placement) {
  auto* lines = &doc.Lines();
  std::vector<std::string> add = SplitLines(newLine);
  if (add.empty()) add.emplace_back();
  size_t at;
  if (Trim(anchor).empty()) {
    at = 0;
  } else {
    auto found = FindLine(*lines, anchor);
    if (!found) return;
    at = *found + 1;
    if (placement == 1 && !ProcedureKind((*lines)[*found]).empty()) {
      size_t end = at;
      while (end < lines->size() && !IsProcedureEnd((*lines)[end])) ++end;
      if (end == lines->size()) return;  // a header without its end: nothing to append to
      at = end;
    }
  }
  lines->insert(lines->begin() + static_cast<long>(at), add.begin(), add.end());
  doc.CloseLastLine();
}

void ChangeLine2(TextDocument& doc, const std::string& oldLine, const std::string& newLine) {
  auto found = FindLine(doc.Lines(), oldLine);
  if (!found) return;
  doc.Lines()[*found] = newLine;
  doc.SplitBreaks(*found, *found + 1);
  doc.CloseLastLine();
}

// The one use: a list box's AfterUpdate header takes the list control's
// signature.
void ChangeLine(TextDocument& doc, const std::string& line, int) {
  auto found = FindLine(doc.Lines(), line);
  if (!found) return;
  std::string& l = doc.Lines()[*found];
  size_t pos = l.find("_AfterUpdate()");
  if (pos == std::string::npos) return;
  l.replace(pos, 14, "_AfterUpdate(RtnDispErrMsg As Integer)");
  doc.CloseLastLine();
}

int AddToCtlArray(TextDocument& doc, const std::string& arrayName, const std::string& blockLine,
                  const std::string& indexText) {
  auto* lines = &doc.Lines();
  auto found = FindLine(*lines, blockLine);
  if (!found) return 0;
  std::string& head = (*lines)[*found];
  const std::string indent = head.substr(0, head.find_first_not_of(" \t"));
  const std::string trimmed = Trim(head);
  // "Begin VB.Label name": keep the class, take the array's name.
  size_t classEnd = trimmed.find(' ', 6);
  std::string cls = classEnd == std::string::npos ? trimmed : trimmed.substr(0, classEnd);
  head = indent + cls + " " + arrayName;
  lines->insert(lines->begin() + static_cast<long>(*found + 1), indent + "   Index = " + indexText);
  doc.SplitBreaks(*found, *found + 2);
  doc.CloseLastLine();
  return 1;
}

namespace {

// The code a data control runs when its record changes: the MoveComplete
// event of an ADO data control, the Reposition event of a DAO one. The ADO
// header names "ADODB.Recordset20", which the hint processor shortens once
// the form is complete.
void AddToDataControlEvent(TextDocument& doc, const std::string& header, const std::string& line) {
  auto* lines = &doc.Lines();
  auto found = FindLine(*lines, header);
  if (!found) {
    lines->push_back(header);
    lines->push_back("On Error Resume Next");
    lines->push_back("End Sub");
    found = lines->size() - 3;
  }
  if (!Trim(line).empty()) {
    size_t end = *found + 1;
    while (end < lines->size() && !IsProcedureEnd((*lines)[end])) ++end;
    lines->insert(lines->begin() + static_cast<long>(end), line);
    doc.SplitBreaks(end, end + 1);
  }
  doc.CloseLastLine();
}

}  // namespace

void AddDataCtlEntry2(TextDocument& doc, const std::string& dataControl, const std::string& line) {
  AddToDataControlEvent(doc,
                        "Private Sub " + dataControl +
                            "_MoveComplete(ByVal adReason As ADODB.EventReasonEnum, ByVal pError "
                            "As ADODB.Error, adStatus As ADODB.EventStatusEnum, ByVal pRecordset "
                            "As ADODB.Recordset20)",
                        line);
}

void AddDataCtlEntry(TextDocument& doc, const std::string& dataControl, const std::string& line) {
  AddToDataControlEvent(doc, "Private Sub " + dataControl + "_Reposition()", line);
}

}  // namespace morvane

// Form finishing: labels into control arrays for a form over the control
// limit, and the DBGrids of datasheet subforms on the finished form.
#include "session/form_finishing.h"

#include <cmath>
#include <set>
#include <vector>

#include "platform/line_editor.h"
#include "platform/project_model.h"
#include "platform/support_db.h"
#include "platform/text_document.h"
#include "platform/text_file.h"
#include "session/conversion_session.h"
#include "session/naming.h"
#include "session/strings.h"

namespace morvane {

namespace {

constexpr std::string_view kLabelHead = "Begin VB.Label ";
// A control array holds its head and ten more labels.
constexpr int kArraySize = 11;

bool IsWordCharacter(unsigned char c) { return IsNameCharacter(c); }

// Every word of the text, in lower case.
void AddWords(std::string_view text, std::set<std::string>* words) {
  size_t i = 0;
  while (i < text.size()) {
    if (!IsWordCharacter(static_cast<unsigned char>(text[i]))) {
      ++i;
      continue;
    }
    size_t start = i;
    while (i < text.size() && IsWordCharacter(static_cast<unsigned char>(text[i]))) ++i;
    words->insert(ToLower(text.substr(start, i - start)));
  }
}

// The first line of the form's code: behind the designer block.
size_t CodeStart(const std::vector<std::string>& lines) {
  for (size_t i = 0; i < lines.size(); ++i)
    if (StartsWithNoCase(TrimBlanks(lines[i]), "Attribute VB_Name")) return i;
  return lines.size();
}

// The labels of the designer block that can join an array: a label the
// code names (its events, its caption set in code, any statement) keeps its
// own name, since an array's member is reached by an index.
struct LabelLists {
  std::vector<std::string> Default;  // "Label..." as Access names them
  std::vector<std::string> Named;
  int Count = 0;
};

LabelLists CollectLabels(const FormState& form) {
  const std::vector<std::string>& lines = form.Text.Lines();
  const size_t code = CodeStart(lines);
  std::set<std::string> used;
  for (size_t i = code; i < lines.size(); ++i) AddWords(lines[i], &used);
  AddWords(form.LabelCaptionCode, &used);
  AddWords(form.FormLoadCode, &used);
  LabelLists lists;
  for (size_t i = 0; i < code; ++i) {
    const std::string t = TrimBlanks(lines[i]);
    if (!t.starts_with(kLabelHead)) continue;
    const std::string name = t.substr(kLabelHead.size());
    if (name.empty() || used.count(ToLower(name))) continue;
    ++lists.Count;
    (name.starts_with("Label") ? lists.Default : lists.Named).push_back(name);
  }
  return lists;
}

// One list into arrays of up to eleven labels; stops once the form is
// under the limit.
void ReduceList(ConversionSession& s, const std::vector<std::string>& list, int* arrays) {
  FormState& form = s.Form();
  if (list.size() < 2) return;
  size_t base = 0;
  int position = 0;
  std::string head;
  while (true) {
    ++position;
    if (position == kArraySize) {
      base += kArraySize;
      position = 1;
    }
    if (base + static_cast<size_t>(position) >= list.size()) return;
    if (position == 1) {
      head = list[base];
      AddToCtlArray(form.Text, head, std::string(kLabelHead) + head, "0");
      RetargetTabLine(form.Text, head, head + "(0)");
      ++*arrays;
    }
    const std::string& entry = list[base + static_cast<size_t>(position)];
    const std::string index = std::to_string(position);
    if (AddToCtlArray(form.Text, head, std::string(kLabelHead) + entry, index) == 1)
      --form.ControlCount;
    RetargetTabLine(form.Text, entry, head + "(" + index + ")");
    if (form.ControlCount < kControlLimit - 1) return;
  }
}

void Note(ConversionSession& s, const std::string& object, const std::string& text) {
  if (s.SupportDb) s.SupportDb->AddRunNote(object, text);
}

}  // namespace

bool ReduceControlCount(ConversionSession& s, const std::string& formName) {
  FormState& form = s.Form();
  const int before = form.ControlCount;
  const LabelLists lists = CollectLabels(form);
  const double estimate = std::nearbyint(static_cast<double>(lists.Count) / kArraySize) +
                          form.ControlCount - lists.Count + 1;
  if (estimate > kControlLimit) {
    Note(s, formName, FormatText(kMsgTooManyControls, {formName, std::to_string(before)}));
    return true;
  }
  int arrays = 0;
  ReduceList(s, lists.Default, &arrays);
  if (form.ControlCount >= kControlLimit - 1) ReduceList(s, lists.Named, &arrays);
  if (form.ControlCount > kControlLimit) {
    Note(s, formName, FormatText(kMsgTooManyControls, {formName, std::to_string(before)}));
    return true;
  }
  Note(s, formName,
       FormatText(kMsgControlsReduced, {formName, std::to_string(before), std::to_string(arrays),
                                        std::to_string(form.ControlCount)}));
  return false;
}

void RetargetTabLine(TextDocument& text, const std::string& oldName, const std::string& newName) {
  const std::string tail = "=\"" + oldName + "\"";
  for (std::string& line : text.Lines()) {
    const std::string t = TrimBlanks(line);
    if (!t.starts_with("Tab(") || !t.ends_with(tail)) continue;
    const size_t eq = line.find("=\"");
    if (eq == std::string::npos) continue;
    line = line.substr(0, eq + 2) + newName + "\"";
    return;
  }
}

void AddDatasheetGrids(ConversionSession& s, const ProjectComponent& component) {
  if (!component.Text) return;
  std::vector<std::string>& lines = component.Text->Lines();
  std::vector<std::string> columns;
  for (const DatasheetGridHint& grid : s.Form().DatasheetGrids) {
    columns.insert(columns.end(), grid.ColumnLines.begin(), grid.ColumnLines.end());
    if (grid.ControlText.empty()) continue;
    // The grid stands on the form itself: ahead of the End that closes the
    // form's designer block.
    size_t end = CodeStart(lines);
    while (end > 0 && !EqualsNoCase(TrimBlanks(lines[end - 1]), "End")) --end;
    if (end == 0) continue;
    std::vector<std::string> add = SplitLines(grid.ControlText);
    while (!add.empty() && add.back().empty()) add.pop_back();
    lines.insert(lines.begin() + static_cast<long>(end - 1), add.begin(), add.end());
  }
  // The columns are set first thing when the form loads.
  if (!columns.empty()) {
    const std::string header = "Private Sub Form_Load()";
    size_t at = lines.size();
    for (size_t i = CodeStart(lines); i < lines.size() && at == lines.size(); ++i)
      if (EqualsNoCase(TrimBlanks(lines[i]), header)) at = i + 1;
    if (at < lines.size()) {
      lines.insert(lines.begin() + static_cast<long>(at), columns.begin(), columns.end());
    } else {
      lines.emplace_back();
      lines.push_back(header);
      lines.insert(lines.end(), columns.begin(), columns.end());
      lines.push_back("End Sub");
    }
  }
  component.Text->CloseLastLine();
}

}  // namespace morvane

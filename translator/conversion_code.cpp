// The conversion code writers: the form lookup, the helper templates, and
// the list initialisers of a form.
#include "translator/conversion_code.h"

#include <algorithm>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/project_model.h"
#include "platform/text_file.h"
#include "platform/text_fold.h"
#include "session/conversion_session.h"
#include "session/naming.h"
#include "session/analysis_writers.h"

namespace morvane {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kTemplateFolder = "conversion_templates";

// One file per template in the data directory, in id order.
struct TemplateFile {
  int id;
  std::string_view file;
};

constexpr TemplateFile kTemplateFiles[] = {
    {700, "700_AddItemsSS.bas"},
    {701, "701_AddItems.bas"},
    {702, "702_AddItemsGT.bas"},
    {703, "703_AddItemsLV.bas"},
    {704, "704_AddItemsMS.bas"},
    {705, "705_AddItemsMSF.bas"},
    {706, "706_SysCmdVB_StatusBar.bas"},
    {707, "707_SysCmdVB.bas"},
    {708, "708_OptionGroupValue.bas"},
    {709, "709_DSum.bas"},
    {710, "710_DCount.bas"},
    {711, "711_DAvg.bas"},
    {712, "712_DFirst.bas"},
    {713, "713_DLast.bas"},
    {714, "714_DMin.bas"},
    {715, "715_DMax.bas"},
    {716, "716_DStDev.bas"},
    {717, "717_DStDevP.bas"},
    {718, "718_DVar.bas"},
    {719, "719_DVarP.bas"},
    {720, "720_DLookup.bas"},
};

constexpr bool TemplateIdsRunInOrder() {
  for (size_t i = 0; i < std::size(kTemplateFiles); ++i)
    if (kTemplateFiles[i].id != kFirstConversionTemplate + static_cast<int>(i)) return false;
  return true;
}
static_assert(std::size(kTemplateFiles) == kConversionTemplateCount);
static_assert(TemplateIdsRunInOrder());

// The helper a list control calls, by the type chosen for the run. `flag` is
// the index into ListControlsUsed; the helper of a type missing from its
// table is plain AddItems and asks for nothing.
struct ListHelper {
  int type;
  std::string_view suffix;
  int flag;
};

constexpr ListHelper kListBoxHelpers[] = {
    {1, "GT", 2}, {2, "SS", 0}, {3, "SS", 0}, {5, "LV", 3}, {4, "", 1},
};

constexpr ListHelper kComboBoxHelpers[] = {
    {1, "GT", 2},
    {2, "SS", 0},
    {3, "SS", 0},
    {4, "MSF", 5},
};

constexpr int kPlainListFlag = 4;

// Appends lines to a text, each ended by CR LF. A text whose last line lacks
// its line end gets one first, so the new text starts on a line of its own.
void AppendLines(TextDocument& text, const std::vector<std::string>& lines) {
  if (text.EndsOpen()) text.Append("\r\n");
  text.Append(JoinCrLf(lines));
}

std::string_view TrimIndent(std::string_view line) {
  const size_t first = line.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return line.substr(first, line.find_last_not_of(" \t") - first + 1);
}

// True when `text` holds a line that, without its leading and trailing
// blanks and tabs, equals `line` ignoring case.
bool HoldsLine(std::string_view text, std::string_view line) {
  const std::string_view wanted = TrimIndent(line);
  for (const auto& candidate : SplitLines(text))
    if (EqualsNoCase(TrimIndent(candidate), wanted)) return true;
  return false;
}

// A template is already in the conversion code when the text holds it as it
// stands, or holds its procedure header: a copy that has been re-indented or
// edited since still defines the procedure, and a second definition would
// not compile. (The two SysCmdVB templates share their header, so a project
// converted once with and once without the MDI parent keeps one of them.)
bool HoldsTemplate(std::string_view text, const std::string& templateText) {
  if (text.find(templateText) != std::string_view::npos) return true;
  const std::vector<std::string> lines = SplitLines(templateText);
  return !lines.empty() && HoldsLine(text, lines.front());
}

// A row source too long for one line of code is built in this variable of
// the initialiser, a piece of about kPieceBytes a line; a doubled quote is
// never cut apart.
constexpr std::string_view kRowsDim = "Dim strRowSource As String";
constexpr size_t kPieceBytes = 800;

// Adds `add` at the end of the form's initialiser `header`, with the
// variable's declaration ahead of them when `withRows` and the initialiser
// has none yet; false when the form has no initialiser. The initialiser is
// appended when the form's first list needs it and stays near the end of the
// text while the form's records are processed, so it is looked for from the
// end: a form of many lists is not read through once per list.
bool AddToInitialiser(TextDocument& form, std::string_view header, std::vector<std::string> add,
                      bool withRows) {
  std::vector<std::string>& lines = form.Lines();
  for (size_t i = lines.size(); i-- > 0;) {
    if (!text::IEquals(text::Trim(lines[i]), header)) continue;
    bool declared = false;
    for (size_t end = i + 1; end < lines.size(); ++end) {
      const std::string_view line = text::Trim(lines[end]);
      declared = declared || text::IEquals(line, kRowsDim);
      if (!text::IEquals(line, "End Function")) continue;
      if (withRows && !declared) add.insert(add.begin(), std::string(kRowsDim));
      lines.insert(lines.begin() + static_cast<long>(end), add.begin(), add.end());
      form.CloseLastLine();
      return true;
    }
    return true;  // a header without its end: nothing to add to
  }
  return false;
}

void WriteListInit(ConversionSession& s, const std::string& header,
                   std::span<const ListHelper> helpers, int type, int initCall,
                   const std::string& rowSource, const std::string& controlName, bool isValueList) {
  std::string_view suffix;
  const auto helper = std::find_if(helpers.begin(), helpers.end(),
                                   [type](const ListHelper& h) { return h.type == type; });
  if (helper != helpers.end()) {
    suffix = helper->suffix;
    s.ListControlsUsed[helper->flag] = true;
  }
  // A plain control calls AddItemsMS instead; the flag of the chosen type is
  // set all the same.
  if (s.Form().PlainListControl) s.ListControlsUsed[kPlainListFlag] = true;

  const std::string procedure =
      s.Form().PlainListControl ? std::string("AddItemsMS") : "AddItems" + std::string(suffix);
  const std::string rest =
      ", me!" + controlName + ", \"" + (isValueList ? "String" : "Jet") + "\")";
  std::vector<std::string> lines;
  const bool withRows = rowSource.size() > kPieceBytes;
  if (withRows) {
    for (const std::string& piece : QuotedPieces(rowSource, kPieceBytes))
      lines.push_back(lines.empty() ? "strRowSource = \"" + piece + "\""
                                    : "strRowSource = strRowSource & \"" + piece + "\"");
    lines.push_back("Call " + procedure + "(strRowSource" + rest);
    ReportLine(s, s.Form().Name, kReasonKeptChoice,
               "Call " + procedure + "(\"" + rowSource.substr(0, 200) + "...\"" + rest, 0,
               lines.back(), header.substr(17));
  } else {
    lines.push_back("Call " + procedure + "(\"" + rowSource + "\"" + rest);
  }

  TextDocument& form = s.Form().Text;
  if (!AddToInitialiser(form, header, lines, withRows)) {
    if (withRows) lines.insert(lines.begin(), std::string(kRowsDim));
    lines.insert(lines.begin(), header);
    lines.push_back("End Function");
    AppendLines(form, lines);
  }
  s.Form().InitCalls[initCall] = true;
}

}  // namespace

std::string ConversionCodeTemplate(const fs::path& dataDir, int id) {
  const int index = id - kFirstConversionTemplate;
  if (index < 0 || index >= kConversionTemplateCount) return "";
  std::string bytes;
  if (!ReadFileBytes(dataDir / kTemplateFolder / kTemplateFiles[index].file, &bytes, nullptr))
    return "";
  // The files are kept with CR LF; a checkout that changed the line ends
  // must still give the same text to search for and to append.
  return JoinCrLf(SplitLines(bytes));
}

void WriteFormLookup(ConversionSession& s, TextDocument& conversionCode) {
  std::vector<std::string> lines = {
      "Public Function GetFormFromName(FormName As String) As Form",
      "    Select Case FormName",
  };
  for (const auto& form : s.FormList) {
    if (form.empty()) continue;
    const std::string object = s.Names.Name(ComponentRole::Form, form).VbName;
    lines.push_back("        Case \"" + form + "\": Set GetFormFromName = " + object);
  }
  lines.push_back("        Case Else");
  lines.push_back(
      "            Err.Raise Number:=vbObjectError + 31004, Description:=\"Form name not in global "
      "list\"");
  lines.push_back("    End Select");
  lines.push_back("End Function");
  AppendLines(conversionCode, lines);
}

void WriteConversionCode(ConversionSession& s, TextDocument& conversionCode) {
  const std::string text = conversionCode.Bytes();
  std::string added;
  for (int n = 0; n < kConversionTemplateCount; ++n) {
    if (!s.ListControlsUsed[n]) continue;
    const std::string templateText =
        ConversionCodeTemplate(s.Options.DataDir, kFirstConversionTemplate + n);
    if (templateText.empty() || HoldsTemplate(text + added, templateText)) continue;
    // An empty line sets each procedure apart from the one before it.
    added += "\r\n" + templateText;
  }
  if (!added.empty()) {
    if (!text.empty() && text.back() != '\n') added.insert(0, "\r\n");
    conversionCode.Append(added);
  }
}

void WriteListBoxInit(ConversionSession& s, const std::string& rowSource,
                      const std::string& controlName, bool isValueList) {
  WriteListInit(s, "Private Function InitializeListBoxes()", kListBoxHelpers, s.Options.ListboxType,
                0, rowSource, controlName, isValueList);
}

void WriteComboBoxInit(ConversionSession& s, const std::string& rowSource,
                       const std::string& controlName, bool isValueList) {
  WriteListInit(s, "Private Function InitializeComboBoxes()", kComboBoxHelpers,
                s.Options.ComboboxType, 1, rowSource, controlName, isValueList);
}

}  // namespace morvane

// The report writer: the designer's fixed head, the binding to the data
// environment, and one section block per Access section in the order of the
// DataReport, with the section's controls as items. A group header or footer
// whose partner the Access report lacks gets an empty partner, as a
// DataReport keeps the two of a group in pairs.
#include "reports/report_writer.h"

#include <array>

#include "design/form_design.h"
#include "forms/frm_text.h"
#include "reports/data_environment.h"
#include "reports/report_items.h"
#include "session/analysis_reasons.h"
#include "session/naming.h"

namespace morvane {

namespace {

constexpr const char* kSectionClass = "{1C13A8E0-A0B6-11D0-848E-00A0C90DC8A9}";

// The Access sections in the order of the DataReport, and the DataReport's
// code of each: report header, page header, group headers of levels 0 to 8,
// detail, group footers of levels 8 to 0, page footer, report footer.
struct SectionSlot {
  int access;
  int code;
};

constexpr std::array<SectionSlot, 23> kSectionOrder = {{
    {1, 1},  {3, 2},  {5, 3},  {7, 3}, {9, 3},  {11, 3}, {13, 3}, {15, 3},
    {17, 3}, {19, 3}, {21, 3}, {0, 4}, {22, 5}, {20, 5}, {18, 5}, {16, 5},
    {14, 5}, {12, 5}, {10, 5}, {8, 5}, {6, 5},  {4, 7},  {2, 8},
}};

static_assert(
    [] {
      for (int i = 0; i <= 8; ++i)
        if (kSectionOrder[2 + i].access != 5 + 2 * i || kSectionOrder[20 - i].access != 6 + 2 * i)
          return false;
      return true;
    }(),
    "a group header of level i stands at 2 + i, its footer at 20 - i");

// The binding record: a version word, the kind of binding, and the data
// source's name with its length in front.
constexpr unsigned char kBindingsHead[] = {0xC6, 0xFA, 0x01, 0x00, 0x07, 0x00, 0x00, 0x00};
constexpr char kDataSourceName[] = "rptEnvironment";

std::string Quoted(std::string_view text) { return "\"" + EscapeQuotes(text) + "\""; }

// The print margins of PrtMip: four 32-bit numbers, left, top, right and
// bottom, in twips.
std::optional<std::array<long, 4>> Margins(const FormDesign& report) {
  const std::string mip = report.Bytes("PrtMip").value_or("");
  if (mip.size() < 16) return std::nullopt;
  std::array<long, 4> out{};
  for (size_t i = 0; i < 4; ++i) {
    uint32_t v = 0;
    for (int b = 3; b >= 0; --b) v = (v << 8) | static_cast<unsigned char>(mip[4 * i + b]);
    out[i] = static_cast<int32_t>(v);
  }
  return out;
}

void WriteHead(std::string& t, const FormDesign& report, const ConvertedReport& out,
               const std::optional<ReportCommand>& command) {
  AddLine(t, "VERSION 5.00");
  AddLine(t, "Begin {78E93846-85FD-11D0-8487-00A0C90DC8A9} " + out.Name);
  AddLine(t, "Bindings = \"" + out.File + ".dsx\":0000");
  AddLine(t, "Caption = " + Quoted(JoinLines(report.Text("Caption").value_or(""))));
  AddLine(t, "ClientHeight = 4290");
  AddLine(t, "ClientLeft = 1650");
  AddLine(t, "ClientTop = 1545");
  AddLine(t, "ClientWidth = 9015");
  AddLine(t, "_ExtentX = 15901");
  AddLine(t, "_ExtentY = 7567");
  AddLine(t, "_Version = 393216");
  AddLine(t, "_DesignerVersion =100684101");
  AddLine(t, "BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851}");
  AddLine(t, "Name = \"Arial\"");
  AddLine(t, "Size = 8.25");
  AddLine(t, "Charset = 0");
  AddLine(t, "Weight = 400");
  AddLine(t, "Underline = 0");
  AddLine(t, "Italic = 0");
  AddLine(t, "Strikethrough = 0");
  AddLine(t, "EndProperty");
  AddLine(t, "GridX = 10");
  AddLine(t, "GridY = 10");
  AddLine(t, "ReportWidth = ", ValueText(report, "Width"));
  if (auto m = Margins(report)) {
    AddLine(t, "LeftMargin = " + std::to_string((*m)[0]));
    AddLine(t, "RightMargin = " + std::to_string((*m)[2]));
    AddLine(t, "TopMargin = " + std::to_string((*m)[1]));
    AddLine(t, "BottomMargin = " + std::to_string((*m)[3]));
  }
  if (command) AddLine(t, "DataMember = " + Quoted(command->Member(true)));
}

// The code that opens the command with the values of its parameters, asked
// of the user as Access asks for them.
void AddParameterCode(ReportState& st) {
  if (!st.Command || st.Command->Parameters.empty()) return;
  const ReportCommand& c = *st.Command;
  std::string call = "rptEnvironment." + c.Name;
  std::string names;
  for (size_t i = 0; i < c.Parameters.size(); ++i) {
    call += (i == 0 ? " " : ", ") + std::string("InputBox(") + Quoted(c.Parameters[i].Name) + ")";
    names += (i == 0 ? "" : ", ") + c.Parameters[i].Name;
  }
  const std::string close =
      "If rptEnvironment.rs" + c.Name + ".State <> 0 Then rptEnvironment.rs" + c.Name + ".Close";
  st.InitLines.push_back(close);
  st.InitLines.push_back(call);
  st.Out->Review.push_back({st.Out->Name, kReasonReview, "Parameters: " + names, 0, call, ""});
}

}  // namespace

std::string ReportBindingsRecord() {
  std::string out(reinterpret_cast<const char*>(kBindingsHead), sizeof kBindingsHead);
  out += static_cast<char>(sizeof kDataSourceName - 1);
  out += kDataSourceName;
  out.append(6, '\0');
  return out;
}

ConvertedReport ConvertReportDesign(const FormDesign& report, const Catalog* db,
                                    DataEnvironment& environment, const std::string& vbName,
                                    const std::string& file) {
  ConvertedReport out;
  out.Name = vbName;
  out.File = file;
  out.Dsx = ReportBindingsRecord();
  ReportState st;
  st.Report = &report;
  st.Out = &out;
  if (auto command = CommandFor(report, db)) {
    AddCalculatedColumns(st, report, *command);
    st.Command = environment.Add(std::move(*command));
  }

  AddParameterCode(st);

  std::string t;
  WriteHead(t, report, out, st.Command);

  // The sections to write: those the report has, and the missing partner of
  // a group header or footer.
  std::array<bool, kSectionOrder.size()> present{}, partner{};
  for (size_t p = 0; p < kSectionOrder.size(); ++p)
    present[p] = report.Section(kSectionOrder[p].access) != nullptr;
  int groupedLevels = 0;
  for (size_t i = 0; i <= 8; ++i) {
    const bool header = present[2 + i], footer = present[20 - i];
    if (header || footer) ++groupedLevels;
    if (header != footer) partner[header ? 20 - i : 2 + i] = true;
  }
  int count = 0;
  for (size_t p = 0; p < kSectionOrder.size(); ++p) count += present[p] || partner[p];
  AddLine(t, "NumSections = " + std::to_string(count));

  // A DataReport shows one level of groups, the command's grouping.
  if (groupedLevels > 1 || (groupedLevels == 1 && st.Command && !st.Command->Grouped))
    out.Review.push_back(
        {out.Name, kReasonReview, "Group levels: " + std::to_string(groupedLevels), 0,
         st.Command && st.Command->Grouped ? "DataMember = " + Quoted(st.Command->GroupingName())
                                           : std::string(),
         ""});

  for (size_t p = 0; p < kSectionOrder.size(); ++p) {
    if (!present[p] && !partner[p]) continue;
    const SectionDesign* section = report.Section(kSectionOrder[p].access);
    const std::string n = std::to_string(st.SectionNumber);
    AddLine(t, "SectionCode" + n + " = " + std::to_string(kSectionOrder[p].code));
    AddLine(t, "BeginProperty Section" + n + " " + kSectionClass);
    AddLine(t, "_Version = 393216");
    if (section) {
      st.SectionName = st.UniqueName(section->Name(), "Section");
    } else {
      const bool header = kSectionOrder[p].code == 3;
      const int level = header ? static_cast<int>(p) - 2 : 20 - static_cast<int>(p);
      st.SectionName =
          st.UniqueName((header ? "GroupHeader" : "GroupFooter") + std::to_string(level), "");
    }
    AddLine(t, "Name = " + Quoted(st.SectionName));
    if (section) AddLine(t, "Object.Height = ", ValueText(*section, "Height"));
    st.ItemText.clear();
    st.ItemCount = 0;
    if (section)
      for (const ControlDesign& c : section->Controls()) WriteItem(st, c);
    AddLine(t, "NumControls = " + std::to_string(st.ItemCount));
    t += st.ItemText;
    AddLine(t, "EndProperty");
    ++st.SectionNumber;
  }
  AddLine(t, "End");
  out.Dsr = std::move(t);

  for (size_t i = 0; i < st.InitLines.size(); ++i)
    out.InitCode += (i == 0 ? "" : "\r\n") + st.InitLines[i];
  return out;
}

}  // namespace morvane

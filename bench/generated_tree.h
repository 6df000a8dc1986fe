// The source trees the benchmarks convert: forms of a given number of
// controls with event procedures in their modules, and standard modules of a
// given number of lines, written as SaveAsText exports.
#pragma once

#include <cstdio>
#include <filesystem>
#include <iterator>
#include <string>
#include <vector>

#include "platform/text_file.h"

namespace morvane::bench {

inline std::string N(int i) { return std::to_string(i); }

// The row sources of the combo boxes, in turn.
inline constexpr const char* kRowSources[][2] = {
    {"Table/Query", "SELECT CustomerID, CompanyName FROM tblCustomers ORDER BY CompanyName;"},
    {"Table/Query", "tblCustomers"},
    {"Value List", "1;North;2;South;3;East;4;West"},
};

// One control of the generated form; a quarter are text boxes with an
// attached label, the rest labels, buttons and check boxes in turn. With
// `combos`, every third control is a combo box instead.
inline void AddControl(std::vector<std::string>& t, int i, bool withEvent, bool combos) {
  const std::string top = N(200 + (i % 40) * 300), left = N(100 + (i / 40) * 2000);
  const char* kinds[] = {"TextBox", "Label", "CommandButton", "CheckBox"};
  const std::string kind = combos && i % 3 == 2 ? "ComboBox" : kinds[i % 4];
  t.push_back("                Begin " + kind);
  t.push_back("                    Left =" + left);
  t.push_back("                    Top =" + top);
  t.push_back("                    Width =1500");
  t.push_back("                    Height =255");
  t.push_back("                    Name =\"ctl" + N(i) + "\"");
  if (kind == "TextBox" || kind == "ComboBox")
    t.push_back("                    ControlSource =\"Field" + N(i % 10) + "\"");
  if (kind == "ComboBox") {
    const auto& source = kRowSources[(i / 3) % std::size(kRowSources)];
    t.push_back("                    RowSourceType =\"" + std::string(source[0]) + "\"");
    t.push_back("                    RowSource =\"" + std::string(source[1]) + "\"");
    t.push_back("                    ColumnCount =2");
    t.push_back("                    ColumnWidths =\"0;1440\"");
    t.push_back("                    LimitToList = NotDefault");
  }
  if (kind == "Label" || kind == "CommandButton")
    t.push_back("                    Caption =\"Control " + N(i) + "\"");
  if (withEvent) t.push_back("                    OnClick =\"[Event Procedure]\"");
  t.push_back("                End");
}

// `forms` forms "frmBench<i>" of `controls` controls each, 20 of them with a
// click procedure in the form's module, in `root`/src/forms; with `combos`
// a third of the controls are combo boxes.
inline void WriteForms(const std::filesystem::path& root, int forms, int controls,
                       bool combos = false) {
  constexpr int kEvents = 20;
  const int every = controls >= kEvents ? controls / kEvents : 1;
  std::filesystem::create_directories(root / "src" / "forms");
  for (int f = 0; f < forms; ++f) {
    std::vector<std::string> t = {"Version =20",
                                  "VersionRequired =20",
                                  "Begin Form",
                                  "    Width =9000",
                                  "    RecordSource =\"tblOrders\"",
                                  "    Caption =\"Form " + N(f) + "\"",
                                  "    Begin",
                                  "        Begin Section",
                                  "            Height =12000",
                                  "            Name =\"Detail\"",
                                  "            Begin"};
    for (int c = 0; c < controls; ++c) AddControl(t, c, c % every == 0, combos);
    for (const char* l : {"            End", "        End", "    End", "End", "CodeBehindForm",
                          "Attribute VB_GlobalNameSpace = False", "Attribute VB_Creatable = True",
                          "Attribute VB_PredeclaredId = True", "Attribute VB_Exposed = False",
                          "Option Compare Database", "Option Explicit", ""})
      t.emplace_back(l);
    for (int c = 0; c < controls; c += every) {
      t.push_back("Private Sub ctl" + N(c) + "_Click()");
      t.push_back("    Me.Caption = \"clicked " + N(c) + "\"");
      t.push_back("End Sub");
      t.push_back("");
    }
    WriteTextLines(root / "src" / "forms" / ("frmBench" + N(f) + ".txt"), t, nullptr);
  }
}

constexpr const char* kBody[] = {
    "Public Sub Proc%d(ByVal n As Long)",
    "    ' keep the order list current",
    "    Dim rs As DAO.Recordset",
    "    Set rs = CurrentDb().OpenRecordset(\"tblOrders\")",
    "    Do While Not rs.EOF",
    "        If rs!Total > n Then DoCmd.OpenForm \"frmOrders\"",
    "        rs.MoveNext",
    "    Loop",
    "    DoCmd.Hourglass False",
    "    x = Application.hWndAccessApp",
    "    DoCmd.RunSQL \"DELETE * FROM tblTemp\"",
    "",
    "End Sub",
};

// `modules` modules "basBench<i>" of about `linesPerModule` lines each in
// `root`/src/modules; returns the number of lines written.
inline long WriteModules(const std::filesystem::path& root, int modules, int linesPerModule) {
  std::filesystem::create_directories(root / "src" / "modules");
  long totalLines = 0;
  for (int m = 0; m < modules; ++m) {
    std::vector<std::string> lines = {"Attribute VB_Name = \"basBench" + N(m) + "\"",
                                      "Option Compare Database", "Option Explicit", ""};
    for (int p = 0; static_cast<int>(lines.size()) < linesPerModule; ++p)
      for (const char* l : kBody) {
        char buf[200];
        std::snprintf(buf, sizeof buf, l, p);
        lines.emplace_back(buf);
      }
    totalLines += static_cast<long>(lines.size());
    WriteTextLines(root / "src" / "modules" / ("basBench" + N(m) + ".bas"), lines, nullptr);
  }
  return totalLines;
}

}  // namespace morvane::bench

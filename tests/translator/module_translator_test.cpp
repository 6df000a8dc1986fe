// The module translator's main loop: the designer gate, the counters of
// tblStats, form code marks, and a form that closes itself. A form's open
// event (header, Cancel, the OpenForm row with its routine and line) is
// shown whole by the golden docmd_rules and forms runs.
#include "translator/module_translator.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "translator/translator_harness.h"

namespace morvane {
namespace {

using test::FormDesigner;
using test::Translation;
using Lines = std::vector<std::string>;

TEST(TranslateCode, WorksWithoutASupportDatabase) {
  Translation t;
  t.s.SupportDb = nullptr;
  EXPECT_EQ(
      t.Run({"DoCmd.CancelEvent", "Application.Echo False"}),
      (Lines{"Cancel = True\t'MORVANE DoCmd.CancelEvent", "'MORVANE Application.Echo False"}));
  EXPECT_TRUE(t.Db().ReportOutput().empty());
  EXPECT_TRUE(t.Db().Stats().empty());
}

TEST(TranslateCode, CountsEveryKindOfLine) {
  Translation t;
  auto out = t.Run({
      "Attribute VB_Name = \"basA\"",
      "Option Compare Database",
      "Option Explicit",
      "",
      "    ",
      "   ' a comment",
      "Private Sub Form_Open(Cancel As Integer)",
      "DoCmd.CancelEvent",
      "Application.Echo False",
      "End Sub",
      "Function F()",
      "End Function",
      "Set db = CurrentDb",
      "Call AddItem(Application.Name)",
  });
  EXPECT_EQ(out, (Lines{
                     "Attribute VB_Name = \"basA\"", "", "Option Explicit", "", "", "' a comment",
                     "Private Function Form_Open() as Integer",
                     "Cancel = True\t'MORVANE DoCmd.CancelEvent", "'MORVANE Application.Echo False",
                     "End Function", "Function F()", "End Function", "",
                     "Call AddItem(Application.Name)",  // written as it came
                 }));
  StatsRow stats = t.Stats();
  EXPECT_EQ(stats.TotalLines, 14);
  EXPECT_EQ(stats.CommentLines, 1);
  EXPECT_EQ(stats.BlankLines, 3) << "two empty lines and the deleted Set db line";
  EXPECT_EQ(stats.LinesNotTranslated, 1);
  EXPECT_EQ(stats.LinesPotentiallyConverted, 1);
  EXPECT_EQ(stats.SubCount, 1);
  EXPECT_EQ(stats.ProcCount, 1);
  EXPECT_EQ(stats.CodeLines, 12) << "CodeLines starts at -2";
  EXPECT_EQ(stats.CtlCount, 0);
}

TEST(TranslateCode, CodeLinesStartAtMinusTwo) {
  // The first line of a module is line -1, its third line 1.
  Translation t;
  t.Run({"Application.Echo False", "", "DoCmd.Beep 1"});
  auto rows = t.Rows();
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[0].LineNumber, -1);
  EXPECT_EQ(rows[1].LineNumber, 1);
  EXPECT_EQ(rows[1].CodeLine, "DoCmd.Beep 1");
  EXPECT_EQ(rows[1].Routine, "");
}

TEST(TranslateCode, CallAddItemLinesAreNotTranslated) {
  Translation t;
  EXPECT_EQ(t.Run({"Call AddItems(DoCmd.Beep)", "call additem(Application.Name)"}),
            (Lines{"Call AddItems(DoCmd.Beep)", "call additem(Application.Name)"}));
  EXPECT_TRUE(t.Rows().empty());
  EXPECT_EQ(t.Stats().CommentLines, 0);
}

TEST(TranslateCode, CountersGoPastTheSixteenBitLimit) {
  Translation t;
  Lines lines(40000, "");
  lines.insert(lines.end(), 30000, "x = 1");
  t.Run(lines);
  StatsRow stats = t.Stats();
  EXPECT_EQ(stats.TotalLines, 70000);
  EXPECT_EQ(stats.BlankLines, 40000);
  EXPECT_EQ(stats.CodeLines, 69998);
}

TEST(DesignerGate, CopiesTheDesignerBlockOfAForm) {
  Translation t;
  auto out = t.Run(
      {
          "VERSION 5.00",
          "Begin VB.Form Main",
          "   Caption = \"DoCmd.Beep\"",
          "   Begin VB.CommandButton cmdGo",
          "      Caption = \"Go\"",
          "   End",
          "   BeginProperty Font",
          "      Name = \"Arial\"",
          "   EndProperty",
          "End",
          "Attribute VB_Name = \"Main\"",
          "DoCmd.Beep",
      },
      kModeForm, "Main");
  EXPECT_EQ(out, (Lines{
                     "VERSION 5.00",
                     "Begin VB.Form Main",
                     "Caption = \"DoCmd.Beep\"",  // unindented, otherwise as it came
                     "Begin VB.CommandButton cmdGo",
                     "Caption = \"Go\"",
                     "End",
                     "BeginProperty Font",
                     "Name = \"Arial\"",
                     "EndProperty",
                     "End",
                     "Attribute VB_Name = \"Main\"",
                     "Beep",
                 }));
  StatsRow stats = t.Stats();
  EXPECT_EQ(stats.TotalLines, 12);
  // The closing End counts as a code line: End -1, Attribute 0, Beep 1.
  EXPECT_EQ(stats.CodeLines, 1);
}

TEST(DesignerGate, AFormWithoutDesignerBlockIsCopiedWhole) {
  Translation t;
  EXPECT_EQ(t.Run({"DoCmd.Beep", "Application.Quit"}, kModeForm, "Main"),
            (Lines{"DoCmd.Beep", "Application.Quit"}));
  EXPECT_EQ(t.Stats().CodeLines, -2);
}

TEST(DesignerGate, AModuleHasNoDesignerBlockButHonoursOpenBegins) {
  Translation t;
  // A class module's BEGIN has no blank behind it, so it opens nothing.
  EXPECT_EQ(t.Run({"VERSION 1.0 CLASS", "BEGIN", "MultiUse = -1  'True", "End", "DoCmd.Beep"}),
            (Lines{"VERSION 1.0 CLASS", "BEGIN", "MultiUse = -1  'True", "End", "Beep"}));
  EXPECT_EQ(t.Stats().CodeLines, 3);

  Translation open;
  EXPECT_EQ(open.Run({"Begin Transaction", "DoCmd.Beep", "End", "DoCmd.Beep"}),
            (Lines{"Begin Transaction", "DoCmd.Beep", "End", "Beep"}));
}

TEST(FormCodeMarks, NameTheDataControlOfTheCodeBetweenThem) {
  Translation t;
  auto input = FormDesigner("Main");
  input.insert(input.end(), {
                                "'MORVANE Form Code for Sub 1",
                                "Me.REQUERY",
                                "'MORVANE End Form Code for Sub 1",
                                "Me.REQUERY",
                            });
  auto out = t.Run(input, kModeForm, "Main");
  EXPECT_EQ(Lines(out.begin() + 5, out.end()), (Lines{
                                                   "'MORVANE Form Code for Sub 1",
                                                   "Me.datSub_1.Recordset.Requery",
                                                   "Me.datSub_1.Refresh",
                                                   "'MORVANE End Form Code for Sub 1",
                                                   "Me.datMain.Recordset.Requery",
                                                   "Me.datMain.Refresh",
                                               }));
  EXPECT_EQ(t.Stats().CommentLines, 2) << "the marks are comments too";
}

TEST(WorkedExample, CloseOfTheFormItself) {
  for (bool listed : {true, false}) {
    Translation t;
    if (!listed) t.s.FormList = {""};
    auto input = FormDesigner("Order_Details");
    input.push_back("DoCmd.Close acForm, Me.Name");
    auto out = t.Run(input, kModeForm, "Order_Details");
    EXPECT_EQ(out.back(), std::string(listed ? "Unload Order_Details"
                                             : "Unload GetFormFromName(Order_Details)") +
                              "\t'MORVANE DoCmd.Close acForm, Me.Name");
    ASSERT_EQ(t.Rows().size(), 1u);
    EXPECT_EQ(t.Rows()[0].TranslatedLine, "Unload Order_Details");
  }
}

TEST(TranslateCode, AModuleConvertedTwiceKeepsOneStatsRow) {
  Translation t;
  t.Run({"DoCmd.Beep 1", "DoCmd.CancelEvent"});
  t.Run({"Option Explicit"});
  auto rows = t.Db().Stats();
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0].TotalLines, 1);
  // A count of 0 does not overwrite what the first run wrote.
  EXPECT_EQ(rows[0].LinesNotTranslated, 1);
  EXPECT_EQ(rows[0].LinesPotentiallyConverted, 1);
}

}  // namespace
}  // namespace morvane

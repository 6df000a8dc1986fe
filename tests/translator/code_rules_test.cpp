// Rules that keep translated code loadable where the golden case code_rules
// cannot show it: #If branches Visual Basic 6 does not compile (the
// independent syntax check reads them as code), the conditions it reads,
// and lines that grow past Visual Basic's limit.
#include <gtest/gtest.h>

#include "session/compiler_conditions.h"
#include "session/vb6_check.h"
#include "translator/translator_harness.h"
#include "translator/vb_code.h"

namespace morvane {
namespace {

using test::Translation;

using Lines = std::vector<std::string>;

Lines Module(const Lines& code) {
  Lines in = {"Attribute VB_Name = \"basTest\""};
  in.insert(in.end(), code.begin(), code.end());
  return in;
}

TEST(ConditionalCompilation, OnlyTheBranchesVisualBasic6CompilesAreRewritten) {
  struct Case {
    const char* name;
    Lines in;
    Lines out;
    std::vector<int> reasons;
  };
  const Case cases[] = {
      {"the VBA7 branch stays as written, the #Else branch is already Visual Basic 6",
       {"#If VBA7 Then", "Private Declare PtrSafe Sub Sleep Lib \"k\" (ByVal ms As LongPtr)",
        "#Else", "Private Declare Sub Sleep Lib \"k\" (ByVal ms As Long)", "#End If"},
       {"#If VBA7 Then", "Private Declare PtrSafe Sub Sleep Lib \"k\" (ByVal ms As LongPtr)",
        "#Else", "Private Declare Sub Sleep Lib \"k\" (ByVal ms As Long)", "#End If"},
       {}},
      {"a VBA7 branch alone gets its Visual Basic 6 branch",
       {"#If VBA7 Then", "Private Declare PtrSafe Function F Lib \"k\" _",
        "    (ByVal h As LongPtr) As LongPtr", "#End If"},
       {"#If VBA7 Then", "Private Declare PtrSafe Function F Lib \"k\" _",
        "(ByVal h As LongPtr) As LongPtr", "#Else", "Private Declare Function F Lib \"k\" _",
        "(ByVal h As Long) As Long", "#End If"},
       {15}},
      {"a Win64 branch alone is 64-bit code: no branch is made for it",
       {"#If Win64 Then", "Private Const PTR_SIZE As LongLong = 8", "#End If"},
       {"#If Win64 Then", "Private Const PTR_SIZE As LongLong = 8", "#End If"},
       {}},
      {"a branch for older hosts is compiled; its own LongPtr type stays",
       {"#If Mac Or TWINBASIC Or (VBA7 = 0) Then", "Private Enum LongPtr", "[_]", "End Enum",
        "Private h As LongPtr", "#ElseIf VBA7 Then", "Private h2 As LongPtr", "#End If"},
       {"#If Mac Or TWINBASIC Or (VBA7 = 0) Then", "Private Enum LongPtr", "[_]", "End Enum",
        "Private h As Long", "#ElseIf VBA7 Then", "Private h2 As LongPtr", "#End If"},
       {15}},
      {"#Const values count, and rules act in the compiled branch only",
       {"#Const DEBUGGING = 1", "#If DEBUGGING = 1 And Not Win16 Then",
        "Debug.Print Application.Name", "#Else", "Debug.Print Application.Name", "#End If"},
       {"#Const DEBUGGING = 1", "#If DEBUGGING = 1 And Not Win16 Then",
        "'MORVANE Debug.Print Application.Name", "#Else", "Debug.Print Application.Name",
        "#End If"},
       {2}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    Translation t;
    Lines out = t.Run(Module(c.in));
    out.erase(out.begin());
    EXPECT_EQ(out, c.out);
    std::vector<int> reasons;
    for (const auto& r : t.Rows()) reasons.push_back(static_cast<int>(r.ReasonID));
    EXPECT_EQ(reasons, c.reasons);
    EXPECT_EQ(CheckVb6Structure("basTest.bas", t.output_bytes), Lines{});
  }
}

TEST(ConditionalCompilation, ConditionsAsVisualBasic6ReadsThem) {
  const std::vector<std::pair<std::string, std::string>> constants = {{"app", "\"Access\""},
                                                                      {"level", "2"}};
  const std::pair<const char*, std::optional<bool>> cases[] = {
      {"VBA7", false},
      {"Win64", false},
      {"Win32", true},
      {"Not VBA7", true},
      {"VBA7 = 0", true},
      {"Mac Or TWINBASIC Or (VBA7 = 0)", true},
      {"Win32 And Not Win64", true},
      {"APP = \"Access\"", true},
      {"UNDEFINED = \"Access\"", false},
      {"Level >= 2 And Level < &H3", true},
      {"(1 + 2) * 2 = 6 Xor False", true},
      {"VBA7 And", std::nullopt},
      {"Foo(1)", std::nullopt},
  };
  for (const auto& [text, want] : cases)
    EXPECT_EQ(CompilerCondition(text, constants), want) << text;
}

TEST(LineLimits, AGrownLineIsContinuedWithinVisualBasicsLimit) {
  // Kept lines carry their old text: a long one is cut at a blank, and a
  // long string is closed and opened again.
  const std::string sql = "\"SELECT " + std::string(700, 'x') + " FROM t\"";
  Translation t;
  Lines out = t.Run(
      Module({"Sub A()", "DoCmd.RunSQL " + sql + " & \" WHERE a = 1 AND b = 2\"", "End Sub"}));
  ASSERT_GE(out.size(), 5u);
  for (const auto& line : out) EXPECT_LE(line.size(), kMaxLineLength);
  EXPECT_EQ(CheckVb6Structure("basTest.bas", t.output_bytes), Lines{});

  const std::string text = "s = \"" + std::string(2500, 'y') + "\"";
  const Lines cut = FitLineLength(text);
  ASSERT_EQ(cut.size(), 3u);
  std::string joined;
  for (const auto& line : cut) {
    EXPECT_LE(line.size(), kMaxLineLength);
    joined += line;
  }
  EXPECT_EQ(cut[0].substr(cut[0].size() - 5), "\" & _");
  EXPECT_EQ(cut[1].front(), '"');
  EXPECT_EQ(CheckVb6Structure("m.bas", "Attribute VB_Name = \"m\"\r\nSub A()\r\n" + cut[0] +
                                           "\r\n" + cut[1] + "\r\n" + cut[2] + "\r\nEnd Sub\r\n"),
            Lines{});
}

TEST(Statements, SplitWhereVisualBasicSplitsThem) {
  const std::pair<const char*, Lines> cases[] = {
      {"x = 1: y = 2", {"x = 1", "y = 2"}},
      {"Err_Here: Resume Next", {"Err_Here:", "Resume Next"}},
      {"Else: x = 1", {"Else", "x = 1"}},
      {"Else If a Then", {"Else", "If a Then"}},
      {"Else ' done", {"Else ' done"}},
      {"If a Then b = 1: c = 2 Else d = 3", {"If a Then b = 1: c = 2 Else d = 3"}},
      {"x = 1: If a Then b = 1: c = 2", {"x = 1", "If a Then b = 1: c = 2"}},
      {"Call f(a:=1, b:=\"x:y\"): t = #12:30:00#", {"Call f(a:=1, b:=\"x:y\")", "t = #12:30:00#"}},
      {"x = 1 ' a: b", {"x = 1 ' a: b"}},
      {"x = 1: Rem a: b", {"x = 1: Rem a: b"}},
      {"Rem// Name: x", {"Rem// Name: x"}},
  };
  for (const auto& [line, statements] : cases) EXPECT_EQ(SplitStatements(line), statements) << line;
}

}  // namespace
}  // namespace morvane

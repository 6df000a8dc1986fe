// The shared text helpers: identifiers, fields, backward search, expression
// tokens, form references and the integer sort.
#include "translator/text_helpers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

#include "session/conversion_session.h"

namespace morvane {
namespace {

struct TextCase {
  const char* input;
  const char* expected;
};

TEST(LeadingIdentifier, TakesTheIdentifierCharactersAtTheStart) {
  const TextCase cases[] = {
      {"Bookmark = 1", "Bookmark"},
      {"[a]", ""},
      {"", ""},
      {"Total_2.Value", "Total_2"},
      {"_x!y", "_x"},
      {"Gr\xfc\xdf"
       "e(1)",
       "Gr\xfc\xdf"
       "e"},            // codes above 128 belong to identifiers
      {"a\x80z", "a"},  // 128 itself does not
      {"a\x81z", "a\x81z"},
  };
  for (const auto& c : cases) EXPECT_EQ(LeadingIdentifier(c.input), c.expected) << c.input;
}

TEST(TrailingIdentifier, SkipsTheSeparatorAtTheEnd) {
  const TextCase cases[] = {
      {"Private Sub Form_Open(", "Form_Open"},
      {"Me.", "Me"},
      {"x = Me ", ""},  // a blank at the end gives nothing
      {"", ""},
      {"(", ""},
      {"ab", "a"},  // the last character is skipped even when it is a letter
      {"Sub cmd_Click", "cmd_Clic"},
      {"Forms!frmA!", "frmA"},
  };
  for (const auto& c : cases) EXPECT_EQ(TrailingIdentifier(c.input), c.expected) << c.input;
}

TEST(NthField, CutsAtEachDelimiterAndGivesEmptyBeyondTheEnd) {
  struct FieldCase {
    const char* text;
    int n;
    const char* delimiter;
    const char* expected;
  };
  const FieldCase cases[] = {
      {"a,b", 3, ",", ""},
      {"a,b", 1, ",", "a"},
      {"a,b", 2, ",", "b"},
      {"DoCmd.RunMacro \"x\", 5", 2, ",", " 5"},
      {"DoCmd.RunMacro \"x\", 5", 1, ",", "DoCmd.RunMacro \"x\""},
      {"a,,c", 2, ",", ""},
      {"a,,c", 3, ",", "c"},
      {"", 1, ",", ""},
      {"abc", 1, ",", "abc"},
      {"abc", 2, ",", ""},
      {"a::b::c", 3, "::", "c"},
      {"a::b::c", 2, "::", "b"},
      {"a,b", 0, ",", ""},
      {"A,b", 1, "a", "A,b"},  // the search is exact
  };
  for (const auto& c : cases)
    EXPECT_EQ(NthField(c.text, c.n, c.delimiter), c.expected) << c.text << " / " << c.n;
}

TEST(LastIndexOfText, CountsStepsBackFromTheStart) {
  // The hit at "b" lies two steps back from the end of "abc".
  EXPECT_EQ(LastIndexOfText("abc", "B"), 1);
  EXPECT_EQ(LastIndexOfText("a.b.c", "."), 1);
  EXPECT_EQ(LastIndexOfText("x = Forms!a", "forms!"), 6);
  // A hit at the start position and no hit at all give the same 0.
  EXPECT_EQ(LastIndexOfText("abc", "c"), 0);
  EXPECT_EQ(LastIndexOfText("abc", "z"), 0);
  EXPECT_EQ(LastIndexOfText("", "z"), 0);

  int start = 0;
  EXPECT_EQ(LastIndexOfText("a.b.c", ".", start), 1);
  EXPECT_EQ(start, 5) << "a missing start is written back as the text's length";
  start = 3;
  EXPECT_EQ(LastIndexOfText("a.b.c", ".", start), 1);
  EXPECT_EQ(start, 3);
  start = 1;
  EXPECT_EQ(LastIndexOfText("a.b.c", ".", start), 0);
}

TEST(ExpressionToken, StopsAtTheEndOfTheValueExpression) {
  const TextCase cases[] = {
      {"Nz(a.b) Then", "Nz(a.b)"},
      {"2 Then", "2"},
      {"rs.Fields(\"x\") = 1", "rs.Fields(\"x\")"},  // quotes are taken inside parentheses
      {"\"x\" Then", ""},                            // but not at depth 0
      {"f(g(x)) Then", "f(g(x)"},                    // the first ")" ends the scan
      {"Nz(a, b)", "Nz(a"},
      {"abc", "abc"},
      {"", ""},
      {"a.b", "a.b"},
      {"x)", "x)"},
  };
  for (const auto& c : cases) EXPECT_EQ(ExpressionToken(c.input), c.expected) << c.input;
}

TEST(FormReference, NamesSelectedFormsAndLooksUpTheOthers) {
  ConversionSession listed;
  listed.FormList = {"", "Orders", "Order Details"};
  ConversionSession none;

  struct RefCase {
    const ConversionSession* s;
    const char* text;
    const char* expected;
  };
  const RefCase cases[] = {
      {&listed, "\"Orders\", acNormal", "Orders"},
      {&none, "\"Orders\", acNormal", "GetFormFromName(\"Orders\")"},
      {&listed, "\"orders\"", "orders"},  // the name as written, made safe
      {&listed, "\"Order Details\"", "Order_Details"},
      {&listed, "[Order Details]!Total", "Order_Details"},
      {&none, "[Order Details]!Total", "GetFormFromName(\"Order Details\")"},
      {&none, "strName)", "GetFormFromName(strName)"},
      {&none, "Orders!Total", "Orders"},
      {&none, "Orders.Caption", "Orders"},
      {&listed, "Order_Details!x", "Order_Details"},  // compared with the safe names
      {&listed, "orders", "orders"},
      {&none, "", ""},
  };
  for (const auto& c : cases) EXPECT_EQ(FormReference(*c.s, c.text), c.expected) << c.text;
}

TEST(QuickSortInts, SortsTheRangeAndLeavesTheRestAlone) {
  std::mt19937 random(7);
  for (int size : {0, 1, 2, 3, 5, 17, 200}) {
    for (int round = 0; round < 20; ++round) {
      std::vector<int16_t> values(static_cast<size_t>(size));
      for (auto& v : values) v = static_cast<int16_t>(random() % 11 - 5);  // many equal values
      auto expected = values;
      int first = size > 2 ? 1 : 0;
      int last = size > 2 ? size - 2 : size - 1;
      if (size > 0) std::sort(expected.begin() + first, expected.begin() + last + 1);
      QuickSortInts(values, first, last);
      EXPECT_EQ(values, expected) << "size " << size;
    }
  }
  std::vector<int16_t> extremes = {32767, -32768, 0, -1, 1};
  QuickSortInts(extremes, 0, 4);
  EXPECT_EQ(extremes, (std::vector<int16_t>{-32768, -1, 0, 1, 32767}));
  std::vector<int16_t> pair = {2, 1};
  QuickSortInts(pair, 0, 0);  // a range of length 0 does nothing
  EXPECT_EQ(pair, (std::vector<int16_t>{2, 1}));
}

}  // namespace
}  // namespace morvane

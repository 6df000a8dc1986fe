// The naming helpers and the option word.
#include "session/naming.h"

#include <gtest/gtest.h>

#include "session/conversion_session.h"

namespace morvane {
namespace {

struct NamingCase {
  const char* input;
  const char* expected;
};

TEST(SafeName, ReplacesWhatAnIdentifierCannotHold) {
  const NamingCase cases[] = {
      {"Order Details", "Order_Details"},
      {"1st (new)", "1st__new_"},
      {"__x", "x"},
      {"", ""},
      {"___", ""},
      {"Stra\xdf"
       "e",
       "Stra\xdf"
       "e"},  // codes from 129 up stay
      {"a\x80"
       "b",
       "a_b"},  // the euro sign is below 129
      {"a-b.c", "a_b_c"},
  };
  for (const auto& c : cases) EXPECT_EQ(SafeName(c.input), c.expected) << c.input;
}

TEST(SafeFileName, ReplacesWhatAFileNameCannotHold) {
  EXPECT_EQ(SafeFileName("a/b:c"), "a_b_c");
  EXPECT_EQ(SafeFileName("x\\y*z?\"<>|"), "x_y_z_____");
  EXPECT_EQ(SafeFileName("Order Details"), "Order Details");
  EXPECT_EQ(SafeFileName(""), "");
}

TEST(FileNameOf, TakesThePartAfterTheLastSeparator) {
  EXPECT_EQ(FileNameOf("C:\\data\\Orders.mdb"), "Orders.mdb");
  EXPECT_EQ(FileNameOf("/home/u/Orders.mdb"), "Orders.mdb");
  EXPECT_EQ(FileNameOf("Orders.mdb"), "Orders.mdb");
  EXPECT_EQ(FileNameOf("dir\\"), "");
}

TEST(ReplaceAllText, IgnoresCaseAndResumesBehindTheInsertion) {
  EXPECT_EQ(ReplaceAllText("Me!a + ME!b", "me!", "Me."), "Me.a + Me.b");
  EXPECT_EQ(ReplaceAllText("aaa", "a", "aa"), "aaaaaa");
  EXPECT_EQ(ReplaceAllText("", "a", "b"), "");
  EXPECT_EQ(ReplaceAllText("say \"x\"", "\"", "\"\""), "say \"\"x\"\"");
}

TEST(StartsWithLetter, OnlyAsciiLetters) {
  EXPECT_TRUE(StartsWithLetter("a1"));
  EXPECT_TRUE(StartsWithLetter("Z"));
  EXPECT_FALSE(StartsWithLetter(""));
  EXPECT_FALSE(StartsWithLetter("1a"));
  EXPECT_FALSE(StartsWithLetter("_a"));
  EXPECT_FALSE(StartsWithLetter("\xc4pfel"));
}

TEST(OptionWord, PacksElevenDigitsInTheirPositions) {
  ConversionSession s;
  s.IsVb5 = true;
  s.ListboxType = 3;
  s.ListboxBound = true;
  s.ComboboxType = 2;
  s.ComboboxBound = false;
  s.StandardControls = false;
  s.IsMdi = true;
  s.WantRelativePaths = false;
  s.WantSsOptionSet = true;
  s.UseAdo = true;
  s.WantDatePicker = false;
  EXPECT_EQ(PackOptionWord(s), "13120010110");
}

TEST(OptionWord, UnpackingSetsTheWalkersFieldsAndTheLength) {
  ConversionSession s;
  UnpackOptionWord(s, "/out/", "05041111011");
  EXPECT_EQ(s.OutputPath, "/out/");
  EXPECT_EQ(s.OptionWordLength, 11);
  EXPECT_FALSE(s.IsVb5);
  EXPECT_EQ(s.ListboxType, 5);
  EXPECT_FALSE(s.ListboxBound);
  EXPECT_EQ(s.ComboboxType, 4);
  EXPECT_TRUE(s.ComboboxBound);
  EXPECT_TRUE(s.RelativePaths);
  EXPECT_FALSE(s.SsOptionSet);
  EXPECT_TRUE(s.DatePicker);
}

TEST(OptionWord, AShortWordLeavesDatePickerOnAndMarksTheSession) {
  ConversionSession s;
  UnpackOptionWord(s, "/out/", "0504111010");
  EXPECT_EQ(s.OptionWordLength, 10);
  EXPECT_TRUE(s.DatePicker);
}

}  // namespace
}  // namespace morvane

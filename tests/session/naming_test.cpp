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
  RunOptions o;
  o.IsVb5 = true;
  o.ListboxType = 3;
  o.ListboxBound = true;
  o.ComboboxType = 2;
  o.ComboboxBound = false;
  o.StandardControls = false;
  o.IsMdi = true;
  o.RelativePaths = false;
  o.SsOptionSet = true;
  o.UseAdo = true;
  o.DatePicker = false;
  EXPECT_EQ(PackOptionWord(o), "13120010110");
  ConversionSession s;
  UnpackOptionWord(s, "/out/", "0504111010");
  EXPECT_EQ(s.OutputPath, "/out/");
  EXPECT_EQ(s.OptionWordLength, 10);
}

}  // namespace
}  // namespace morvane

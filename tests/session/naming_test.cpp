// The naming helpers and the option word.
#include "session/naming.h"

#include <gtest/gtest.h>

#include "platform/encoding.h"
#include "session/conversion_session.h"
#include "session/name_registry.h"

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

// The end-to-end run over clashing names shows the generated components
// keeping their names, a device name and a leading digit in a file name, and
// a letter from 128 up kept; these are the rest of the rules.
TEST(NameRegistry, NamesAreIdentifiersUniqueAndTheSameEverywhere) {
  NameRegistry names;
  auto vb = [&](ComponentRole role, const std::string& name) {
    return names.Name(role, name).VbName;
  };
  auto file = [&](ComponentRole role, const std::string& name) {
    return names.Name(role, name).File;
  };
  EXPECT_EQ(vb(ComponentRole::Form, "Orders"), "Orders");
  EXPECT_EQ(vb(ComponentRole::Module, "orders"), "ordersA");  // without regard to case
  EXPECT_EQ(file(ComponentRole::Module, "orders"), "orders_");
  EXPECT_EQ(vb(ComponentRole::Form, "frm A"), "frm_A");
  EXPECT_EQ(vb(ComponentRole::Form, "frm-A"), "frm_AA");
  EXPECT_EQ(file(ComponentRole::Form, "frm-A"), "frm_AA");
  EXPECT_EQ(vb(ComponentRole::Form, "frm A"), "frm_A");  // asked again, the same name
  // What Visual Basic does not take in a name.
  EXPECT_EQ(vb(ComponentRole::Form, "00_Home"), "a00_Home");
  EXPECT_EQ(vb(ComponentRole::Form,
               "Temp\xB0"
               "C"),
            "Temp_C");
  EXPECT_EQ(vb(ComponentRole::Form, "Select"), "aSelect");
  EXPECT_EQ(vb(ComponentRole::Form, "??"), "a");
  EXPECT_EQ(vb(ComponentRole::Form, "?"), "aA");
  const std::string longName(45, 'x');
  EXPECT_EQ(vb(ComponentRole::Form, longName), std::string(40, 'x'));
  EXPECT_EQ(vb(ComponentRole::Form, longName + "y"), std::string(39, 'x') + "A");
  EXPECT_EQ(names.DataControl(longName), "dat" + std::string(37, 'x'));
  // File names: no device names, no characters a file system refuses;
  // a module keeps its blanks.
  EXPECT_EQ(file(ComponentRole::Module, "a:b*c"), "a_b_c");
  EXPECT_EQ(file(ComponentRole::Module, "Date Helpers"), "Date Helpers");
  // Each renaming beyond the usual mapping is said once.
  int said = 0;
  for (const auto& r : names.Renamings()) said += r.Object == "frm-A";
  EXPECT_EQ(said, 1);
}

TEST(NameRegistry, NamesWithoutAWindows1252FormStayApart) {
  EXPECT_EQ(Utf8NameToWindows1252("l\xC4\xABgumi"), "ligumi");
  EXPECT_EQ(Utf8NameToWindows1252("\xE4\xB8\xAD\xE6\x96\x87"), "u4E2Du6587");
  EXPECT_EQ(Utf8NameToWindows1252("Caf\xC3\xA9"), "Caf\xE9");
}

}  // namespace
}  // namespace morvane

// ControlDefaults, the recent files and the update description, without Qt.
#include "shell/settings_values.h"

#include <gtest/gtest.h>

#include "support/temp_dir.h"

namespace morvane {
namespace {

TEST(ControlDefaults, PacksFifteenPositionsAndRestoresThem) {
  WindowOptions o;
  o.SecurityDisabled = false;
  o.ListboxIndex = 2;
  o.ListboxBound = true;
  o.ComboboxIndex = 0;
  o.ComboboxBound = false;
  o.SsOptionSet = true;
  o.Mdi = false;
  o.Ado = false;
  o.DatePicker = false;
  const std::string packed = PackControlDefaults(o);
  EXPECT_EQ(packed, "002100010111100");
  WindowOptions back;
  UnpackControlDefaults(packed, 5, 4, &back);
  EXPECT_EQ(PackControlDefaults(back), packed);
  // The first-use options.
  EXPECT_EQ(PackControlDefaults(WindowOptions{}), "100001001111111");
}

TEST(ControlDefaults, ShortOrStrangeTextsTakeTheOtherBranch) {
  WindowOptions o;
  UnpackControlDefaults("1", 5, 4, &o);
  EXPECT_TRUE(o.SecurityDisabled);
  EXPECT_EQ(o.ListboxIndex, -1);
  EXPECT_EQ(o.ComboboxIndex, -1);
  EXPECT_FALSE(o.Mdi);
  EXPECT_FALSE(o.Ado);
  EXPECT_TRUE(o.DatePicker);  // position 15 missing: ticked
  // An index beyond its list, or no digit, selects nothing; only "0" unticks
  // the date picker.
  UnpackControlDefaults("1x9x7x0yyyyyyyX", 5, 4, &o);
  EXPECT_EQ(o.ListboxIndex, -1);
  EXPECT_EQ(o.ComboboxIndex, -1);
  EXPECT_FALSE(o.ListboxBound);
  EXPECT_TRUE(o.DatePicker);
}

TEST(RecentFiles, RotateWithoutDuplicates) {
  struct Case {
    const char* chosen;
    RecentFiles after;
  } cases[] = {
      {"a", {"a", "b", "c", "d"}},  // the newest again: nothing moves
      {"b", {"b", "a", "c", "d"}}, {"c", {"c", "a", "b", "d"}},
      {"d", {"d", "a", "b", "c"}},  // the oldest comes to the front
      {"e", {"e", "a", "b", "c"}},
  };
  for (const auto& c : cases) {
    RecentFiles files{"a", "b", "c", "d"};
    RotateRecentFiles(&files, c.chosen);
    EXPECT_EQ(files, c.after) << c.chosen;
  }
  RecentFiles empty{};
  RotateRecentFiles(&empty, "x");
  EXPECT_EQ(empty, (RecentFiles{"x", "", "", ""}));
  EXPECT_EQ(StoredText(""), " ");
}

TEST(UpdateDescription, ReadsValuesAndDates) {
  test::TempDir dir;
  test::WriteFile(dir / "u.ini",
                  "[Other]\r\nProductDate=1999-01-01\r\n[morvane45]\r\n ProductDate = 3/15/2031 "
                  "\r\nFileSize=12\r\n; a comment\r\nURLName=http://h/x/setup.deb\r\n");
  EXPECT_EQ(ReadIniValue(dir / "u.ini", "Morvane45", "ProductDate"), "3/15/2031");
  EXPECT_EQ(ReadIniValue(dir / "u.ini", "Morvane45", "urlname"), "http://h/x/setup.deb");
  EXPECT_EQ(ReadIniValue(dir / "u.ini", "Morvane45", "Missing"), "");
  EXPECT_EQ(ReadIniValue(dir / "none.ini", "Morvane45", "ProductDate"), "");

  EXPECT_EQ(DayNumber("1899-12-30"), 0);
  EXPECT_EQ(DayNumber("2000-01-01"), 36526);  // as Visual Basic counts it
  EXPECT_EQ(DayNumber("1/1/2000"), 36526);
  EXPECT_EQ(DayNumber("36526.75"), 36526);
  EXPECT_LT(*DayNumber("2031-03-14"), *DayNumber("3/15/2031"));
  for (const char* bad : {"", "soon", "2031-13-01", "12/40/2031", "<html>", "1.2.3"})
    EXPECT_FALSE(DayNumber(bad)) << bad;
}

}  // namespace
}  // namespace morvane

// Class names of the control project: unique among the run's classes within
// 39 characters of project, point and class.
#include "cforms/continuous_forms.h"

#include <gtest/gtest.h>

#include "design/design_store.h"

namespace morvane {
namespace {

TEST(UniqueProgId, NamesStayWithin39CharactersAndTakeLettersWhenTheyMeet) {
  DesignStore store([](AccessObjectKind, const std::string&, DesignStore::ExportText*,
                       bool* missing, std::string*) {
    *missing = true;
    return false;
  });
  ContinuousForms forms(store);
  const std::string project = "Orders_CF";  // 9 characters: 29 remain for a class
  EXPECT_EQ(forms.UniqueProgId("cfLines", project), "cfLines");
  // A name seen before takes a letter, and another while it meets one.
  EXPECT_EQ(forms.UniqueProgId("cfLines", project), "cfLinesA");
  EXPECT_EQ(forms.UniqueProgId("cfLines", project), "cfLinesAB");
  // Two long names that meet in their first 29 characters differ in the last.
  const std::string longName = "cfOrder_Lines_With_Their_Products_A";
  EXPECT_EQ(forms.UniqueProgId(longName, project), "cfOrder_Lines_With_Their_Prod");
  EXPECT_EQ(forms.UniqueProgId(longName + "nd_More", project), "cfOrder_Lines_With_Their_ProA");
  // Names are compared without regard to case; a name not beginning with a
  // letter gets an "a" ahead of it.
  EXPECT_EQ(forms.UniqueProgId("CFLINES", project), "CFLINESABC");
  EXPECT_EQ(forms.UniqueProgId("1st", project), "a1st");
}

}  // namespace
}  // namespace morvane

// The compiled-in table of Access's properties per type: it covers every
// control type, says which type has which property, and the reader of the
// table refuses malformed rows.
#include "design/control_defaults.h"

#include <gtest/gtest.h>

#include "design/control_types.h"

namespace morvane {
namespace {

TEST(ControlDefaults, EveryTypeOfTheControlTableIsDescribed) {
  for (const auto& t : kControlTypes) {
    if (!t.Converted) {
      EXPECT_EQ(SchemaFor(t.BlockName), nullptr) << t.BlockName;
      continue;
    }
    const PropertySchema* s = SchemaFor(t.BlockName);
    ASSERT_NE(s, nullptr) << t.BlockName;
    for (const char* common : {"Name", "Visible", "Left", "Top", "Tag"})
      EXPECT_NE(s->Find(common), nullptr) << t.BlockName << "." << common;
    if (t.Number != kPageBreak) {
      EXPECT_NE(s->Find("Width"), nullptr) << t.BlockName;
      EXPECT_NE(s->Find("Height"), nullptr) << t.BlockName;
    }
    for (const auto& p : s->Properties()) {
      if (p.Kind != PropertyKind::Event) continue;
      EXPECT_TRUE(p.Name.rfind("On", 0) == 0 || p.Name.rfind("Before", 0) == 0 ||
                  p.Name.rfind("After", 0) == 0)
          << t.BlockName << "." << p.Name;
    }
  }
  for (const char* other : {"Form", "Report", "FormSection", "ReportSection", "BreakLevel",
                            "GroupedOptionButton", "GroupedCheckBox", "GroupedToggleButton"})
    EXPECT_NE(SchemaFor(other), nullptr) << other;
}

TEST(ControlDefaults, WhichTypeHasWhichProperty) {
  struct Row {
    const char* type;
    const char* property;
    bool has;
  };
  // The properties whose absence a writer relies on, and those that set
  // one type apart from its kin.
  const Row rows[] = {
      {"Label", "TabStop", false},
      {"Label", "ControlSource", false},
      {"TextBox", "Caption", false},
      {"CheckBox", "Caption", false},
      {"CommandButton", "ControlSource", false},
      {"CommandButton", "PictureData", true},
      {"Rectangle", "ControlTipText", false},
      {"Line", "OnClick", false},
      {"ListBox", "LimitToList", false},
      {"ComboBox", "MultiSelect", false},
      {"ComboBox", "OnNotInList", true},
      {"Tab", "Caption", false},
      {"PageBreak", "Width", false},
      {"UnboundObjectFrame", "ControlSource", false},
      {"OptionButton", "OptionValue", false},
      {"GroupedOptionButton", "OptionValue", true},
      {"GroupedCheckBox", "ControlSource", false},
      {"Report", "DefaultView", false},
      {"FormSection", "OnFormat", false},
      {"ReportSection", "OnFormat", true},
      {"BreakLevel", "GroupInterval", true},
  };
  for (const Row& r : rows) {
    const PropertySchema* s = SchemaFor(r.type);
    ASSERT_NE(s, nullptr) << r.type;
    EXPECT_EQ(s->Find(r.property) != nullptr, r.has) << r.type << "." << r.property;
  }
}

TEST(ControlDefaults, LookupIgnoresCase) {
  const PropertySchema* s = SchemaFor("textbox");
  ASSERT_NE(s, nullptr);
  const PropertyDefault* d = s->Find("decimalplaces");
  ASSERT_NE(d, nullptr);
  EXPECT_EQ(d->Name, "DecimalPlaces");
  EXPECT_EQ(d->Kind, PropertyKind::Number);
  EXPECT_EQ(d->Value, "255");
  EXPECT_EQ(s->Find("HelpContextID")->Name, "HelpContextId");
  const PropertyDefault* caption = SchemaFor("Form")->Find("Caption");
  EXPECT_TRUE(caption->IsNull);
}

TEST(ControlDefaults, MalformedTablesAreRefusedWithTheirLine) {
  struct Row {
    const char* text;
    const char* error;
  };
  const Row rows[] = {
      {"# c\nLabel\tName\ttext\n", "line 2: expected 4 tab-separated fields, found 3"},
      {"Label\tName\tstring\t\n", "line 1: unknown kind \"string\""},
      {"Label\tVisible\tflag\tYes\n", "line 1: flag Visible must default to True or False"},
      {"Label\tLeft\tnumber\tleft\n", "line 1: number Left has no numeric default"},
      {"Label\tName\ttext\t\nLabel\tname\ttext\t\n", "line 2: Label lists name twice"},
      {"A\tX\ttext\t\nB\tX\ttext\t\nA\tY\ttext\t\n", "line 3: rows of type A are not together"},
      {"\tX\ttext\t\n", "line 1: empty type or property name"},
  };
  for (const Row& r : rows) {
    std::vector<PropertySchema> out;
    std::string err;
    EXPECT_FALSE(ParseControlDefaults(r.text, &out, &err)) << r.text;
    EXPECT_EQ(err, r.error);
  }
  std::vector<PropertySchema> out;
  std::string err;
  ASSERT_TRUE(
      ParseControlDefaults("\r\n# x\r\nT\tB\tflag\tTrue\r\nT\tA\tnumber\t-1.5\r\n", &out, &err))
      << err;
  ASSERT_EQ(out.size(), 1u);
  EXPECT_EQ(out[0].Properties().front().Name, "A");
}

}  // namespace
}  // namespace morvane

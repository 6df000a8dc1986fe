// The design records read from hand-written exports: control types, the
// reading rule (text, the form's default block, Access's default, missing),
// nesting as Parent, sections, pictures, reports and later formats. A tab
// control's pages and the controls on each are shown by the tabs golden run, a
// control's event settings and its embedded macro, by name and text, by the
// forms golden run (frmEvents).
#include "design/form_design.h"

#include <gtest/gtest.h>

#include "design/control_types.h"
#include "design/design_loader.h"
#include "platform/text_file.h"
#include "support/temp_dir.h"
#include "tests/design/design_texts.h"

namespace morvane {
namespace {

std::unique_ptr<FormDesign> Load(const char* text, const std::string& name) {
  std::string err;
  auto design = LoadDesign(SplitLines(text), name + ".txt", name, &err);
  EXPECT_NE(design, nullptr) << err;
  return design;
}

class CustomersForm : public ::testing::Test {
 protected:
  void SetUp() override { form_ = Load(test::kCustomersForm, "frmCustomers"); }
  const ControlDesign& C(const char* name) const {
    const ControlDesign* c = form_->Control(name);
    if (!c) ADD_FAILURE() << "no control " << name;
    return c ? *c : form_->Controls().front();
  }
  std::unique_ptr<FormDesign> form_;
};

TEST_F(CustomersForm, ControlsInTextOrderWithTheirTypes) {
  struct Row {
    const char* name;
    int type;
  };
  const Row rows[] = {
      {"lblTitle", 100},  {"First Name", 109}, {"lblFirst", 100},  {"grpKind", 107},
      {"lblKind", 100},   {"optA", 105},       {"chkB", 106},      {"tglC", 122},
      {"optAlone", 105},  {"chkAlone", 106},   {"tglAlone", 122},  {"boxFrame", 101},
      {"lnSep", 102},     {"imgLogo", 103},    {"cmdOK", 104},     {"oleDoc", 108},
      {"lstItems", 110},  {"cboCity", 111},    {"subOrders", 112}, {"oleChart", 114},
      {"pb1", 118},       {"axCal", 119},      {"tabMain", 123},   {"pgOne", 124},
      {"txtOnPage", 109}, {"lblOnPage", 100},  {"pgTwo", 124},     {"grpOnPage", 107},
      {"optOnPage", 105},
  };
  auto controls = form_->Controls();
  ASSERT_EQ(controls.size(), std::size(rows));
  for (size_t i = 0; i < controls.size(); ++i) {
    EXPECT_EQ(controls[i].Name(), rows[i].name) << i;
    EXPECT_EQ(controls[i].ControlType(), rows[i].type) << rows[i].name;
    EXPECT_EQ(controls[i].Number("ControlType"), rows[i].type) << rows[i].name;
  }
  // Every type of the control table is in this form.
  for (const auto& t : kControlTypes) {
    if (!t.Converted) continue;
    bool seen = false;
    for (const auto& c : controls) seen = seen || c.ControlType() == t.Number;
    EXPECT_TRUE(seen) << t.BlockName;
  }
}

TEST_F(CustomersForm, ReadingRule) {
  struct Row {
    const char* control;
    const char* property;
    std::optional<std::string> text;
  };
  const Row rows[] = {
      // A label has no TabStop; no type has NoSuchProperty.
      {"lblTitle", "TabStop", std::nullopt},
      {"First Name", "NoSuchProperty", std::nullopt},
      // Unset Visible is True; the form's default block makes labels
      // transparent and changes text boxes' effect, border and width.
      {"lblTitle", "Visible", "-1"},
      {"lblTitle", "BackStyle", "0"},
      {"First Name", "SpecialEffect", "2"},
      {"First Name", "OldBorderStyle", "0"},
      {"First Name", "BorderStyle", "0"},
      {"First Name", "Width", "1701"},
      // What the text writes beats the default block.
      {"lblTitle", "Width", "2000"},
      // Access's own defaults where neither says anything.
      {"First Name", "FontName", "MS Sans Serif"},
      {"tglAlone", "Caption", ""},
      {"tabMain", "Value", "0"},
      // NotDefault on a property that defaults to True or to False, also
      // from the default block.
      {"chkAlone", "Visible", "0"},
      {"chkB", "Visible", "0"},
      {"cmdOK", "Default", "-1"},
      {"cboCity", "LimitToList", "-1"},
      {"lnSep", "LineSlant", "-1"},
      {"boxFrame", "BorderStyle", "3"},
      {"pb1", "Top", "2500"},
      {"lstItems", "Section", "0"},
      {"lblTitle", "Section", "1"},
  };
  for (const Row& r : rows)
    EXPECT_EQ(C(r.control).Text(r.property), r.text) << r.control << "." << r.property;
}

TEST_F(CustomersForm, TypedReads) {
  EXPECT_EQ(C("chkAlone").Flag("Visible"), false);
  EXPECT_EQ(C("chkAlone").Number("Visible"), 0);
  EXPECT_EQ(C("First Name").Number("TabIndex"), 1);
  EXPECT_EQ(C("First Name").Flag("TabIndex"), true);
  EXPECT_EQ(C("lblTitle").Flag("TabStop"), std::nullopt);
  // A text property that is no number fails as a number.
  EXPECT_EQ(C("First Name").Number("ControlSource"), std::nullopt);
  EXPECT_EQ(C("First Name").Flag("ControlSource"), std::nullopt);
  // Binary properties read only as bytes; an unset one is empty where the
  // type has it.
  EXPECT_EQ(C("imgLogo").Bytes("PictureData")->size(), 18u);
  EXPECT_EQ(C("imgLogo").Text("PictureData"), std::nullopt);
  EXPECT_EQ(C("cmdOK").Bytes("PictureData"), "");
  EXPECT_EQ(C("cmdOK").Bytes("Caption"), std::nullopt);
  EXPECT_EQ(C("lblTitle").Bytes("PictureData"), std::nullopt);
  EXPECT_TRUE(C("First Name").IsWritten("ControlSource"));
  EXPECT_FALSE(C("First Name").IsWritten("Height"));
  EXPECT_TRUE(C("First Name").Has("Height"));
  EXPECT_FALSE(C("lblTitle").Has("TabStop"));
}

TEST_F(CustomersForm, FormProperties) {
  const FormDesign& f = *form_;
  EXPECT_FALSE(f.IsReport());
  EXPECT_EQ(f.Version(), 19);
  EXPECT_EQ(f.Text("Caption"), "Customer \"list\"");
  EXPECT_EQ(f.Flag("Modal"), false);
  EXPECT_EQ(f.Flag("NavigationButtons"), true);
  // A form that writes no DefaultView shows continuous forms.
  EXPECT_EQ(f.Number("DefaultView"), 1);
  // MinMaxButtons =1: a minimise button only.
  EXPECT_EQ(f.Flag("MinButton"), true);
  EXPECT_EQ(f.Text("MaxButton"), "0");
  EXPECT_EQ(f.Bytes("PictureData"), std::string("\x42\x4d\x06\x00\x00\xff", 6));
  EXPECT_EQ(f.Text("TabStop"), std::nullopt);
  ASSERT_TRUE(f.HasCode());
  EXPECT_EQ(f.Code().front(), "Attribute VB_GlobalNameSpace = False");
  EXPECT_EQ(f.Code().back(), "End Sub");
  EXPECT_TRUE(f.Notes().empty());
}

TEST(FormDesign, UnsetCaptionIsNull) {
  auto f = Load("Begin Form\nEnd\n", "frmBare");
  EXPECT_TRUE(f->IsNull("Caption"));
  EXPECT_EQ(f->Text("Caption"), "");
  EXPECT_FALSE(f->HasCode());
  EXPECT_TRUE(f->Controls().empty());
  EXPECT_EQ(f->Section(0), nullptr);
}

// A control reads its events from its own text, the form's default-control
// block or an embedded macro; only when none of them has one may a reader of
// many events take them all as empty.
TEST(FormDesign, WhetherAControlMayReadEvents) {
  auto f = Load(R"txt(Begin Form
    Begin
        Begin CommandButton
            OnClick ="[Event Procedure]"
        End
        Begin Section
            Name ="Detail"
            Begin
                Begin TextBox
                    Name ="txtPlain"
                    ControlSource ="City"
                End
                Begin TextBox
                    Name ="txtOwn"
                    afterupdate ="=Recalc()"
                End
                Begin CommandButton
                    Name ="cmdFromDefaults"
                End
                Begin Label
                    Name ="lblMacro"
                    OnDblClickEmMacro = Begin
                        Version =196611
                    End
                End
            End
        End
    End
End
)txt",
                "frmEvents");
  struct Row {
    const char* control;
    bool mayRead;
  };
  for (const Row& r : {Row{"txtPlain", false}, Row{"txtOwn", true}, Row{"cmdFromDefaults", true},
                       Row{"lblMacro", true}}) {
    const ControlDesign* c = f->Control(r.control);
    ASSERT_NE(c, nullptr) << r.control;
    EXPECT_EQ(c->MayReadEvents(), r.mayRead) << r.control;
    if (!r.mayRead) {
      for (const char* e : {"OnClick", "BeforeUpdate", "AfterUpdate", "OnExit"})
        EXPECT_EQ(c->Text(e).value_or(""), "") << r.control << " " << e;
    }
  }
  EXPECT_EQ(f->Control("cmdFromDefaults")->Text("OnClick"), "[Event Procedure]");
}

TEST_F(CustomersForm, Sections) {
  ASSERT_EQ(form_->Sections().size(), 3u);
  const SectionDesign* header = form_->Section(1);
  ASSERT_TRUE(header && form_->Section(0) && form_->Section(2));
  EXPECT_EQ(form_->Section(3), nullptr);
  EXPECT_EQ(header->Number("BackColor"), -2147483633L);
  EXPECT_EQ(form_->Section(0)->Flag("Visible"), true);
  ASSERT_EQ(header->Controls().size(), 1u);
  EXPECT_EQ(header->Controls()[0].Name(), "lblTitle");
  EXPECT_EQ(form_->Section(0)->Controls().size(), form_->Controls().size() - 1);
}

TEST_F(CustomersForm, ParentFollowsNesting) {
  struct Row {
    const char* control;
    const char* parent;  // nullptr: the form
  };
  const Row rows[] = {
      {"First Name", nullptr},    {"lblFirst", "First Name"}, {"lblKind", "grpKind"},
      {"tglC", "grpKind"},        {"tabMain", nullptr},       {"txtOnPage", "pgOne"},
      {"lblOnPage", "txtOnPage"}, {"optOnPage", "grpOnPage"},
  };
  for (const Row& r : rows) {
    const ControlDesign& c = C(r.control);
    if (!r.parent) {
      EXPECT_EQ(c.ParentControl(), nullptr) << r.control;
      EXPECT_EQ(&c.Parent(), form_.get()) << r.control;
      EXPECT_EQ(c.Parent().Kind(), DesignKind::Form);
    } else {
      ASSERT_NE(c.ParentControl(), nullptr) << r.control;
      EXPECT_EQ(c.ParentControl()->Name(), r.parent) << r.control;
      EXPECT_EQ(c.Parent().Name(), r.parent) << r.control;
    }
  }
  // The walk's test for controls on pages: parent, then grandparent.
  const ControlDesign& opt = C("optOnPage");
  EXPECT_EQ(opt.ParentControl()->ParentControl()->ControlType(), kPage);
  EXPECT_EQ(&opt.Owner(), form_.get());
}

TEST_F(CustomersForm, OptionGroupMembersHaveOptionValueInsteadOfControlSource) {
  struct Row {
    const char* control;
    std::optional<long> optionValue;
    bool hasControlSource;
  };
  const Row rows[] = {
      {"optA", 1, false},
      {"chkB", 2, false},
      {"tglC", 3, false},
      {"optOnPage", 1, false},
      {"optAlone", std::nullopt, true},
      {"chkAlone", std::nullopt, true},
      {"tglAlone", std::nullopt, true},
  };
  for (const Row& r : rows) {
    EXPECT_EQ(C(r.control).Number("OptionValue"), r.optionValue) << r.control;
    EXPECT_EQ(C(r.control).Has("ControlSource"), r.hasControlSource) << r.control;
  }
  EXPECT_EQ(C("optAlone").Text("ControlSource"), "Flag");
  EXPECT_EQ(C("grpKind").Text("ControlSource"), "Kind");
  // Members still take their type's defaults from the form's default block.
  EXPECT_EQ(C("chkB").Number("SpecialEffect"), 2);
}

TEST_F(CustomersForm, EventProcPrefix) {
  EXPECT_EQ(C("First Name").EventProcPrefix(), "First_Name");
  EXPECT_EQ(C("First Name").Text("EventProcPrefix"), "First_Name");
  EXPECT_EQ(C("cmdOK").EventProcPrefix(), "cmdOK");
  auto f = Load(
      "Begin Form\n Begin\n  Begin Section\n   Begin\n    Begin CommandButton\n"
      "     Name =\"Save & Close\"\n     EventProcPrefix =\"Save___Close\"\n"
      "    End\n    Begin Label\n     Name =\"Größe-1\"\n    End\n   End\n  End\n End\nEnd\n",
      "frmPrefix");
  EXPECT_EQ(f->Control("Save & Close")->EventProcPrefix(), "Save___Close");
  // Characters from 128 up stay; others that no identifier holds become "_".
  EXPECT_EQ(f->Control("Größe-1")->EventProcPrefix(), "Größe_1");
}

TEST(ReportDesign, SectionsGroupLevelsAndControls) {
  auto r = Load(test::kSalesReport, "rptSales");
  ASSERT_TRUE(r);
  EXPECT_TRUE(r->IsReport());
  EXPECT_EQ(r->Kind(), DesignKind::Report);
  EXPECT_EQ(r->Text("Caption"), "Sales");
  EXPECT_EQ(r->Flag("LayoutForPrint"), true);
  EXPECT_EQ(r->Bytes("PrtMip")->size(), 20u);
  EXPECT_EQ(r->Text("DefaultView"), std::nullopt);

  // The sections in text order with their heights, and the controls of each
  // section, come out whole in the golden report designers
  // (rptSalesByDate, rptCustomerList); these are the reads they do not show.
  ASSERT_EQ(r->Sections().size(), 8u);
  ASSERT_TRUE(r->Section(0) && r->Section(5) && r->Section(7));
  EXPECT_EQ(r->Section(5)->Flag("KeepTogether"), true);
  EXPECT_EQ(r->Section(7)->Flag("KeepTogether"), false);
  EXPECT_EQ(r->Section(5)->Text("OnFormat"), "[Event Procedure]");
  EXPECT_EQ(r->Section(0)->Text("OnClick"), std::nullopt);

  struct LevelRow {
    const char* source;
    bool sortDescending, header, footer;
    long groupOn, interval, keepTogether;
  };
  const LevelRow levels[] = {
      {"Region", false, true, true, 0, 1, 0},
      {"Customer", true, false, false, 1, 5, 2},
  };
  ASSERT_EQ(r->GroupLevels().size(), 2u);
  for (int i = 0; i < 2; ++i) {
    const GroupLevelDesign* g = r->GroupLevel(i);
    ASSERT_NE(g, nullptr);
    EXPECT_EQ(g->Index(), i);
    EXPECT_EQ(g->Text("ControlSource"), levels[i].source);
    EXPECT_EQ(g->Flag("SortOrder"), levels[i].sortDescending);
    EXPECT_EQ(g->Flag("GroupHeader"), levels[i].header);
    EXPECT_EQ(g->Flag("GroupFooter"), levels[i].footer);
    EXPECT_EQ(g->Number("GroupOn"), levels[i].groupOn);
    EXPECT_EQ(g->Number("GroupInterval"), levels[i].interval);
    EXPECT_EQ(g->Number("KeepTogether"), levels[i].keepTogether);
  }
  EXPECT_EQ(r->GroupLevel(2), nullptr);

  EXPECT_EQ(r->Control("lblTitle")->Number("BackStyle"), 0);
  EXPECT_EQ(r->Code().back(), "Option Compare Database");
}

TEST(LaterFormat, ExtraKeysAreReadableAndNewControlTypesAreNoted) {
  auto f = Load(test::kLaterForm, "frmLater");
  ASSERT_TRUE(f);
  EXPECT_EQ(f->Version(), 21);
  const SectionDesign* detail = f->Section(0);
  ASSERT_NE(detail, nullptr);
  EXPECT_EQ(detail->Number("Height"), 3000);
  EXPECT_EQ(f->Flag("AllowDesignChanges"), false);
  EXPECT_EQ(f->Number("FilterOnLoad"), 0);
  const ControlDesign* label = f->Control("lblName");
  ASSERT_NE(label, nullptr);
  EXPECT_EQ(label->Text("FontName"), "Calibri");
  EXPECT_EQ(label->Number("FontSize"), 11);
  EXPECT_EQ(label->Real("ForeTint"), 75.0);
  EXPECT_EQ(label->Number("LayoutCachedWidth"), 2160);
  EXPECT_EQ(label->Number("Top"), 0);

  struct Row {
    const char* name;
    int type;
  };
  const Row rows[] = {
      {"EmptyCell7", 127},
      {"NavigationControl0", 129},
      {"NavigationButton1", 130},
      {"attFiles", 126},
  };
  for (const Row& r : rows) {
    const ControlDesign* c = f->Control(r.name);
    ASSERT_NE(c, nullptr) << r.name;
    EXPECT_EQ(c->ControlType(), r.type) << r.name;
    // No table for these: only what the text writes is there.
    EXPECT_EQ(c->Text("Visible"), std::nullopt) << r.name;
  }
  EXPECT_EQ(f->Control("attFiles")->Text("ControlSource"), "Files");
  EXPECT_EQ(f->Control("NavigationButton1")->ParentControl()->Name(), "NavigationControl0");

  std::vector<std::string> expected = {
      "frmLater.txt:44: control \"EmptyCell7\" is of type EmptyCell, which has no counterpart; it "
      "is "
      "passed over",
      "frmLater.txt:49: control \"NavigationControl0\" is of type NavigationControl, which has "
      "no counterpart; it is passed over",
      "frmLater.txt:52: control \"NavigationButton1\" is of type NavigationButton, which has "
      "no counterpart; it is passed over",
      "frmLater.txt:58: control \"attFiles\" is of type Attachment, which has no counterpart; it "
      "is "
      "passed over",
      "frmLater.txt:14: the value of Odd is of a kind that is not read",
  };
  EXPECT_EQ(f->Notes(), expected);
}

TEST(DesignLoader, ErrorsNameFileAndLine) {
  struct Row {
    const char* name;
    const char* text;
    const char* error;
  };
  const Row rows[] = {
      {"no form", "Version =20\nBegin Macro\nEnd\n",
       "x.txt:1: no \"Begin Form\" or \"Begin Report\" block; not a form or report"},
      {"module", "Attribute VB_Name = \"Module1\"\nOption Explicit\n",
       "x.txt:2: expected \"Key =value\", \"Begin\" or \"End\", found \"Option Explicit\""},
      {"truncated", "Version =20\nBegin Form\n    Begin\n        Begin Section\n",
       "x.txt:4: the file ends inside \"Begin Section\" opened at line 4 (3 block(s) not closed "
       "by \"End\")"},
  };
  for (const Row& r : rows) {
    std::string err;
    EXPECT_EQ(LoadDesign(SplitLines(r.text), "x.txt", "x", &err), nullptr) << r.name;
    EXPECT_EQ(err, r.error) << r.name;
  }
}

TEST(DesignLoader, FilesThatAreNoTextNameTheFile) {
  test::TempDir dir;
  struct Row {
    const char* file;
    std::string bytes;
  };
  const Row rows[] = {
      {"binary.txt", std::string("Version =20\nBegin Form\0\x01\x02End\n", 24)},
      {"odd_utf16.txt", std::string("\xFF\xFEV\0e\0r", 7)},
  };
  for (const Row& r : rows) {
    test::WriteFile(dir / r.file, r.bytes);
    std::string err;
    EXPECT_EQ(LoadDesignFile(dir / r.file, "x", &err), nullptr) << r.file;
    EXPECT_NE(err.find((dir / r.file).string()), std::string::npos) << err;
  }
  test::WriteFile(dir / "ok.txt", test::Crlf("Version =20\nBegin Form\n    Caption =\"A\"\nEnd\n"));
  std::string err;
  auto f = LoadDesignFile(dir / "ok.txt", "frmOk", &err);
  ASSERT_NE(f, nullptr) << err;
  EXPECT_EQ(f->File(), (dir / "ok.txt").string());
  EXPECT_EQ(f->Text("Caption"), "A");
}

TEST(DesignLoader, UnknownBlocksAreNotedNotFatal) {
  auto f = Load(
      "Begin Form\n"
      "    Begin\n"
      "        Begin Widget\n"
      "        End\n"
      "        Begin Section\n"
      "            Begin\n"
      "                Begin Gizmo\n"
      "                    Name =\"g\"\n"
      "                End\n"
      "            End\n"
      "        End\n"
      "        Begin Section\n"
      "        End\n"
      "    End\n"
      "End\n",
      "frmOdd");
  ASSERT_TRUE(f);
  ASSERT_EQ(f->Controls().size(), 1u);
  EXPECT_EQ(f->Controls()[0].ControlType(), 0);
  EXPECT_EQ(f->Notes(), (std::vector<std::string>{
                            "frmOdd.txt:3: block \"Widget\" is not read",
                            "frmOdd.txt:12: a second section 0 is not read",
                            "frmOdd.txt:7: control type \"Gizmo\" is unknown; the control is "
                            "passed over",
                        }));
}

}  // namespace
}  // namespace morvane

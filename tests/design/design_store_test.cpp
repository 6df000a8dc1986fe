// The design store: opening designs by name once, subform controls resolved
// to their forms two levels deep, messages for what is missing or broken,
// and a store over a real source tree on disk.
#include "design/design_store.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "design/design_loader.h"
#include "platform/text_file.h"
#include "session/naming.h"
#include "support/temp_dir.h"
#include "tests/design/design_texts.h"

namespace morvane {
namespace {

class DesignStoreTest : public ::testing::Test {
 protected:
  DesignStoreTest()
      : store_([this](AccessObjectKind kind, const std::string& name, DesignStore::ExportText* out,
                      bool* missing, std::string*) {
          ++reads_[name];
          for (const Export& e : exports_) {
            if (e.kind != kind || !EqualsNoCase(e.name, name)) continue;
            out->Lines = SplitLines(e.text);
            out->File = e.name + ".txt";
            out->Name = e.name;
            return true;
          }
          *missing = true;
          return false;
        }) {}

  struct Export {
    AccessObjectKind kind;
    std::string name;
    std::string text;
  };
  const std::vector<Export> exports_ = {
      {AccessObjectKind::Form, "frmCustomers", test::kCustomersForm},
      {AccessObjectKind::Form, "frmOrders", test::kOrdersForm},
      {AccessObjectKind::Form, "frmOrderLines", test::kOrderLinesForm},
      {AccessObjectKind::Report, "rptSales", test::kSalesReport},
      {AccessObjectKind::Form, "frmBroken", "Begin Form\n  Caption =\"x\n"},
      {AccessObjectKind::Form, "frmReallyReport", "Begin Report\nEnd\n"},
  };
  std::map<std::string, int> reads_;
  DesignStore store_;
};

TEST_F(DesignStoreTest, OpensEachDesignOnceWhateverTheCase) {
  std::string err;
  const FormDesign* a = store_.OpenForm("frmCustomers", &err);
  ASSERT_NE(a, nullptr) << err;
  EXPECT_EQ(store_.OpenForm("FRMCUSTOMERS", &err), a);
  EXPECT_EQ(store_.OpenForm("FRMCUSTOMERS", &err)->Name(), "frmCustomers");
  EXPECT_EQ(reads_["frmCustomers"], 1);
  EXPECT_EQ(a->Name(), "frmCustomers");
  EXPECT_EQ(store_.OpenCount(), 1u);
  store_.Close(AccessObjectKind::Form, "frmcustomers");
  EXPECT_EQ(store_.OpenCount(), 0u);
  ASSERT_NE(store_.OpenForm("frmCustomers", &err), nullptr);
  EXPECT_EQ(reads_["frmCustomers"], 2);
}

TEST_F(DesignStoreTest, SubformsResolveTwoLevelsDeep) {
  std::string err;
  const FormDesign* top = store_.OpenForm("frmCustomers", &err);
  ASSERT_NE(top, nullptr) << err;
  const FormDesign* orders = top->Control("subOrders")->Form(&err);
  ASSERT_NE(orders, nullptr) << err;
  EXPECT_EQ(orders->Name(), "frmOrders");
  EXPECT_EQ(orders->Number("DefaultView"), 2);
  // The SourceObject spells the name in lower case; the design has the
  // tree's spelling, as Access gives the form's own name.
  const FormDesign* lines = orders->Control("subLines")->Form(&err);
  ASSERT_NE(lines, nullptr) << err;
  EXPECT_EQ(lines->Name(), "frmOrderLines");
  EXPECT_EQ(lines->Number("DefaultView"), 1);
  EXPECT_EQ(lines->Controls()[0].Name(), "Qty");
  // The same design as opening it by name.
  EXPECT_EQ(store_.OpenForm("frmOrderLines", &err), lines);
  const FormDesign* report = orders->Control("subReport")->Form(&err);
  ASSERT_NE(report, nullptr) << err;
  EXPECT_TRUE(report->IsReport());
}

TEST_F(DesignStoreTest, MessagesForWhatCannotBeOpened) {
  std::string err;
  const FormDesign* orders = store_.OpenForm("frmOrders", &err);
  ASSERT_NE(orders, nullptr);
  struct Row {
    const char* what;
    const FormDesign* design;
    std::string error;
  };
  std::string e1, e2, e3, e4, e5, e6;
  const Row rows[] = {
      {"missing subform", orders->Control("subGone")->Form(&e1),
       "subform control \"subGone\" of \"frmOrders\": the form \"frmGone\" is not in the source "
       "tree"},
      {"no subform", orders->Control("OrderID")->Form(&e2),
       "\"OrderID\" of \"frmOrders\" is no subform control"},
      {"missing form", store_.OpenForm("frmNone", &e3),
       "the form \"frmNone\" is not in the source tree"},
      {"missing report", store_.OpenReport("frmCustomers", &e4),
       "the report \"frmCustomers\" is not in the source tree"},
      {"broken text", store_.OpenForm("frmBroken", &e5),
       "frmBroken.txt:2: a quoted value is not closed on its line"},
      {"wrong kind", store_.OpenForm("frmReallyReport", &e6),
       "frmReallyReport.txt:1: holds a report, not a form"},
  };
  const std::string* errors[] = {&e1, &e2, &e3, &e4, &e5, &e6};
  for (size_t i = 0; i < std::size(rows); ++i) {
    EXPECT_EQ(rows[i].design, nullptr) << rows[i].what;
    EXPECT_EQ(*errors[i], rows[i].error) << rows[i].what;
  }
  // A failure is kept: asking again gives the message without reading again.
  std::string again;
  EXPECT_EQ(store_.OpenForm("frmBroken", &again), nullptr);
  EXPECT_EQ(again, e5);
  EXPECT_EQ(reads_["frmBroken"], 1);
}

TEST(DesignStore, SubformOfADesignLoadedWithoutAStore) {
  std::string err;
  auto form = LoadDesign(SplitLines(test::kCustomersForm), "f.txt", "frmCustomers", &err);
  ASSERT_NE(form, nullptr) << err;
  EXPECT_EQ(form->Control("subOrders")->Form(&err), nullptr);
  EXPECT_EQ(err,
            "subform control \"subOrders\" of \"frmCustomers\": no designs are open to find "
            "\"frmOrders\"");
}

TEST(DesignStore, OverASourceTreeOnDisk) {
  test::TempDir dir;
  // UTF-16LE with a byte order mark, as Access writes.
  std::string utf16 = "\xFF\xFE";
  for (char c : test::Crlf(test::kOrdersForm)) utf16 += {c, '\0'};
  test::WriteFile(dir / "Form_frmParent.txt", utf16);
  // The child keeps its code in a file of its own; the report's stub names a
  // code file that is not there. Either way the stub is no code.
  test::WriteFile(dir / "Form_frmOrderLines.txt",
                  test::Crlf("Version =20\nBegin Form\n    Caption =\"Child\"\nEnd\n"
                             "CodeBehindForm\n' See \"Form_frmOrderLines.cls\"\n"));
  test::WriteFile(dir / "Form_frmOrderLines.cls",
                  "Attribute VB_GlobalNameSpace = False\nAttribute VB_Creatable = True\n"
                  "Attribute VB_PredeclaredId = True\nAttribute VB_Exposed = False\n"
                  "Option Explicit\nPrivate Sub Form_Load()\nEnd Sub\n");
  test::WriteFile(dir / "Report_rptEmpty.txt",
                  "Version =20\nBegin Report\nEnd\nCodeBehindForm\n' See \"rptEmpty.cls\"\n");
  std::string err;
  auto tree = SourceTree::Open(dir.path(), "", &err);
  ASSERT_NE(tree, nullptr) << err;
  DesignStore store(*tree);
  const FormDesign* parent = store.OpenForm("frmParent", &err);
  ASSERT_NE(parent, nullptr) << err;
  EXPECT_EQ(parent->Number("DefaultView"), 2);
  const FormDesign* child = parent->Control("subLines")->Form(&err);
  ASSERT_NE(child, nullptr) << err;
  EXPECT_EQ(child->Text("Caption"), "Child");
  EXPECT_EQ(child->Code().back(), "End Sub");
  EXPECT_EQ(std::count(child->Code().begin(), child->Code().end(), "Option Explicit"), 1);
  const FormDesign* report = store.OpenReport("rptEmpty", &err);
  ASSERT_NE(report, nullptr) << err;
  EXPECT_TRUE(report->HasCode());
  EXPECT_TRUE(report->Code().empty());
  EXPECT_EQ(store.OpenCount(), 3u);
}

}  // namespace
}  // namespace morvane

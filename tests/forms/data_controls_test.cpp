// Data controls: whole texts of the ADO and DAO data controls of a form, the
// RecordSource and CommandType rules, the hints of a subform's data control
// and their order, the tblFields rows, list data controls, and the bytes and
// offsets of the .frx records.
#include "forms/data_controls.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "design/form_design.h"
#include "forms/frm_text.h"
#include "support/hint_text.h"
#include "tests/forms/data_fixture.h"
#include "tests/forms/writer_harness.h"

namespace morvane {
namespace {

using test::Crlf;
using test::ExpectLines;

class DataControlsTest : public test::DataFixture {
 protected:
  // The records of the form being converted.
  std::string Frx() const { return s_.Form().Binary; }
};

TEST_F(DataControlsTest, AdoDataControlOfAFormWithoutNavigationButtons) {
  forms_["Orders"] =
      test::FormText("", "    NavigationButtons = NotDefault\n    RecordSource =\"Orders\"\n");
  Enter("Orders", "Orders");
  w_.Text().Place.Total = 2500;
  w_.Text().BodyText = "Begin VB.Form Orders";
  WriteFormDataControl(w_);

  // The text past what the golden forms show: hidden without navigation
  // buttons, and narrower.
  const std::string text = w_.Text().BodyText;
  EXPECT_EQ(text.rfind("Begin VB.Form Orders\r\nBegin MSAdodcLib.Adodc datOrders\r\n", 0), 0u);
  ExpectLines(text, {"Top = 2170", "Width = 1215", "Visible = 0", "CommandType = 2",
                     "RecordSource = \"Orders\""});
  // No AddDataMove for a hidden control; the entry that starts the load code.
  EXPECT_EQ(test::HintText(s_.Form().Hints), Crlf("AddDataCtlEntry\ndatOrders\n\n"));
  // One tblFields row per field of the table, for the form's data control.
  EXPECT_EQ(support_->CountRows("tblFields"), 4);
  auto date = support_->FindField("OrderDate");
  ASSERT_TRUE(date);
  EXPECT_EQ(date->Type, kDbDate);
  EXPECT_EQ(date->Form, "Orders");
}

TEST_F(DataControlsTest, DaoDataControlOfAFormWithNavigationButtons) {
  forms_["Order List"] =
      test::FormText("", "    RecordSource =\"qryOrderLines\"\n    RecordsetType =2\n");
  s_.Options.UseAdo = false;
  s_.Options.RelativePaths = false;
  Enter("Order List", "Order List");
  w_.Text().Place.Total = 2000;
  WriteFormDataControl(w_);

  EXPECT_EQ(w_.Text().BodyText, Crlf(R"(
Begin VB.Data datOrder_List
Caption = "datOrder_List"
Connect = "Access"
DatabaseName = ")" + s_.OutputPath + R"(Northwind.mdb"
Exclusive = 0
Height = 300
Left = 0
Options = 0
ReadOnly = 1
RecordsetType = 2
RecordSource = "qryOrderLines"
Top = 1670
Width = 2700
Visible = True
End)"));
  // The entry comes before the move for VB.Data.
  EXPECT_EQ(test::HintText(s_.Form().Hints), Crlf("AddDataCtlEntry\ndatOrder_List\n\n"
                                                  "AddDataMove\nOrder List\ndatOrder_List\n"));
  EXPECT_TRUE(w_.Text().ComponentFiles.empty());
  // The fields of a saved query come from its select list.
  EXPECT_EQ(support_->CountRows("tblFields"), 6);
  auto placed = support_->FindField("Placed");
  ASSERT_TRUE(placed);
  EXPECT_EQ(placed->Type, kDbDate);
  EXPECT_EQ(placed->Form, "Order_List");
  EXPECT_TRUE(support_->FindField("Order Details.OrderID"));
}

TEST_F(DataControlsTest, AdoRecordSourceAndCommandType) {
  struct Case {
    const char* source;
    bool subform;
    const char* formProperty;  // a line of the form's block, or ""
    const char* recordSourceLine;
    int commandType;
  };
  const Case cases[] = {
      {"Orders", false, "", "RecordSource = \"Orders\"", 2},
      {"Order Details", false, "", "RecordSource = \"[Order Details]\"", 2},
      {"Order Details", true, "", "RecordSource = \"Select * From [Order Details]\"", 1},
      {"Orders", true, "", "RecordSource = \"Select * From Orders\"", 1},
      {"SELECT * FROM Orders", false, "", "RecordSource = \"SELECT * FROM Orders\"", 1},
      {"select OrderID from [Order Details]", true, "",
       "RecordSource = \"select OrderID from [Order Details]\"", 1},
      // The test of a statement needs its blank: this is a name.
      {"Selected", false, "", "RecordSource = \"Selected\"", 2},
      // A command of text type takes a statement, never a bare name.
      {"Orders", false, "OrderBy =\"Name\"", "RecordSource = \"Select * From Orders\"", 1},
      {"Orders", false, "Filter =\"OrderID > 5\"", "RecordSource = \"Select * From Orders\"", 1},
      {"Orders", false, "FilterOn = NotDefault", "RecordSource = \"Select * From Orders\"", 1},
      {"Orders", false, "OrderByOn = NotDefault", "RecordSource = \"Select * From Orders\"", 1},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.source) + " " + c.formProperty);
    std::string property = c.formProperty;
    if (!property.empty()) property = "    " + property + "\n";
    forms_["frmCase"] = "Version =19\nBegin Form\n" + property + "    RecordSource =\"x\"\nEnd\n";
    store_.Close(AccessObjectKind::Form, "frmCase");
    Enter("frmCase", c.subform ? "Main" : "frmCase");
    const std::string text =
        WriteAdoDataControl(w_, "frmCase", 0, 1, c.source, 0, false, std::string("frmCase"));
    ExpectLines(text, {c.recordSourceLine, "CommandType = " + std::to_string(c.commandType)});
  }
}

TEST_F(DataControlsTest, EmptySourceHasNoRecordSourceLine) {
  Enter("Main", "Main");
  for (bool ado : {true, false}) {
    const std::string text =
        ado ? WriteAdoDataControl(w_, "Main", 0, 1, "", 0, false, std::string("Main"))
            : WriteDataControl(w_, "Main", 0, 1, "", 0, false, std::string("Main"));
    ExpectLines(text, {"!RecordSource"});
  }
}

TEST_F(DataControlsTest, RecordsetTypeGivesCursorAndReadOnly) {
  Enter("Main", "Main");
  struct Case {
    int type;
    const char* cursor;
    const char* readOnly;
    const char* recordsetType;
  };
  for (const Case& c : {Case{1, "CursorType = 2", "ReadOnly = 0", "RecordsetType = 1"},
                        Case{2, "CursorType = 3", "ReadOnly = 1", "RecordsetType = 2"}}) {
    ExpectLines(WriteAdoDataControl(w_, "x", 0, c.type, "Orders", 0, false), {c.cursor});
    ExpectLines(WriteDataControl(w_, "x", 0, c.type, "Orders", 0, false),
                {c.readOnly, c.recordsetType});
  }
}

TEST_F(DataControlsTest, DatabaseNameUnderRelativePathsAndForASourceTree) {
  Enter("Main", "Main");
  s_.Options.RelativePaths = true;
  ExpectLines(WriteDataControl(w_, "Main", 0, 1, "Orders", 0, false),
              {"DatabaseName = \"Northwind.mdb\""});
  // Without a database file the tree's folder names the database, as in the
  // ADO connection.
  s_.SourcePath = "/home/user/northwind/";
  ExpectLines(WriteDataControl(w_, "Main", 0, 1, "Orders", 0, false),
              {"DatabaseName = \"northwind.mdb\""});
}

TEST_F(DataControlsTest, SubformDataControlIsDrivenByTheParentsOne) {
  const FormDesign* main = store_.OpenForm("Main", nullptr);
  ASSERT_NE(main, nullptr);
  Enter("frmLines", "Main");
  FormTextSet& t = w_.Text();
  t.CurrentControl = main->Control("subLines");
  t.Place.SubformLeft = 500;
  t.Place.Total = 1200;
  WriteFormDataControl(w_);

  ExpectLines(t.BodyText, {"Begin MSAdodcLib.Adodc datfrmLines", "Left = 500", "Top = 870",
                           "Width = 2700", "Visible = -1", "CommandType = 1",
                           "RecordSource = \"Select * From [Order Details]\""});
  // The ADO control moves first, then enters the load code; then the four
  // records that tie it to the parent.
  EXPECT_EQ(test::HintText(s_.Form().Hints),
            Crlf("AddDataMove\nfrmLines\ndatfrmLines\n"
                 "AddDataCtlEntry\ndatfrmLines\n\n"
                 "AddDataCtlEntry\ndatMain\ndatfrmLines.Recordset.MoveFirst\n"
                 "AddDataCtlEntry\ndatMain\ndatfrmLines.Recordset.Movelast\n"
                 "AddDataCtlEntry\ndatMain\ndatfrmLines.refresh\n"
                 "AddDataCtlEntry\ndatMain\n"
                 "datfrmLines.RecordSource=\"Select * from [Order Details] INNER JOIN [Orders] "
                 "ON [Order Details].[OrderID] = [Orders].[OrderID] Where [Orders].[OrderID]=\" "
                 "& datMain.Recordset.Fields(\"OrderID\")\n"));
  // Fields of the subform's source are listed under its own name.
  auto quantity = support_->FindField("Quantity");
  ASSERT_TRUE(quantity);
  EXPECT_EQ(quantity->Form, "frmLines");
}

TEST_F(DataControlsTest, PageBrokenFormPutsTheControlOnTheFirstPage) {
  forms_["frmPaged"] = test::FormText("", "    RecordSource =\"Orders\"\n");
  Enter("frmPaged", "frmPaged");
  w_.Text().Place.Total = 4000;
  w_.Text().Place.PageBreakTops = {0, 1200};
  WriteFormDataControl(w_);
  // 4000 - 3000 + 1200 + 520 - 330
  ExpectLines(w_.Text().BodyText, {"Top = 2390"});
}

TEST_F(DataControlsTest, FormWithoutRecordSourceGetsNoDataControl) {
  forms_["frmUnbound"] = "Version =19\nBegin Form\nEnd\n";
  Enter("frmUnbound", "frmUnbound");
  WriteFormDataControl(w_);
  EXPECT_EQ(w_.Text().BodyText, "");
  EXPECT_EQ(test::HintText(s_.Form().Hints), "");
}

TEST_F(DataControlsTest, ListDataControlLeavesNoHintsAndNoFields) {
  Enter("Main", "Main");
  for (bool ado : {true, false}) {
    SCOPED_TRACE(ado);
    const std::string text =
        ado ? WriteAdoDataControl(w_, "cboCity", 100, 2, "Order Details", 400, false)
            : WriteDataControl(w_, "cboCity", 100, 2, "Order Details", 400, false);
    // A list's row source is read as it stands: a bracketed name, no SELECT.
    ExpectLines(text,
                {"Width = 1215", "Left = 100", "Top = 400", ado ? "Visible = 0" : "Visible = False",
                 ado ? "RecordSource = \"[Order Details]\"" : "RecordSource = \"Order Details\"",
                 "!CommandType"});
  }
  EXPECT_EQ(test::HintText(s_.Form().Hints), "");
  EXPECT_EQ(support_->CountRows("tblFields"), 0);
}

TEST_F(DataControlsTest, SelectStatementGivesNoFieldRows) {
  Enter("Main", "Main");
  WriteAdoDataControl(w_, "Main", 0, 1, "SELECT * FROM Orders", 0, false, std::string("Main"));
  WriteDataControl(w_, "Main", 0, 1, "Nowhere", 0, false, std::string("Main"));
  EXPECT_EQ(support_->CountRows("tblFields"), 0);
}

TEST_F(DataControlsTest, BindingsRecordBytes) {
  struct Case {
    bool ado, repeater, isList, plain;
    int listboxType;
    std::string head;  // the first 8 bytes
  };
  const std::string dao("\xCE\xFA\x01\x00", 4);
  const std::string ado("\xC6\xFA\x01\x00", 4);
  const std::string z3(3, '\0'), z2(2, '\0');
  const Case cases[] = {
      {false, false, false, false, 5, dao + "\x01" + z3},
      {false, false, true, true, 5, dao + "\x10" + z3},
      {false, false, true, false, 5, dao + "\x2B" + z3},
      {true, false, true, true, 5, ado + std::string("\x68\x00", 2) + z2},
      {true, false, true, false, 5, ado + "\xF1\x03" + z2},
      {true, false, false, false, 5, ado + std::string("\x2A\x00", 2) + z2},
      {true, false, false, false, 4, ado + std::string("\x2A\x00", 2) + z2},
      {true, false, false, false, 3, ado + "\x4E\x04" + z2},
      {true, true, false, false, 5, ado + std::string("\x03\x00", 2) + z2},
      // The repeater writes the ADO kind of record also for DAO.
      {false, true, false, false, 2, ado + std::string("\x03\x00", 2) + z2},
      {false, true, true, false, 2, ado + "\xF1\x03" + z2},
  };
  int n = 0;
  for (const Case& c : cases) {
    SCOPED_TRACE(n);
    ++n;
    s_.Form().Binary.clear();
    s_.Options.UseAdo = c.ado;
    s_.Form().PlainListControl = c.plain;
    s_.Options.ListboxType = c.listboxType;
    w_.Text().InRepeater = c.repeater;
    ASSERT_EQ(c.head.size(), 8u);
    EXPECT_EQ(WriteBindingsRecord(w_, "datOrders", c.isList), "0000");
    EXPECT_EQ(Frx(), c.head + "\x09" + "datOrders");
  }
}

TEST_F(DataControlsTest, RecordsAppendAndReturnTheirOffsets) {
  // The first record of a new file is at 0000; 9 + 12 bytes put the next at
  // 0015, and the 28 bytes of an empty picture the one after at 0031.
  EXPECT_EQ(WriteBindingsRecord(w_, "datCustomers", false), "0000");
  EXPECT_EQ(WriteBindingsRecord(w_, "ignored", false, true), "0015");
  EXPECT_EQ(WriteBindingsRecord(w_, "dat", true), "0031");
  const std::string frx = Frx();
  ASSERT_EQ(frx.size(), 0x31u + 12u);
  const std::string picture(
      "\x18\x00\x00\x00\x04\x52\xE3\x0B\x91\x8F\xCE\x11\x9D\xE3\x00\xAA\x00\x4B\xB8\x51"
      "\x6C\x74\x00\x00\x00\x00\x00\x00",
      28);
  EXPECT_EQ(frx.substr(0x15, 28), picture);
  EXPECT_EQ(frx.substr(0x31 + 8), std::string("\x03", 1) + "dat");
}

TEST_F(DataControlsTest, OffsetsPastFourDigitsKeepThemAll) {
  s_.Form().Binary.assign(0x10000, 'x');
  EXPECT_EQ(WriteBindingsRecord(w_, "datBig", false), "10000");
}

}  // namespace
}  // namespace morvane

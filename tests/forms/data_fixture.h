// A form writer over hand-written form exports, an in-memory catalog of an
// order database and a support database in a temporary output directory:
// what the data control and record source tests stand on.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>

#include "design/design_store.h"
#include "forms/form_writer.h"
#include "platform/catalog.h"
#include "platform/support_db.h"
#include "platform/text_file.h"
#include "session/conversion_session.h"
#include "session/naming.h"
#include "support/temp_dir.h"
#include "tests/forms/writer_harness.h"

namespace morvane::test {

// The main form on Orders holds the subform control subLines, which shows
// frmLines on Order Details, linked on OrderID.
inline const std::string kMainForm = FormText(
    Ctl("Subform",
        "Left =500|Top =1000|Width =4000|Height =1500|Name =\"subLines\"|"
        "SourceObject =\"Form.frmLines\"|LinkChildFields =\"OrderID\"|"
        "LinkMasterFields =\"OrderID\"") +
        Ctl("Subform",
            "Name =\"subByCustomer\"|SourceObject =\"Form.frmLines\"|"
            "LinkChildFields =\"CustomerID\"|LinkMasterFields =\"CustomerID\"") +
        Ctl("Subform",
            "Name =\"subTwoFields\"|SourceObject =\"Form.frmLines\"|"
            "LinkChildFields =\"OrderID;ProductID\"|LinkMasterFields =\"OrderID; CustomerID\"") +
        Ctl("Subform", "Name =\"subUnlinked\"|SourceObject =\"Form.frmLines\"") +
        Ctl("ListBox", "Name =\"lstOne\"|ColumnCount =1") +
        Ctl("ListBox", "Name =\"lstNone\"|ColumnCount =0") +
        Ctl("ListBox", "Name =\"lstTwo\"|ColumnCount =2") +
        Ctl("ComboBox", "Name =\"cboDefault\"") + Ctl("TextBox", "Name =\"txtPlain\""),
    "    RecordSource =\"Orders\"\n");

class DataFixture : public ::testing::Test {
 protected:
  DataFixture()
      : store_([this](AccessObjectKind, const std::string& name, DesignStore::ExportText* out,
                      bool* missing, std::string*) {
          for (const auto& [formName, text] : forms_) {
            if (!EqualsNoCase(formName, name)) continue;
            out->Lines = SplitLines(text);
            out->File = formName + ".txt";
            out->Name = formName;
            return true;
          }
          *missing = true;
          return false;
        }),
        w_(s_, store_) {
    support_ = SupportDatabase::Open(dir_ / "morvane.db", MORVANE_DATA_DIR, nullptr);
    s_.OutputPath = dir_.path().string() + "/";
    s_.SourcePath = "/home/user/Northwind.mdb";
    s_.Options.AdoConnect =
        "Provider=Microsoft.Jet.OLEDB.4.0;Persist Security Info=False;Data Source=Northwind.mdb";
    s_.SourceDb = &db_;
    s_.SupportDb = support_.get();
    s_.OptionWordLength = 11;

    db_.Tables.push_back({"Orders",
                          false,
                          "",
                          "",
                          {{"OrderID", kDbLong, 4},
                           {"CustomerID", kDbText, 5},
                           {"OrderDate", kDbDate, 8},
                           {"Freight", kDbCurrency, 8}}});
    db_.Tables.push_back({"Order Details",
                          false,
                          "",
                          "",
                          {{"OrderID", kDbLong, 4},
                           {"ProductID", kDbLong, 4},
                           {"UnitPrice", kDbCurrency, 8},
                           {"Quantity", kDbInteger, 2}}});
    db_.Tables.push_back({"Customers",
                          false,
                          "",
                          "",
                          {{"CustomerID", kDbText, 5},
                           {"CompanyName", kDbText, 40},
                           {"FirstName", kDbText, 20},
                           {"LastName", kDbText, 20}}});
    db_.Queries.push_back(
        {"qryOrderLines",
         "SELECT Orders.OrderID, Orders.OrderDate AS Placed, [Order Details].*\r\n"
         "FROM Orders INNER JOIN [Order Details] ON Orders.OrderID = [Order Details].OrderID;",
         kDbQSelect});
    db_.Queries.push_back(
        {"qryRecent", "SELECT * FROM qryOrderLines WHERE Placed > Date()-30;", kDbQSelect});
  }

  // Makes `formName` the form in hand, as WriteForm does before its data
  // control; `owner` is the top form of the walk.
  const FormDesign* Enter(const std::string& formName, const std::string& owner) {
    const FormDesign* form = store_.OpenForm(formName, nullptr);
    EXPECT_NE(form, nullptr) << formName;
    FormTextSet& t = w_.Text();
    t.CurrentForm = form;
    t.OwnerFormName = owner;
    t.InSubform = formName != owner;
    return form;
  }

  TempDir dir_;
  std::map<std::string, std::string> forms_{
      {"Main", kMainForm}, {"frmLines", FormText("", "    RecordSource =\"Order Details\"\n")}};
  MemoryCatalog db_;
  std::unique_ptr<SupportDatabase> support_;
  ConversionSession s_;
  DesignStore store_;
  FormWriter w_;
};

}  // namespace morvane::test

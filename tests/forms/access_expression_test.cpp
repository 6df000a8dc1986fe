// Access expressions of controls as Visual Basic: one row per rule. Count(*)
// and a product of two fields, each read through the data control and marked
// as approximate, are in the golden forms (frmEvents, frmControls).
#include "forms/access_expression.h"

#include <gtest/gtest.h>

#include "design/design_store.h"
#include "platform/text_file.h"
#include "session/conversion_session.h"

namespace morvane {
namespace {

TEST(VbExpression, ReadsWhatTheFormCanComputeAndNothingElse) {
  DesignStore store([](AccessObjectKind, const std::string& name, DesignStore::ExportText* out,
                       bool*, std::string*) {
    out->Lines = SplitLines(
        "Version =20\nBegin Form\n    RecordSource =\"tblOrders\"\n    Begin\n"
        "        Begin Section\n            Name =\"Detail\"\n            Begin\n"
        "                Begin TextBox\n                    Name =\"txtName\"\n"
        "                End\n            End\n        End\n    End\nEnd\n");
    out->File = name + ".txt";
    return true;
  });
  ConversionSession s;
  s.Names.Name(ComponentRole::Form, "frmMain");
  ExpressionScope scope;
  scope.Session = &s;
  scope.Form = store.OpenForm("frmOrders", nullptr);
  ASSERT_TRUE(scope.Form);
  scope.DataControl = "datfrmOrders";
  const std::string f = "datfrmOrders.Recordset.Fields";
  struct Row {
    const char* access;
    std::optional<std::string> vb;
    bool approximate;
  };
  const Row rows[] = {
      {"'Server:'", "\"Server:\"", false},
      {"'it''s \"so\"'", "\"it's \"\"so\"\"\"", false},
      {"[Form].[CurrentRecord] & \" of \" & Count(*)",
       "datfrmOrders.Recordset.AbsolutePosition & \" of \" & datfrmOrders.Recordset.RecordCount",
       true},
      {"Date() + 1", "Date + 1", false},
      {"Format(Now(),\"yyyy\")", "Format(Now,\"yyyy\")", false},
      {"Nz([Qty],0)", "IIf(IsNull(" + f + "(\"Qty\").Value), 0, " + f + "(\"Qty\").Value)", true},
      {"[txtName] & 'x'", "Me!txtName & \"x\"", false},
      {"Forms![frmMain]![txt A]", "frmMain![txt A]", false},
      {"IIf([Qty]>1,\"many\",\"one\")", "IIf(" + f + "(\"Qty\").Value>1,\"many\",\"one\")", true},
      // What the form cannot compute: aggregates, list columns, Access's
      // own syntax, forms outside the run, text left open.
      {"Sum([Qty])", std::nullopt, false},
      {"[cboKind].Column(1)", std::nullopt, false},
      {"[Qty] Is Null", std::nullopt, false},
      {"[Qty] Between 1 And 2", std::nullopt, false},
      {"Forms![frmOther]![txt]", std::nullopt, false},
      {"'open", std::nullopt, false},
      {"([Qty]", std::nullopt, false},
  };
  for (const Row& r : rows) {
    bool approximate = false;
    EXPECT_EQ(VbExpression(r.access, scope, &approximate), r.vb) << r.access;
    if (r.vb) {
      EXPECT_EQ(approximate, r.approximate) << r.access;
    }
  }
  // A form without records has no fields to read.
  scope.DataControl.clear();
  EXPECT_EQ(VbExpression("[Qty]", scope, nullptr), std::nullopt);
  EXPECT_EQ(VbExpression("[txtName]", scope, nullptr), std::optional<std::string>("Me!txtName"));
}

}  // namespace
}  // namespace morvane

// Runs TranslateCode on a small text with a real support database, and hands
// back the translated lines and the analysis.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/support_db.h"
#include "platform/text_file.h"
#include "session/conversion_session.h"
#include "session/converters.h"
#include "support/temp_dir.h"
#include "translator/module_translator.h"

namespace morvane::test {

// The designer block of a form text: VERSION and one Begin ... End block.
inline std::vector<std::string> FormDesigner(const std::string& name) {
  return {"VERSION 5.00", "Begin VB.Form " + name, "   Caption = \"" + name + "\"", "End",
          "Attribute VB_Name = \"" + name + "\""};
}

class Translation {
 public:
  Translation() {
    s.OutputPath = dir_.path().string() + "/";
    std::string err;
    db_ = SupportDatabase::Open(dir_ / "morvane.db", MORVANE_DATA_DIR, &err);
    EXPECT_TRUE(db_) << err;
    s.SupportDb = db_.get();
    s.FormList = {"", "Orders", "Order Details"};
  }

  // Translates `input` as the module `moduleName` and returns the lines of
  // the output.
  std::vector<std::string> Run(const std::vector<std::string>& input, int mode = kModeModule,
                               const std::string& moduleName = "basTest") {
    name = moduleName;
    output_bytes = TranslateCode(s, TextDocument::FromBytes(JoinCrLf(input)), name, mode).Bytes();
    return SplitLines(output_bytes);
  }

  std::vector<ReportOutputRow> Rows() const { return db_->ReportOutput(); }
  std::vector<LogRow> Log() const { return db_->Log(); }
  StatsRow Stats() const {
    auto rows = db_->Stats();
    EXPECT_EQ(rows.size(), 1u);
    return rows.empty() ? StatsRow{} : rows[0];
  }
  const std::filesystem::path& Dir() const { return dir_.path(); }
  SupportDatabase& Db() { return *db_; }

  ConversionSession s;
  std::string name;          // the module's name
  std::string output_bytes;  // the output as it would be written

 private:
  TempDir dir_;
  std::unique_ptr<SupportDatabase> db_;
};

}  // namespace morvane::test

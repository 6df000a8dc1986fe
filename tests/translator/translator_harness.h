// Runs TranslateCode on a small text in a temporary output directory with a
// real support database, and hands back the written lines and the analysis.
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

  // Writes `input` as `fileName` (CR LF), translates it, and returns the
  // lines of the output file (name less prefix and extension + `extension`).
  std::vector<std::string> Run(const std::vector<std::string>& input, int mode = kModeModule,
                               const std::string& fileName = "MODU_basTest.txt") {
    std::string path = (dir_ / fileName).string();
    WriteFile(path, JoinCrLf(input));
    TranslateCode(s, path, mode);
    name = path;
    const char* extension = mode == kModeForm ? ".frm" : mode == kModeReport ? ".dsr" : ".bas";
    output_bytes = ReadFile(dir_ / (name + extension));
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
  std::string name;          // what TranslateCode left in `path`
  std::string output_bytes;  // the output file as written

 private:
  TempDir dir_;
  std::unique_ptr<SupportDatabase> db_;
};

}  // namespace morvane::test

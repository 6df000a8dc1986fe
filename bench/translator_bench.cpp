// Timed driver for the module translator: generates a standard module of
// 100,000 lines (or the count given as the first argument) that mixes
// procedure headers, event bodies, DoCmd and Application statements, comments
// and plain code, translates it without a support database and with a real
// one in a temporary directory, and prints lines per second for each.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "platform/support_db.h"
#include "platform/text_file.h"
#include "session/conversion_session.h"
#include "translator/module_translator.h"

namespace fs = std::filesystem;

namespace {

// One procedure pair of a realistic module; repeated to the wanted size.
constexpr const char* kBlock[] = {
    "Private Sub Form_Open(Cancel As Integer)",
    "    ' open the order form when there is work",
    "    Dim rs As Recordset",
    "    Set rs = CurrentDb().OpenRecordset(\"Orders\", DB_OPEN_DYNASET)",
    "    If rs.EOF Then Cancel = True: Exit Sub",
    "    DoCmd.Hourglass True",
    "    DoCmd.OpenForm \"Orders\", , , , , acDialog, \"x\"",
    "    total = total + rs!Amount",
    "    rs.MoveNext",
    "    DoCmd.Hourglass False",
    "",
    "    x = Application.hWndAccessApp",
    "    Application.Echo False",
    "    DoCmd.RunMacro \"mcrRefresh\", 3",
    "    Me!lstOrders.REQUERY",
    "End Sub",
    "Public Function Calc(a As Long) As Long",
    "    Calc = a * 2 ' doubled",
    "    DoCmd.Close acForm, \"Orders\"",
    "    DoCmd.SetWarnings False",
    "End Function",
};

std::string GenerateModule(int lineCount) {
  std::vector<std::string> lines = {"Attribute VB_Name = \"basBench\"", "Option Compare Database",
                                    "Option Explicit", ""};
  for (int i = 0; static_cast<int>(lines.size()) < lineCount; ++i)
    lines.emplace_back(kBlock[i % std::size(kBlock)]);
  return morvane::JoinCrLf(lines);
}

struct Result {
  double seconds = 0;
  size_t rows = 0;
};

enum class Mode { NoDatabase, Database, DatabaseInOneTransaction };

Result Run(const fs::path& dir, const std::string& text, Mode mode) {
  const bool withDatabase = mode != Mode::NoDatabase;
  morvane::ConversionSession s;
  s.OutputPath = dir.string() + "/";
  s.FormList = {"", "Orders"};
  std::unique_ptr<morvane::SupportDatabase> db;
  if (withDatabase) {
    std::string err;
    db = morvane::SupportDatabase::Open(dir / "morvane.db", dir, &err);
    if (!db) {
      std::fprintf(stderr, "cannot open the support database: %s\n", err.c_str());
      std::exit(1);
    }
    s.SupportDb = db.get();
  }
  const morvane::TextDocument input = morvane::TextDocument::FromBytes(text);
  auto start = std::chrono::steady_clock::now();
  if (mode == Mode::DatabaseInOneTransaction) db->Execute("BEGIN");
  morvane::TranslateCode(s, input, "basBench", 2);
  if (mode == Mode::DatabaseInOneTransaction) db->Execute("COMMIT");
  auto stop = std::chrono::steady_clock::now();
  Result r;
  r.seconds = std::chrono::duration<double>(stop - start).count();
  if (db) r.rows = db->ReportOutput().size();
  return r;
}

}  // namespace

int main(int argc, char** argv) {
  int lineCount = argc > 1 ? std::atoi(argv[1]) : 100000;
  if (lineCount < 10) lineCount = 10;
  const std::string text = GenerateModule(lineCount);
  const fs::path dir =
      fs::temp_directory_path() /
      ("morvane-bench-" + std::to_string(std::rand()) +
       std::to_string(std::chrono::steady_clock::now().time_since_epoch().count()));
  fs::create_directories(dir);
  const double megabytes = static_cast<double>(text.size()) / (1024.0 * 1024.0);
  std::printf("module: %d lines, %.2f MB\n", lineCount, megabytes);
  // The last run shows what the analysis rows cost apart from committing
  // each row on its own.
  const std::pair<Mode, const char*> runs[] = {
      {Mode::NoDatabase, "without support database"},
      {Mode::Database, "with support database"},
      {Mode::DatabaseInOneTransaction, "with database, one transaction"},
  };
  for (const auto& [mode, label] : runs) {
    fs::remove(dir / "morvane.db");
    Result r = Run(dir, text, mode);
    std::printf("%-31s %8.3f s  %10.0f lines/s  %7.2f MB/s", label, r.seconds,
                lineCount / r.seconds, megabytes / r.seconds);
    if (mode != Mode::NoDatabase) std::printf("  (%zu analysis rows)", r.rows);
    std::printf("\n");
  }
  std::error_code ec;
  fs::remove_all(dir, ec);
  return 0;
}

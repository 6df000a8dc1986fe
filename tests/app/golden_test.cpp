// Golden cases: whole output files of real runs, compared byte for byte.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "platform/support_db.h"
#include "support/designer_checker.h"
#include "support/run_command.h"
#include "support/temp_dir.h"

namespace morvane {
namespace {

namespace fs = std::filesystem;
using test::ReadFile;
using test::RunMorvane;
using test::TempDir;
using test::WriteFile;

const fs::path kGolden = fs::path(MORVANE_SOURCE_DIR) / "tests" / "golden";

std::string ReportRows(SupportDatabase& db) {
  std::string out = "ModuleName\tReasonID\tCodeLine\tLineNumber\tTranslatedLine\tRoutine\r\n";
  for (const auto& r : db.ReportOutput())
    out += r.ModuleName + "\t" + std::to_string(r.ReasonID) + "\t" + r.CodeLine + "\t" +
           std::to_string(r.LineNumber) + "\t" + r.TranslatedLine + "\t" + r.Routine + "\r\n";
  return out;
}

std::string StatsRows(SupportDatabase& db) {
  std::string out =
      "ModuleName\tTotalLines\tCommentLines\tLinesNotTranslated\tLinesPotentiallyConverted\t"
      "BlankLines\tSubCount\tProcCount\tCtlCount\tCtlsPartiallyConverted\tCodeLines\r\n";
  for (const auto& r : db.Stats()) {
    out += r.ModuleName;
    for (int v :
         {r.TotalLines, r.CommentLines, r.LinesNotTranslated, r.LinesPotentiallyConverted,
          r.BlankLines, r.SubCount, r.ProcCount, r.CtlCount, r.CtlsPartiallyConverted, r.CodeLines})
      out += "\t" + std::to_string(v);
    out += "\r\n";
  }
  return out;
}

std::string LogRows(SupportDatabase& db) {
  std::string out = "ErrorID\tReport\tLocation\tControlDeleted\r\n";
  for (const auto& r : db.Log())
    out += std::to_string(r.ErrorID) + "\t" + r.Report + "\t" + r.Location + "\t" +
           std::to_string(r.ControlDeleted) + "\r\n";
  return out;
}

// What the run noted it could not do (or did in part), one line each.
std::string NoteRows(SupportDatabase& db) {
  std::string out = "Object\tNote\r\n";
  for (const auto& [object, note] : db.RunNotes()) out += object + "\t" + note + "\r\n";
  return out;
}

// The first differing line, for a readable failure.
std::string FirstDifference(const std::string& expected, const std::string& actual) {
  size_t line = 1, i = 0;
  while (i < expected.size() && i < actual.size() && expected[i] == actual[i])
    if (expected[i++] == '\n') ++line;
  auto lineAt = [&](const std::string& s) {
    size_t b = s.rfind('\n', i == 0 ? 0 : i - 1);
    b = b == std::string::npos ? 0 : b + 1;
    return s.substr(b, s.find('\n', b) - b);
  };
  return "line " + std::to_string(line) + "\n  expected: " + lineAt(expected) +
         "\n  actual:   " + lineAt(actual);
}

// Each case runs twice: with its modules translated beside the forms, as
// every run does, and all on one thread; both give the same files.
TEST(Golden, EveryCaseGivesItsExpectedFiles) {
  const bool update = std::getenv("MORVANE_UPDATE_GOLDEN") != nullptr;
  int cases = 0;
  for (const auto& entry : fs::directory_iterator(kGolden))
    for (const bool oneThread : {false, true}) {
      if (!entry.is_directory() || (update && oneThread)) continue;
      cases += !oneThread;
      const fs::path dir = entry.path();
      SCOPED_TRACE(dir.filename().string() + (oneThread ? " (one thread)" : ""));
      TempDir out;
      std::vector<std::string> args = {"convert", (dir / "input").string(), "-o",
                                       (out / "out").string(), "--yes"};
      if (oneThread) args.push_back("--one-thread");
      if (fs::exists(dir / "args")) {
        std::string text = ReadFile(dir / "args");
        size_t start = 0;
        for (size_t pos; (pos = text.find('\n', start)) != std::string::npos; start = pos + 1)
          if (pos > start) args.push_back(text.substr(start, pos - start));
      }
      auto r = RunMorvane(args);
      // A case whose run keeps an object out says its exit status in "status".
      const int status = fs::exists(dir / "status") ? std::stoi(ReadFile(dir / "status")) : 0;
      ASSERT_EQ(r.status, status) << r.err;
      std::string err;
      auto db = SupportDatabase::Open(out / "out" / "morvane.db", MORVANE_DATA_DIR, &err);
      ASSERT_TRUE(db) << err;

      const fs::path expected = dir / "expected";
      if (update) {
        fs::remove_all(expected);
        fs::create_directories(expected);
        // The conversion code has tests of its own and changes with every
        // template; a case compares what its input exercises.
        for (const auto& f : fs::directory_iterator(out / "out"))
          if (f.is_regular_file() && f.path().extension() != ".db" &&
              f.path().filename() != "MorvaneConversionCode.bas")
            fs::copy_file(f.path(), expected / f.path().filename(),
                          fs::copy_options::overwrite_existing);
        WriteFile(expected / "tblReportOutput.tsv", ReportRows(*db));
        WriteFile(expected / "tblStats.tsv", StatsRows(*db));
        if (!db->Log().empty()) WriteFile(expected / "tblLog.tsv", LogRows(*db));
        if (!db->RunNotes().empty()) WriteFile(expected / "notes.tsv", NoteRows(*db));
      }
      int compared = 0;
      for (const auto& f : fs::directory_iterator(expected)) {
        const std::string name = f.path().filename().string();
        std::string actual;
        if (name == "tblReportOutput.tsv")
          actual = ReportRows(*db);
        else if (name == "tblStats.tsv")
          actual = StatsRows(*db);
        else if (name == "tblLog.tsv")
          actual = LogRows(*db);
        else if (name == "notes.tsv")
          actual = NoteRows(*db);
        else
          actual = ReadFile(out / "out" / name);
        const std::string want = ReadFile(f.path());
        EXPECT_TRUE(actual == want) << name << ": " << FirstDifference(want, actual);
        ++compared;
      }
      EXPECT_GT(compared, 0);
      // What the run's own check finds in the output stands in the expected
      // tblReportOutput.tsv, reason 17.
      const auto designers = test::CheckReportDesigners(out / "out");
      EXPECT_TRUE(designers.empty()) << designers.front();
    }
  EXPECT_GT(cases, 0);
}

}  // namespace
}  // namespace morvane

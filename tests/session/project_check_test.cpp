// The check of a generated project directory: the project file, the files it
// lists, one name per component, and the rows a run's check writes.
#include "session/project_check.h"

#include <gtest/gtest.h>

#include "platform/output_directory.h"
#include "platform/project_model.h"
#include "platform/support_db.h"
#include "session/conversion_session.h"
#include "support/temp_dir.h"

namespace morvane {
namespace {

using test::Crlf;
using test::TempDir;
using test::WriteFile;

std::vector<std::string> Formatted(const std::vector<ProjectFinding>& findings) {
  std::vector<std::string> out;
  for (const auto& f : findings) out.push_back(FormatFinding(f));
  return out;
}

// A project whose file names what is missing or taken twice, beside a module
// that would not compile and one that loses a line.
void WriteProject(const TempDir& dir) {
  WriteFile(dir / "My Project.vbp",
            Crlf("Type=Exe\nModule=basA; basA.bas\nModule=basB; basB.bas\nForm=frmA.frm\n"
                 "Form=frmGone.frm\nName=\"My Project\"\n"));
  WriteFile(dir / "basA.bas",
            Crlf("Attribute VB_Name = \"basA\"\nSub A()\n    If x Then\nEnd Sub\n"));
  WriteFile(dir / "basB.bas", Crlf("Attribute VB_Name = \"basB\"\nSub B()\n'MORVANE y = f(1, _\n"
                                   "    2)\nEnd Sub\n"));
  WriteFile(dir / "frmA.frm", Crlf("VERSION 5.00\nBegin VB.Form basA\nEnd\n"
                                   "Attribute VB_Name = \"basA\"\n"));
  WriteFile(dir / "notes.txt", "If without End If\n");
}

TEST(ProjectCheck, FilesAndTheProjectFile) {
  TempDir dir;
  WriteProject(dir);
  std::vector<ProjectFinding> findings;
  std::string err;
  ASSERT_TRUE(CheckProject(dir.path(), &findings, &err)) << err;
  EXPECT_EQ(Formatted(findings),
            (std::vector<std::string>{
                "My Project.vbp:4: a second component named basA (the first is on line 2)",
                "My Project.vbp:5: lists frmGone.frm, which the directory does not hold",
                "My Project.vbp:6: project name \"My Project\" is no Visual Basic name",
                "basA.bas:3: If without End If",
                "basB.bas:4: warning: the commented-out line above takes this line into its "
                "comment",
            }));
  EXPECT_EQ(findings[3].Text, "    If x Then");
  EXPECT_FALSE(CheckProject(dir / "absent", &findings, &err));
  EXPECT_NE(err.find("no such directory"), std::string::npos);
}

TEST(ProjectCheck, ARunChecksEachComponentAsItIsWritten) {
  TempDir dir;
  std::string err;
  auto db = SupportDatabase::Open(dir / "morvane.db", MORVANE_DATA_DIR, &err);
  ASSERT_TRUE(db) << err;
  ProjectModel project;
  project.Name = "My Project";
  OutputDirectory output(dir.path());
  ConversionSession s;
  s.ProjectFile = "My Project.vbp";
  s.SupportDb = db.get();
  s.ActiveProject = &project;
  s.Output = &output;
  project.Add(dir / "basA.bas",
              TextDocument::FromBytes(
                  Crlf("Attribute VB_Name = \"basA\"\nSub A()\n    If x Then\nEnd Sub\n")));
  project.Add(dir / "basB.bas",
              TextDocument::FromBytes(Crlf("Attribute VB_Name = \"basB\"\nSub B()\n'MORVANE y = "
                                           "f(1, _\n    2)\nEnd Sub\n")));
  ASSERT_TRUE(WriteCheckedComponent(s, "basA", &err)) << err;
  ASSERT_TRUE(WriteCheckedComponent(s, "basB", &err)) << err;
  EXPECT_TRUE(std::filesystem::exists(dir / "basA.bas"));
  EXPECT_EQ(CheckConversionOutput(s), 3);
  const auto rows = db->ReportOutput();
  ASSERT_EQ(rows.size(), 3u);
  EXPECT_EQ(rows[0].ModuleName, "basA");
  EXPECT_EQ(rows[0].ReasonID, kReasonWouldNotLoad);
  EXPECT_EQ(rows[0].CodeLine, "    If x Then");
  EXPECT_EQ(rows[0].LineNumber, 3);
  EXPECT_EQ(rows[0].TranslatedLine, "If without End If");
  EXPECT_EQ(rows[2].TranslatedLine, "project name \"My Project\" is no Visual Basic name");
  // The run's summary names what would not load; the lost line is a row only.
  const auto notes = db->RunNotes();
  ASSERT_EQ(notes.size(), 1u);
  EXPECT_EQ(notes[0].second.rfind("2 place(s) in the generated files", 0), 0u);
}

}  // namespace
}  // namespace morvane

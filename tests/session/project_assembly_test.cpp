// Sub Main and the other project-wide steps, with the translator replaced by
// a recorder so that only the assembly is under test.
#include <gtest/gtest.h>

#include <filesystem>

#include "platform/catalog.h"
#include "platform/output_directory.h"
#include "platform/project_model.h"
#include "session/conversion_session.h"
#include "session/driver.h"
#include "support/temp_dir.h"

namespace morvane {
namespace {

namespace fs = std::filesystem;
using test::ReadFile;
using test::TempDir;
using test::WriteFile;

class RecordingCode : public CodeConverter {
 public:
  bool ExportModuleText(ConversionSession&, const std::string&, int, TextDocument&) override {
    return false;
  }
  TextDocument TranslateCode(ConversionSession&, const TextDocument&, const std::string&,
                             int) override {
    return {};
  }
  void MoveDeclarationBlocks(ConversionSession&, const std::string&) override {}
  void WriteFormLookup(ConversionSession&, TextDocument&) override { calls += "lookup;"; }
  void WriteConversionCode(ConversionSession&, TextDocument&) override { calls += "code;"; }
  std::vector<std::string> UnbuiltStages() const override { return {}; }
  std::string calls;
};

struct Fixture {
  TempDir dir;
  ConversionSession s;
  MemoryCatalog db;
  ProjectModel project;
  OutputDirectory output{dir / "out"};
  RecordingCode code;
  Converters c;
  RunSummary summary;

  Fixture() {
    WriteFile(dir / "data" / "MorvaneConversionCode.bas",
              "Attribute VB_Name = \"MorvaneConversionCode\"\r\n");
    WriteFile(dir / "data" / "MDIParent.frm",
              "Begin VB.MDIForm MDIParent\r\nEnd\r\nAttribute VB_Name = \"MDIParent\"\r\n");
    fs::create_directories(dir / "out");
    s.Options.DataDir = dir / "data";
    s.OutputPath = (dir / "out").string() + "/";
    s.ProjectName = "Orders";
    s.Options.AdoConnect = "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=Orders.mdb";
    s.SourceDb = &db;
    s.ActiveProject = &project;
    s.Output = &output;
    c.Code = &code;
  }

  // The lines of Sub Main, from its header to End Sub.
  std::vector<std::string> SubMain() {
    AssembleProject(s, c, summary);
    std::string text = ReadFile(dir / "out" / "MorvaneConversionCode.bas");
    std::vector<std::string> lines;
    size_t start = text.find("Public Sub Main()");
    for (size_t pos;
         start != std::string::npos && (pos = text.find("\r\n", start)) != std::string::npos;
         start = pos + 2) {
      lines.push_back(text.substr(start, pos - start));
      if (lines.back() == "End Sub") break;
    }
    return lines;
  }
};

TEST(SubMain, MdiParentThenAutoexecThenTheStartupForm) {
  Fixture f;
  f.s.Options.IsMdi = true;
  f.db.Containers["Scripts"] = {"mcrRefresh", "AUTOEXEC", "autoexec"};
  f.s.StartupFormName = "Order Entry";
  const std::string copy = f.s.OutputPath + "Orders.mdb";
  EXPECT_EQ(f.SubMain(),
            (std::vector<std::string>{
                "Public Sub Main()", "", "    Set db = DBEngine(0).OpenDatabase(\"" + copy + "\")",
                "    Set pconn = new ADODB.Connection",
                "    pconn.open \"Provider=Microsoft.Jet.OLEDB.4.0;Data Source=Orders.mdb\"", "",
                "    MDIParent.Show", "    Call Autoexec", "    Order_Entry.Show", "End Sub"}));
  EXPECT_EQ(f.db.Property("StartupForm").value_or(""), "Order Entry");
  EXPECT_EQ(f.code.calls, "lookup;code;");
}

TEST(SubMain, NoStartupLineForNoneOrEmpty) {
  for (const char* startup : {"", "(none)"}) {
    Fixture f;
    f.s.Options.IsMdi = false;
    f.s.StartupFormName = startup;
    auto lines = f.SubMain();
    ASSERT_GE(lines.size(), 2u);
    EXPECT_EQ(lines[lines.size() - 2], "") << startup;
    EXPECT_EQ(lines.back(), "End Sub");
  }
}

TEST(SubMain, ASecuredDatabaseOpensThroughAWorkspace) {
  Fixture f;
  f.s.Options.IsMdi = false;
  f.s.Options.SecurityDisabled = false;
  f.s.Options.WorkgroupFile = "C:\\sec\\system.mdw";
  f.s.Options.UserName = "dev";
  f.s.Options.Password = "pw";
  auto lines = f.SubMain();
  ASSERT_GE(lines.size(), 5u);
  EXPECT_EQ(lines[2], "    DBEngine.SystemDB = \"C:\\sec\\system.mdw\"");
  EXPECT_EQ(lines[3], "    Set wks = CreateWorkspace(\"Orders\", \"dev\", \"pw\")");
  EXPECT_EQ(lines[4], "    Set db = wks.OpenDatabase(\"" + f.s.OutputPath + "Orders.mdb\")");
}

TEST(SubMain, AnAccessDataProjectHasOnlyTheConnection) {
  Fixture f;
  f.s.IsAdp = true;
  f.s.Options.IsMdi = true;
  f.db.Containers["Scripts"] = {"Autoexec"};
  f.s.StartupFormName = "frmMain";
  EXPECT_EQ(f.SubMain(), (std::vector<std::string>{
                             "Public Sub Main()", "", "    Set pconn = new ADODB.Connection",
                             "    pconn.open \"" + f.s.Options.AdoConnect + "\"", "",
                             "    MDIParent.Show", "End Sub"}));
}

TEST(ProjectAssembly, TheSourcesReferencesComeOnce) {
  Fixture f;
  f.s.Options.IsMdi = true;
  f.db.Refs = {{"DAO", "{00025E01-0000-0000-C000-000000000046}", 5, 0},
               {"DAO again", "{00025e01-0000-0000-c000-000000000046}", 5, 0}};
  AssembleProject(f.s, f.c, f.summary);
  // The MDI parent's header and the references of a source without DAO are
  // in the golden files. OLE Automation first, the source's DAO once, ADO 2.5, and no second DAO.
  std::vector<std::string> guids;
  for (const auto& r : f.project.References()) guids.push_back(r.Guid);
  EXPECT_EQ(guids, (std::vector<std::string>{"{00020430-0000-0000-C000-000000000046}",
                                             "{00025E01-0000-0000-C000-000000000046}",
                                             "{00000205-0000-0010-8000-00AA006D2EA4}"}));
  ASSERT_EQ(f.project.Components().size(), 2u);
  EXPECT_EQ(f.project.Components()[0].Name, "MorvaneConversionCode");
  EXPECT_EQ(f.project.Components()[1].Name, "MDIParent");
}

TEST(ProjectAssembly, AMissingBaseTextIsReportedNotSkipped) {
  Fixture f;
  fs::remove(f.dir / "data" / "MorvaneConversionCode.bas");
  AssembleProject(f.s, f.c, f.summary);
  ASSERT_EQ(f.summary.Notes.size(), 1u);
  EXPECT_NE(f.summary.Notes[0].find("MorvaneConversionCode.bas"), std::string::npos);
}

}  // namespace
}  // namespace morvane

// The project-wide steps of a run: the conversion code with Sub Main, the
// MDI parent, and the references of the source database.
#include <filesystem>

#include "platform/catalog.h"
#include "platform/line_editor.h"
#include "platform/project_model.h"
#include "platform/support_db.h"
#include "platform/text_file.h"
#include "session/conversion_session.h"
#include "session/driver.h"
#include "session/naming.h"
#include "session/strings.h"

namespace morvane {

namespace fs = std::filesystem;

namespace {

constexpr const char* kAdo25Guid = "{00000205-0000-0010-8000-00AA006D2EA4}";
constexpr const char* kStdOleGuid = "{00020430-0000-0000-C000-000000000046}";
constexpr const char* kDao36Guid = "{00025E01-0000-0000-C000-000000000046}";
constexpr const char* kMdiObjectLine =
    "Object = \"{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0\"; \"MSCOMCTL.OCX\"";

std::string Quoted(const std::string& text) { return "\"" + text + "\""; }

// Sub Main: the database lines, then what the application shows first.
std::vector<std::string> SubMainLines(ConversionSession& s) {
  std::vector<std::string> lines = {"", "Public Sub Main()", ""};  // P3
  const std::string copy = s.OutputPath + s.ProjectName + ".mdb";
  if (!s.IsAdp && !s.SecurityDisabled) {  // P4
    lines.push_back("    DBEngine.SystemDB = " + Quoted(s.WorkgroupFile));
    lines.push_back("    Set wks = CreateWorkspace(" + Quoted(s.ProjectName) + ", " +
                    Quoted(s.UserName) + ", " + Quoted(s.Password) + ")");
    lines.push_back("    Set db = wks.OpenDatabase(" + Quoted(copy) + ")");
  } else if (!s.IsAdp) {
    lines.push_back("    Set db = DBEngine(0).OpenDatabase(" + Quoted(copy) + ")");
  }
  lines.push_back("    Set pconn = new ADODB.Connection");
  lines.push_back("    pconn.open " + Quoted(s.AdoConnect));
  lines.push_back("");
  if (s.IsMdi) lines.push_back("    MDIParent.Show");  // P5.1
  if (!s.IsAdp && s.SourceDb) {                        // P5.2
    for (const auto& macro : s.SourceDb->ContainerDocuments("Scripts")) {
      if (ToLower(macro) == "autoexec") {
        lines.push_back("    Call Autoexec");
        break;
      }
    }
  }
  if (!s.IsAdp && !s.StartupFormName.empty() && s.StartupFormName != "(none)") {  // P5.3
    lines.push_back("    " + SafeName(s.StartupFormName) + ".Show");
    if (s.SourceDb) s.SourceDb->SetProperty("StartupForm", s.StartupFormName);
  }
  lines.push_back("End Sub");  // P5.4
  return lines;
}

void WriteConversionCodeFile(ConversionSession& s, Converters& c, RunSummary& summary) {
  const fs::path base = s.DataDir / "MorvaneConversionCode.bas";
  const std::string target = s.OutputPath + "MorvaneConversionCode.bas";
  std::error_code ec;
  if (!fs::copy_file(base, target, fs::copy_options::overwrite_existing, ec)) {  // P1
    std::string note = FormatText(kMsgConversionCodeMissing, {base.string()});
    summary.Notes.push_back(note);
    if (s.SupportDb) s.SupportDb->AddRunNote("MorvaneConversionCode", note);
    return;
  }
  c.Code->WriteFormLookup(s);                                   // P2
  AppendFileBytes(target, JoinCrLf(SubMainLines(s)), nullptr);  // P3 - P5
  s.ActiveProject->AddFile(target);
}

void AddMdiParent(ConversionSession& s) {
  const std::string target = s.OutputPath + "MDIParent.frm";
  std::error_code ec;
  if (!fs::copy_file(s.DataDir / "MDIParent.frm", target, fs::copy_options::overwrite_existing, ec))
    return;
  InsertLine(target, " ", "VERSION 5.00", 1);  // P7
  InsertLine(target, "VERSION 5.00", kMdiObjectLine, 1);
  s.ActiveProject->AddFile(target);
}

bool HasReference(const ProjectModel& project, const char* guid) {
  for (const auto& have : project.References())
    if (EqualsNoCase(have.Guid, guid)) return true;
  return false;
}

void AddReferences(ConversionSession& s) {
  // Every Visual Basic project starts with OLE Automation.
  if (!HasReference(*s.ActiveProject, kStdOleGuid)) s.ActiveProject->AddFromGuid(kStdOleGuid, 2, 0);
  if (s.SourceDb) {  // P8
    for (const auto& ref : s.SourceDb->References())
      if (!HasReference(*s.ActiveProject, ref.Guid.c_str()))
        s.ActiveProject->AddFromGuid(ref.Guid, ref.Major, ref.Minor);
  }
  s.ActiveProject->AddFromGuid(kAdo25Guid, 2, 5);  // P9
  // The conversion code declares its database objects with DAO types; a
  // database file does not tell its references, so DAO is added when the
  // source did not bring it.
  if (!s.IsAdp && !HasReference(*s.ActiveProject, kDao36Guid))
    s.ActiveProject->AddFromGuid(kDao36Guid, 5, 0);
}

}  // namespace

void AssembleProject(ConversionSession& s, Converters& c, RunSummary& summary) {
  if (s.NeedConversionCode) WriteConversionCodeFile(s, c, summary);
  if (fs::exists(s.OutputPath + "MorvaneConversionCode.bas")) c.Code->WriteConversionCode(s);  // P6
  if (s.IsMdi) AddMdiParent(s);
  AddReferences(s);
}

}  // namespace morvane

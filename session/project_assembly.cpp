// The project-wide steps of a run: the conversion code with Sub Main, the
// MDI parent, and the references of the source database.
#include <filesystem>

#include "platform/catalog.h"
#include "platform/line_editor.h"
#include "platform/output_directory.h"
#include "platform/project_model.h"
#include "platform/support_db.h"
#include "platform/text_file.h"
#include "session/conversion_session.h"
#include "session/driver.h"
#include "session/project_check.h"
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
  if (!s.IsAdp && !s.Options.SecurityDisabled) {  // P4
    lines.push_back("    DBEngine.SystemDB = " + Quoted(s.Options.WorkgroupFile));
    lines.push_back("    Set wks = CreateWorkspace(" + Quoted(s.ProjectName) + ", " +
                    Quoted(s.Options.UserName) + ", " + Quoted(s.Options.Password) + ")");
    lines.push_back("    Set db = wks.OpenDatabase(" + Quoted(copy) + ")");
  } else if (!s.IsAdp) {
    lines.push_back("    Set db = DBEngine(0).OpenDatabase(" + Quoted(copy) + ")");
  }
  lines.push_back("    Set pconn = new ADODB.Connection");
  lines.push_back("    pconn.open " + Quoted(s.Options.AdoConnect));
  lines.push_back("");
  if (s.Options.IsMdi) lines.push_back("    MDIParent.Show");  // P5.1
  if (!s.IsAdp && s.SourceDb) {                                // P5.2
    for (const auto& macro : s.SourceDb->ContainerDocuments("Scripts")) {
      if (ToLower(macro) == "autoexec") {
        lines.push_back("    Call Autoexec");
        break;
      }
    }
  }
  if (!s.IsAdp && !s.StartupFormName.empty() && s.StartupFormName != "(none)") {  // P5.3
    lines.push_back("    " + s.Names.Name(ComponentRole::Form, s.StartupFormName).VbName + ".Show");
    if (s.SourceDb) s.SourceDb->SetProperty("StartupForm", s.StartupFormName);
  }
  lines.push_back("End Sub");  // P5.4
  return lines;
}

// The conversion code: the base text, GetFormFromName and Sub Main, then
// the templates the run's code asks for.
void WriteConversionCodeFile(ConversionSession& s, Converters& c, RunSummary& summary) {
  const fs::path base = s.Options.DataDir / "MorvaneConversionCode.bas";
  std::string bytes;
  if (!ReadFileBytes(base, &bytes, nullptr)) {  // P1
    std::string note = FormatText(kMsgConversionCodeMissing, {base.string()});
    summary.Notes.push_back(note);
    if (s.SupportDb) s.SupportDb->AddRunNote("MorvaneConversionCode", note);
    return;
  }
  TextDocument text = TextDocument::FromBytes(bytes);
  if (s.NeedConversionCode) {
    c.Code->WriteFormLookup(s, text);        // P2
    text.Append(JoinCrLf(SubMainLines(s)));  // P3 - P5
  }
  c.Code->WriteConversionCode(s, text);  // P6
  const ProjectComponent* component =
      s.ActiveProject->Add(s.OutputPath + "MorvaneConversionCode.bas", std::move(text));
  std::string err;
  if (!WriteCheckedComponent(s, component->Name, &err))
    summary.Failures.push_back("MorvaneConversionCode: " + err);
}

void AddMdiParent(ConversionSession& s, RunSummary& summary) {
  std::string bytes;
  if (!ReadFileBytes(s.Options.DataDir / "MDIParent.frm", &bytes, nullptr)) return;
  TextDocument text = TextDocument::FromBytes(bytes);
  InsertLine(text, " ", "VERSION 5.00", 1);  // P7
  InsertLine(text, "VERSION 5.00", kMdiObjectLine, 1);
  const ProjectComponent* component =
      s.ActiveProject->Add(s.OutputPath + "MDIParent.frm", std::move(text));
  std::string err;
  if (!WriteCheckedComponent(s, component->Name, &err))
    summary.Failures.push_back("MDIParent: " + err);
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
  WriteConversionCodeFile(s, c, summary);
  if (s.Options.IsMdi) AddMdiParent(s, summary);
  AddReferences(s);
}

}  // namespace morvane

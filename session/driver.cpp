// The driver: the start of a run and the fixed order of its steps.
#include "session/driver.h"

#include <filesystem>

#include "platform/line_editor.h"
#include "platform/project_model.h"
#include "platform/support_db.h"
#include "platform/text_file.h"
#include "session/access_link.h"
#include "session/analysis_report.h"
#include "session/conversion_session.h"
#include "session/naming.h"
#include "session/project_check.h"
#include "session/strings.h"
#include "session/user_interface.h"

namespace morvane {

namespace fs = std::filesystem;

namespace {

std::string WithSeparator(std::string path) {
  if (path.empty() || path.back() != '/') path += '/';
  return path;
}

bool IsInside(const fs::path& inner, const fs::path& outer) {
  std::error_code ec;
  fs::path a = fs::weakly_canonical(inner, ec);
  fs::path b = fs::weakly_canonical(outer, ec);
  auto mismatch = std::mismatch(b.begin(), b.end(), a.begin(), a.end());
  return mismatch.first == b.end();
}

void Note(ConversionSession& s, RunSummary& summary, const std::string& object,
          const std::string& text) {
  summary.Notes.push_back(object.empty() ? text : object + ": " + text);
  if (s.SupportDb) s.SupportDb->AddRunNote(object, text);
}

void RemoveFile(const std::string& path) {
  std::error_code ec;
  fs::remove(path, ec);
}

void RenameFile(const std::string& from, const std::string& to) {
  std::error_code ec;
  fs::rename(from, to, ec);
}

// The file of that name in its directory, the case of the name aside, as the
// converters and the driver name some files in different cases.
std::string FindFileNoCase(const std::string& path) {
  if (fs::exists(path)) return path;
  const fs::path p(path);
  std::error_code ec;
  for (const auto& entry : fs::directory_iterator(p.parent_path(), ec))
    if (EqualsNoCase(entry.path().filename().string(), p.filename().string()))
      return entry.path().string();
  return path;
}

// The property code a form's module gets for each of the Access form
// properties its code uses.
struct PropertyBlock {
  bool ConversionSession::*flag;
  const char* declaration;
  std::vector<std::string> let;
  std::vector<std::string> get;
};

std::vector<PropertyBlock> PropertyBlocks(const std::string& n) {
  const std::string dat = "    dat" + n;
  return {
      {&ConversionSession::UsesOpenArgs,
       "Private msOpenArgs as string",
       {"Property Let OpenArgs(sOpenArgs as string)", "    msOpenArgs=sOpenArgs", "End Property"},
       {"Property Get OpenArgs() as string", "    OpenArgs=msOpenArgs", "End Property"}},
      {&ConversionSession::UsesFilter,
       "Private msFilter as string",
       {"Property Let Filter(ByVal sNewFilter As String)", "    msFilter=sNewFilter",
        dat + ".RecordSource = RECORD_SOURCE & \" Where \" & sNewFilter", dat + ".Refresh",
        "End Property"},
       {"Property Get Filter() as string", "    Filter = msFilter", "End Property"}},
      {&ConversionSession::UsesFilterOn,
       "Private mbFilterOn As Boolean",
       {"Property Let FilterOn(bNewValue as boolean)", "    mbFilterOn=bNewValue",
        "    If bNewValue Then",
        "    " + dat + ".RecordSource = RECORD_SOURCE & \" Where \" & msFilter",
        "    " + dat + ".Refresh", "    Else", "    " + dat + ".RecordSource = RECORD_SOURCE",
        "    " + dat + ".Refresh", "    End If", "End Property"},
       {"Property Get FilterOn() as Boolean", "    FilterOn=mbFilterOn", "End Property"}},
      {&ConversionSession::UsesOrderBy,
       "Private msOrderBy as string",
       {"Property Let OrderBy(ByVal sNewOrderBy As String)", "    msOrderBy=sNewOrderBy",
        dat + ".RecordSource = RECORD_SOURCE & \" Order By \" & sNewOrderBy", dat + ".Refresh",
        "End Property"},
       {"Property Get OrderBy() as string", "    OrderBy = msOrderBy", "End Property"}},
      {&ConversionSession::UsesOrderByOn,
       "Private mbOrderByOn As Boolean",
       {"Property Let OrderByOn(bNewValue as boolean)", "    mbOrderByOn=bNewValue",
        "    If bNewValue Then",
        "    " + dat + ".RecordSource = RECORD_SOURCE & \" Order By \" & msOrderBy",
        "    " + dat + ".Refresh", "    Else", "    " + dat + ".RecordSource = RECORD_SOURCE",
        "    " + dat + ".Refresh", "    End If", "End Property"},
       {"Property Get OrderByOn() as Boolean", "    OrderByOn=mbOrderByOn", "End Property"}},
  };
}

std::string BlockText(const std::vector<std::string>& lines) {
  std::string text;
  for (const auto& l : lines) text += "\r\n" + l;
  return text;
}

void AddFormPropertyCode(ConversionSession& s, FormConverter& forms, const std::string& name) {
  const ProjectComponent* component = s.ActiveProject->Find(SafeName(name));
  if (!component) return;
  CodeModule code = component->Code();
  for (const auto& block : PropertyBlocks(component->Name)) {
    if (!(s.*block.flag)) continue;
    code.AddFromString(block.declaration);
    code.InsertLines(code.CountOfLines() + 1, BlockText(block.let));
    code.InsertLines(code.CountOfLines() + 1, BlockText(block.get));
  }
  if (s.UsesFilter || s.UsesFilterOn || s.UsesOrderBy || s.UsesOrderByOn) {
    std::string source = forms.RecordSource(s, name);
    std::string sql =
        ToLower(source.substr(0, 7)) == "select " ? source : "Select * From [" + source + "]";
    code.AddFromString("Const RECORD_SOURCE as string= \"" + sql + "\"");
  }
}

void ConvertMacrosStep(ConversionSession& s, Converters& c, RunSummary& summary) {
  // Forms and reports may hold macros in their events even where the source
  // has no macro of its own: the converter looks at both and writes nothing
  // when there are none.
  if (!s.MacrosWanted || !s.SourceDb) return;
  if (!c.Macros) {
    if (!s.SourceDb->ContainerDocuments("Scripts").empty())
      Note(s, summary, "", Text(kMsgNotBuiltMacros));
    return;
  }
  c.Macros->ConvertMacros(s, s.OutputPath);  // C1
  RenameFile(FindFileNoCase(s.OutputPath + "Macro.txt"),
             s.OutputPath + "Modu_MacroCode.txt");  // C2
  std::string path = s.OutputPath + "Modu_MacroCode.txt";
  if (!fs::exists(path)) return;
  c.Code->TranslateCode(s, path, kModeModule);   // C3
  SilentIndent(s.OutputPath + "MacroCode.bas");  // C4
  s.ActiveProject->AddFile(s.OutputPath + "MacroCode.bas");
  RemoveFile(s.OutputPath + "Modu_MacroCode.txt");  // C5
  summary.Macros = static_cast<int>(s.SourceDb->ContainerDocuments("Scripts").size());
}

void ConvertFormsStep(ConversionSession& s, Converters& c, RunSummary& summary) {
  for (size_t i = 1; i < s.FormList.size(); ++i) {
    const std::string& name = s.FormList[i];
    if (!c.Forms) {
      Note(s, summary, name, Text(kMsgNotBuiltForms));
      continue;
    }
    s.ResetFormFields();  // F1
    if (i == 1)
      s.ConvertedNames.assign(1, SafeName(name));  // F2
    else
      s.ConvertedNames.push_back(SafeName(name));
    c.Forms->ConvertForm(s, name);                           // F3
    s.CurrentFile = s.OutputPath + SafeName(name) + ".frm";  // F4
    c.Code->ExportModuleText(s, name, kModeForm);            // F5
    c.Forms->ProcessHints(s, name);                          // F6
    if (s.SupportDb)                                         // F8
      s.SupportDb->MergeStats(
          {SafeName(name), 0, 0, 0, 0, 0, 0, 0, s.ControlCount, s.PartialControlCount, 0});
    s.ControlCount = 0;
    s.PartialControlCount = 0;
    std::string renamed = s.OutputPath + "form_" + SafeName(name) + ".frm";  // F10
    RenameFile(s.CurrentFile, renamed);
    if (fs::exists(renamed)) {
      std::string path = renamed;
      c.Code->TranslateCode(s, path, kModeForm);  // F11
      RemoveFile(renamed);                        // F12
      SilentIndent(s.CurrentFile);
      if (!s.FormFailed && s.ActiveProject->AddFile(s.CurrentFile)) {           // F13
        AddFormPropertyCode(s, *c.Forms, name);                                 // F14
        if (!s.DatasheetForms[0].empty()) c.Forms->AddDatasheetGrids(s, name);  // F15
        c.Code->MoveDeclarationBlocks(s);
        ++summary.Forms;
      }
    }
    if (s.Ui) s.Ui->ProgressStep(3, name);  // F17
  }
  s.FormPictureTiled = false;
  s.FormPictureStretched = false;
  s.FormLoadCode.clear();
  s.InitCalls = {};
}

void ConvertReportsStep(ConversionSession& s, Converters& c, RunSummary& summary) {
  for (size_t i = 1; i < s.ReportList.size(); ++i) {
    const std::string& name = s.ReportList[i];
    if (!c.Reports) {
      Note(s, summary, name, Text(kMsgNotBuiltReports));
      continue;
    }
    std::error_code ec;
    fs::copy_file(s.DataDir / "rptEnvironment.dsx",
                  s.OutputPath + SafeName(name) + ".dsx",  // R1
                  fs::copy_options::overwrite_existing, ec);
    s.ReportInitCode = c.Reports->ConvertReport(s, name);                    // R2
    s.CurrentFile = s.OutputPath + SafeName(name) + ".dsr";                  // R3
    c.Code->ExportModuleText(s, name, kModeReport);                          // R5
    std::string renamed = s.OutputPath + "REPT_" + SafeName(name) + ".txt";  // R7
    RenameFile(s.CurrentFile, renamed);
    if (fs::exists(renamed)) {
      std::string path = renamed;
      c.Code->TranslateCode(s, path, kModeReport);  // R8
      RemoveFile(renamed);                          // R9
      SilentIndent(s.CurrentFile);
      if (s.ActiveProject->AddFile(s.CurrentFile)) ++summary.Reports;
    }
    if (s.Ui) s.Ui->ProgressStep(1, name);  // R10
  }
  if (c.Reports && s.ReportList.size() > 1 && !s.ActiveProject->Find("rptEnvironment")) {
    c.Reports->WriteDataEnvironment(s);
    s.ActiveProject->AddFile(s.OutputPath + "rptEnvironment.dsr");
  }
}

void ConvertModulesStep(ConversionSession& s, Converters& c, RunSummary& summary) {
  for (size_t i = 1; i < s.ModuleList.size(); ++i) {
    const std::string& name = s.ModuleList[i];
    if (!s.AccessApp || !s.AccessApp->Find(AccessObjectKind::Module, name)) {
      Note(s, summary, name, FormatText(kMsgObjectNotInSource, {"module", name}));
      if (s.Ui) s.Ui->ProgressStep(1, name);
      continue;
    }
    c.Code->ExportModuleText(s, name, kModeModule);  // M2
    std::string input = s.OutputPath + "MODU_" + SafeFileName(name) + ".txt";
    std::string path = input;
    c.Code->TranslateCode(s, path, kModeModule);  // M4
    // Only the extraction file this run wrote goes: a text file the user keeps
    // in the output directory is not ours to delete.
    RemoveFile(input);                                           // M5
    s.CurrentFile = s.OutputPath + SafeFileName(name) + ".bas";  // M6
    if (fs::exists(s.CurrentFile)) {
      SilentIndent(s.CurrentFile);
      if (s.ActiveProject->AddFile(s.CurrentFile)) ++summary.Modules;
    }
    if (s.Ui) s.Ui->ProgressStep(1, name);  // M7
  }
}

void CountLines(ConversionSession& s, RunSummary& summary) {
  if (!s.SupportDb) return;
  for (const auto& row : s.SupportDb->Stats()) {
    int code = row.CodeLines - row.CommentLines - row.BlankLines;
    summary.LinesToReview += row.LinesPotentiallyConverted;
    summary.LinesNotTranslated += row.LinesNotTranslated;
    summary.LinesTranslated +=
        std::max(0, code - row.LinesPotentiallyConverted - row.LinesNotTranslated);
  }
}

}  // namespace

RunSummary StartTranslation(ConversionSession& s, AccessLink& link, Converters& c,
                            const RunRequest& request) {
  RunSummary summary;
  if (request.OutputDir.empty()) {  // 1, 2
    s.Ui->ShowMessage(Text(kMsgOutputPathRequired), MessageIcon::Information);
    return summary;
  }
  s.OutputPath = WithSeparator(request.OutputDir);  // 3
  if (!link.TreeRoot().empty() && IsInside(s.OutputPath, link.TreeRoot())) {
    s.Ui->ShowMessage(FormatText(kMsgOutputInsideSource, {s.OutputPath}), MessageIcon::Stop);
    return summary;
  }
  std::error_code ec;
  if (!fs::is_directory(s.OutputPath, ec)) {  // 4
    if (!s.Ui->AskYesNo(Text(kMsgCreateDirectory), true)) return summary;
    fs::create_directories(s.OutputPath, ec);
    if (ec) {
      s.Ui->ShowMessage(ec.message() + ": " + s.OutputPath, MessageIcon::Stop);
      return summary;
    }
  }
  s.FormList.assign(1, "");  // 6
  s.ModuleList.assign(1, "");
  s.ReportList.assign(1, "");
  s.NeedConversionCode = true;
  // 7, 8: a run always makes a new project here; an earlier project in the
  // output directory is replaced, so each selected entry is taken.
  for (const auto& f : request.Forms) s.FormList.push_back(f);
  for (const auto& m : request.Modules) s.ModuleList.push_back(m);
  for (const auto& r : request.Reports) s.ReportList.push_back(r);
  if (s.FormList.size() == 1 && s.ModuleList.size() == 1 && s.ReportList.size() == 1) {  // 9
    s.Ui->ShowMessage(Text(kMsgNothingToConvert), MessageIcon::Information);
    return summary;
  }
  s.ListControlsUsed = {};  // 11
  s.UseAdo = true;
  // 12: the project is named after the source file, less its extension.
  std::string file = FileNameOf(s.SourcePath);
  if (!link.DatabaseFile().empty() && file.size() > 4) {
    s.ProjectName = file.substr(0, file.size() - 4);
  } else {
    s.ProjectName = fs::path(file).stem().string();
  }
  if (s.ProjectName.empty()) s.ProjectName = "Project1";
  s.ProjectFile = s.ProjectName + ".vbp";
  ProjectModel& project = link.NewProject(s);  // 13
  project.SaveAs(fs::path(s.OutputPath) / s.ProjectFile, nullptr);
  summary.Started = true;
  RunConversion(s, link, c, summary);  // 14
  // The converters note what they could not do in the analysis; the summary
  // says all of it.
  if (s.SupportDb) {
    summary.Notes.clear();
    for (const auto& [object, text] : s.SupportDb->RunNotes())
      summary.Notes.push_back(object.empty() ? text : object + ": " + text);
  }
  return summary;
}

void RunConversion(ConversionSession& s, AccessLink& link, Converters& c, RunSummary& summary) {
  std::string err;
  if (!link.OpenSupportDatabase(s, &err)) {  // S2
    s.Ui->ShowMessage(err, MessageIcon::Stop);
    summary.Started = false;
    return;
  }
  s.SupportDb->BeginBatch();
  s.SupportDb->ClearAnalysis();
  s.SupportDb->ClearRunNotes();
  if (!link.CopySourceDatabase(s, &err)) {  // S3
    s.SupportDb->EndBatch();
    s.Ui->ShowMessage(err, MessageIcon::Stop);
    summary.Started = false;
    return;
  }
  if (!s.IsAdp && s.SourceDb) {  // S4
    std::string startup = s.SourceDb->Property("StartupForm").value_or("");
    if (!startup.empty()) {
      s.StartupFormName = startup;
      s.SourceDb->SetProperty("StartupForm", "(none)");
    }
  }
  int units = static_cast<int>(s.ReportList.size() - 1 + s.ModuleList.size() - 1 +
                               3 * (s.FormList.size() - 1));
  if (s.Ui) s.Ui->ProgressStart(units);                  // S6
  UnpackOptionWord(s, s.OutputPath, PackOptionWord(s));  // S8
  for (const auto& stage : c.Code->UnbuiltStages())
    Note(s, summary, "", FormatText(kMsgNotBuiltStage, {stage}));

  ConvertMacrosStep(s, c, summary);
  ConvertFormsStep(s, c, summary);
  ConvertReportsStep(s, c, summary);
  ConvertModulesStep(s, c, summary);
  AssembleProject(s, c, summary);

  s.ActiveProject->SaveAs(fs::path(s.OutputPath) / s.ProjectFile, nullptr);
  if (s.Ui) s.Ui->ProgressEnd();  // E2
  CountLines(s, summary);
  CheckConversionOutput(s);
  s.SupportDb->EndBatch();
  summary.AnalysisPath = WriteAnalysisReport(s, summary);  // E3, E4
}

}  // namespace morvane

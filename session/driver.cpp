// The driver: the start of a run and the fixed order of its steps.
#include "session/driver.h"

#include <filesystem>
#include <thread>

#include "platform/encoding.h"
#include "platform/line_editor.h"
#include "platform/output_directory.h"
#include "platform/project_model.h"
#include "platform/support_db.h"
#include "platform/text_file.h"
#include "session/access_link.h"
#include "session/analysis_report.h"
#include "session/analysis_writers.h"
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

// The object of the run notes that come from reading the source tree.
constexpr std::string_view kSourceTreeNotes = "(source tree)";

void Note(ConversionSession& s, RunSummary& summary, const std::string& object,
          const std::string& text) {
  summary.Notes.push_back(object.empty() ? text : object + ": " + text);
  if (s.SupportDb) s.SupportDb->AddRunNote(object, text);
}

// Why an object of the run has nothing written for it: the catalog lists it
// but the tree has no export of it, or its export could not be read.
std::string NotReadWhy(const ConversionSession& s, AccessObjectKind kind, const std::string& name) {
  if (s.AccessApp && s.AccessApp->Find(kind, name)) return Text(kMsgObjectNotRead);
  // The message is UTF-8, as the run's failures are.
  const char* word = kind == AccessObjectKind::Form     ? "form"
                     : kind == AccessObjectKind::Report ? "report"
                                                        : "module";
  return FormatText(kMsgObjectNotInSource, {word, Windows1252ToUtf8(name)});
}

// An object the run could not read or write: named with the message, in
// UTF-8.
void Failed(RunSummary& summary, const std::string& object, const std::string& why) {
  summary.Failures.push_back(Windows1252ToUtf8(object) + ": " + why);
}

// The path of a file of the output directory: the name is the system's
// Windows-1252 text, the file name on disk UTF-8.
std::string OutputFile(const ConversionSession& s, const std::string& name) {
  return s.OutputPath + Windows1252ToUtf8(name);
}

bool WriteOutput(ConversionSession& s, RunSummary& summary, const std::string& object,
                 const std::string& file, std::string_view bytes) {
  std::string err;
  if (s.Output->Write(file, bytes, &err)) return true;
  // The run goes on; the object is named, and the run's status says so.
  Failed(summary, object, err);
  return false;
}

// Writes a component of the project; its text is let go.
bool WriteComponent(ConversionSession& s, RunSummary& summary, const std::string& object,
                    const std::string& component) {
  std::string err;
  if (WriteCheckedComponent(s, component, &err)) return true;
  Failed(summary, object, err);
  return false;
}

// The property code a form's module gets for each of the Access form
// properties its code uses.
struct PropertyBlock {
  bool FormState::*flag;
  const char* declaration;
  std::vector<std::string> let;
  std::vector<std::string> get;
};

// Filter and OrderBy: the text is kept and the record source reread with it
// behind `clause` (" Where ", " Order By ").
PropertyBlock ClauseBlock(bool FormState::*flag, const char* declaration, const std::string& name,
                          const std::string& field, const std::string& typeCase,
                          const std::string& clause, const std::string& dat) {
  return {flag,
          declaration,
          {"Property Let " + name + "(ByVal sNew" + name + " As String)",
           "    " + field + "=sNew" + name,
           dat + ".RecordSource = RECORD_SOURCE & \"" + clause + "\" & sNew" + name,
           dat + ".Refresh", "End Property"},
          {"Property Get " + name + "() as " + typeCase, "    " + name + " = " + field,
           "End Property"}};
}

// FilterOn and OrderByOn: the record source is reread with the kept text
// (`textField`) behind `clause`, or without it.
PropertyBlock SwitchBlock(bool FormState::*flag, const char* declaration, const std::string& name,
                          const std::string& field, const std::string& textField,
                          const std::string& clause, const std::string& dat) {
  return {flag,
          declaration,
          {"Property Let " + name + "(bNewValue as boolean)", "    " + field + "=bNewValue",
           "    If bNewValue Then",
           "    " + dat + ".RecordSource = RECORD_SOURCE & \"" + clause + "\" & " + textField,
           "    " + dat + ".Refresh", "    Else", "    " + dat + ".RecordSource = RECORD_SOURCE",
           "    " + dat + ".Refresh", "    End If", "End Property"},
          {"Property Get " + name + "() as Boolean", "    " + name + "=" + field, "End Property"}};
}

std::vector<PropertyBlock> PropertyBlocks(const std::string& n) {
  const std::string dat = "    dat" + n;
  return {
      {&FormState::UsesOpenArgs,
       "Private msOpenArgs as string",
       {"Property Let OpenArgs(sOpenArgs as string)", "    msOpenArgs=sOpenArgs", "End Property"},
       {"Property Get OpenArgs() as string", "    OpenArgs=msOpenArgs", "End Property"}},
      ClauseBlock(&FormState::UsesFilter, "Private msFilter as string", "Filter", "msFilter",
                  "string", " Where ", dat),
      SwitchBlock(&FormState::UsesFilterOn, "Private mbFilterOn As Boolean", "FilterOn",
                  "mbFilterOn", "msFilter", " Where ", dat),
      ClauseBlock(&FormState::UsesOrderBy, "Private msOrderBy as string", "OrderBy", "msOrderBy",
                  "string", " Order By ", dat),
      SwitchBlock(&FormState::UsesOrderByOn, "Private mbOrderByOn As Boolean", "OrderByOn",
                  "mbOrderByOn", "msOrderBy", " Order By ", dat),
  };
}

std::string BlockText(const std::vector<std::string>& lines) {
  std::string text;
  for (const auto& l : lines) text += "\r\n" + l;
  return text;
}

void AddFormPropertyCode(ConversionSession& s, FormConverter& forms, const std::string& name,
                         const ProjectComponent& component) {
  const FormState& f = s.Form();
  const bool filters = f.UsesFilter || f.UsesFilterOn || f.UsesOrderBy || f.UsesOrderByOn;
  // Most forms take none of these properties: their code is not looked at.
  if (!f.UsesOpenArgs && !filters) return;
  CodeModule code = component.Code();
  for (const auto& block : PropertyBlocks(component.Name)) {
    if (!(f.*block.flag)) continue;
    code.AddFromString(block.declaration);
    code.InsertLines(code.CountOfLines() + 1, BlockText(block.let));
    code.InsertLines(code.CountOfLines() + 1, BlockText(block.get));
  }
  if (filters) {
    std::string source = forms.RecordSource(s, name);
    std::string sql =
        ToLower(source.substr(0, 7)) == "select " ? source : "Select * From [" + source + "]";
    // The statement may run over several lines and hold quotes: it becomes
    // one string expression, continued where it is long.
    std::vector<std::string> text = VbStringLines(sql);
    text.front() = "Const RECORD_SOURCE as string= " + text.front();
    std::string joined;
    for (const auto& l : text) joined += (joined.empty() ? "" : "\r\n") + l;
    code.AddFromString(joined);
  }
}

void ConvertMacrosStep(ConversionSession& s, Converters& c, RunSummary& summary) {
  // Forms and reports may hold macros in their events even where the source
  // has no macro of its own: the converter looks at both and gives no text
  // when there are none.
  if (!s.Options.MacrosWanted || !s.SourceDb) return;
  if (!c.Macros) {
    if (!s.SourceDb->ContainerDocuments("Scripts").empty())
      Note(s, summary, "", Text(kMsgNotBuiltMacros));
    return;
  }
  TextDocument macros = c.Macros->ConvertMacros(s);  // C1, C2
  if (macros.Empty()) return;
  TextDocument text = c.Code->TranslateCode(s, macros, "MacroCode", kModeModule);  // C3
  SilentIndent(text);                                                              // C4
  const ProjectComponent* component =
      s.ActiveProject->Add(OutputFile(s, "MacroCode.bas"), std::move(text));
  WriteComponent(s, summary, "MacroCode", component->Name);
  summary.Macros = static_cast<int>(s.SourceDb->ContainerDocuments("Scripts").size());
}

void ConvertFormsStep(ConversionSession& s, Converters& c, RunSummary& summary) {
  for (size_t i = 1; i < s.FormList.size(); ++i) {
    const std::string& name = s.FormList[i];
    if (!c.Forms) {
      Note(s, summary, name, Text(kMsgNotBuiltForms));
      continue;
    }
    FormScope scope(s, name);  // F1
    FormState& form = scope.State();
    const ComponentName& names = s.Names.Name(ComponentRole::Form, name);  // F2
    c.Forms->ConvertForm(s, name);                                         // F3
    // A form that could not be read has no text: the later steps find
    // nothing to work on, and the form stays out of the project.
    if (form.Text.Empty()) {
      Failed(summary, name, NotReadWhy(s, AccessObjectKind::Form, name));
    } else {
      const std::string file = OutputFile(s, names.File + ".frm");  // F4
      c.Code->ExportModuleText(s, name, kModeForm, form.Text);      // F5
      c.Forms->ProcessHints(s, name);                               // F6
      summary.ControlsNotConverted += form.ControlsNotConverted;
      if (s.SupportDb)  // F8
        s.SupportDb->MergeStats(
            {names.VbName, 0, 0, 0, 0, 0, 0, 0, form.ControlCount, form.PartialControlCount, 0});
      TextDocument text = c.Code->TranslateCode(s, form.Text, names.VbName, kModeForm);  // F11
      form.Text = TextDocument();
      SilentIndent(text);  // F12
      if (!form.Binary.empty())
        WriteOutput(s, summary, name, OutputFile(s, names.File + ".frx"), form.Binary);
      if (!form.FormFailed) {  // F13
        const ProjectComponent* component = s.ActiveProject->Add(file, std::move(text));
        const std::string vbName = component->Name;
        AddFormPropertyCode(s, *c.Forms, name, *component);                        // F14
        if (!form.DatasheetForms[0].empty()) c.Forms->AddDatasheetGrids(s, name);  // F15
        c.Code->MoveDeclarationBlocks(s, vbName);
        // The file is written beside the next forms; a failed write is
        // counted back when the forms are done.
        CheckComponent(s, vbName);
        const std::filesystem::path written = s.ActiveProject->Find(vbName)->File;
        s.Output->WriteLater(name, written, s.ActiveProject->TakeBytes(vbName));
        ++summary.Forms;
      } else {
        // Kept out of the project; its text stays in the output directory.
        WriteOutput(s, summary, name, file, text.Bytes());
        Failed(summary, name, Text(kMsgObjectKeptOut));
      }
    }
    if (s.Ui) s.Ui->ProgressStep(3, name);  // F17
  }
  for (const auto& [form, why] : s.Output->Settle()) {
    Failed(summary, form, why);
    --summary.Forms;
  }
}

void ConvertReportsStep(ConversionSession& s, Converters& c, RunSummary& summary) {
  for (size_t i = 1; i < s.ReportList.size(); ++i) {
    const std::string& name = s.ReportList[i];
    if (!c.Reports) {
      Note(s, summary, name, Text(kMsgNotBuiltReports));
      continue;
    }
    FormScope scope(s, name);
    FormState& report = scope.State();
    const ComponentName& names = s.Names.Name(ComponentRole::Report, name);
    report.ReportInitCode = c.Reports->ConvertReport(s, name);  // R1, R2
    if (report.Text.Empty()) {
      Failed(summary, name, NotReadWhy(s, AccessObjectKind::Report, name));
    } else {
      const std::string file = OutputFile(s, names.File + ".dsr");                           // R3
      c.Code->ExportModuleText(s, name, kModeReport, report.Text);                           // R5
      TextDocument text = c.Code->TranslateCode(s, report.Text, names.VbName, kModeReport);  // R8
      report.Text = TextDocument();
      SilentIndent(text);  // R9
      if (!report.Binary.empty())
        WriteOutput(s, summary, name, OutputFile(s, names.File + ".dsx"), report.Binary);
      const ProjectComponent* component = s.ActiveProject->Add(file, std::move(text));
      if (WriteComponent(s, summary, name, component->Name)) ++summary.Reports;
    }
    if (s.Ui) s.Ui->ProgressStep(1, name);  // R10
  }
  if (c.Reports && s.ReportList.size() > 1 && !s.ActiveProject->Find("rptEnvironment")) {
    TextDocument environment = c.Reports->WriteDataEnvironment(s);
    if (!environment.Empty()) {
      const ProjectComponent* component =
          s.ActiveProject->Add(OutputFile(s, "rptEnvironment.dsr"), std::move(environment));
      WriteComponent(s, summary, "rptEnvironment", component->Name);
    }
  }
}

// The modules of a run, translated on a thread of their own while the run
// converts its macros, forms and reports, as a standard module's translation
// depends on none of them: the thread works on a copy of the session whose
// analysis rows are kept aside, checks and writes each module's file, and
// the modules step takes each module in turn, adding its rows where the
// translation would have added them. A
// module whose translation met something the forms could still change (a
// name first asked for, a query not in the database) is translated again by
// the modules step, so the output is the same as one thread gives.
class ModuleTranslations {
 public:
  ModuleTranslations(ConversionSession& s, Converters& c)
      : session_(s), code_(*c.Code), copy_(s), names_(s.Names) {
    modules_.resize(s.ModuleList.size());
    for (size_t i = 1; i < s.ModuleList.size(); ++i) {
      Module& m = modules_[i];
      m.Name = s.ModuleList[i];
      m.File = s.Names.Name(ComponentRole::Module, m.Name).File;
      m.Path = OutputFile(s, m.File + ".bas");
    }
    if (!s.Options.TranslateModulesAside) return;
    // The copy reaches nothing the run's own thread writes to; the source
    // tree is only read.
    copy_.SupportDb = nullptr;
    copy_.ActiveProject = nullptr;
    copy_.ControlProject = nullptr;
    copy_.Ui = nullptr;
    copy_.Speculative = true;
    thread_ = std::thread([this] { TranslateAll(); });
  }
  ~ModuleTranslations() { Wait(); }
  ModuleTranslations(const ModuleTranslations&) = delete;
  ModuleTranslations& operator=(const ModuleTranslations&) = delete;

  struct Module {
    std::string Name;
    bool Read = false;      // its code was read
    bool Found = false;     // the tree holds it
    bool Exported = false;  // its code could be read
    std::string File;
    std::string Path;
    TextDocument Source;
    // Filled by the thread when its translation stands; the file is then
    // written, or `WriteError` says why not.
    bool Translated = false;
    ProjectComponent Component;  // without its text, which is written
    std::vector<DeferredRow> Rows;
    std::array<bool, 21> ListControlsUsed{};
    std::vector<ProjectFinding> Findings;
    bool WriteFailed = false;
    std::string WriteError;
  };

  // Module `i` of the run's list, once the thread is done; its code is read
  // when the thread did not read it.
  Module& Take(size_t i) {
    Wait();
    Module& m = modules_[i];
    if (!m.Read) ReadCode(session_, m);
    return m;
  }

 private:
  void Wait() {
    if (thread_.joinable()) thread_.join();
  }

  void ReadCode(ConversionSession& s, Module& m) {
    m.Read = true;
    m.Found = s.AccessApp && s.AccessApp->Find(AccessObjectKind::Module, m.Name);
    if (m.Found) m.Exported = code_.ExportModuleText(s, m.Name, kModeModule, m.Source);  // M2
  }

  void TranslateAll() {
    try {
      for (size_t i = 1; i < modules_.size(); ++i) {
        Module& m = modules_[i];
        ReadCode(copy_, m);
        if (!m.Exported) continue;
        const size_t known = copy_.Names.Count();
        copy_.SpeculationFailed = false;
        copy_.ListControlsUsed = {};
        copy_.Deferred = &m.Rows;
        TextDocument text = code_.TranslateCode(copy_, m.Source, m.File, kModeModule);
        if (copy_.SpeculationFailed || copy_.Names.Count() != known) {
          m.Rows.clear();
          copy_.Names = names_;
          continue;
        }
        SilentIndent(text);
        m.Findings = CheckComponentText(m.Path, text.Lines());
        m.WriteFailed = !copy_.Output->Write(m.Path, text.Bytes(), &m.WriteError);
        m.Component = ProjectModel::Describe(m.Path, text);
        m.ListControlsUsed = copy_.ListControlsUsed;
        m.Translated = true;
        // The texts are not needed again: they are let go here, off the
        // run's thread.
        m.Source = TextDocument();
      }
    } catch (...) {
      // Whatever is not translated here the modules step translates itself,
      // where a failure reaches the run as it always does.
    }
  }

  ConversionSession& session_;
  CodeConverter& code_;
  std::vector<Module> modules_;
  ConversionSession copy_;
  const NameRegistry names_;  // the names as the copy started with them
  std::thread thread_;
};

void ConvertModulesStep(ConversionSession& s, Converters& c, RunSummary& summary,
                        ModuleTranslations& translations) {
  for (size_t i = 1; i < s.ModuleList.size(); ++i) {
    const std::string& name = s.ModuleList[i];
    ModuleTranslations::Module& m = translations.Take(i);
    if (!m.Found) {
      Failed(summary, name, NotReadWhy(s, AccessObjectKind::Module, name));
    } else if (!m.Exported) {
      Failed(summary, name, Text(kMsgObjectNotRead));
    } else if (m.Translated) {
      AddDeferredRows(s, m.Rows);
      for (size_t k = 0; k < m.ListControlsUsed.size(); ++k)
        if (m.ListControlsUsed[k]) s.ListControlsUsed[k] = true;
      s.ActiveProject->Add(std::move(m.Component));
      RecordCheckFindings(s, m.Findings);
      if (!m.WriteFailed)
        ++summary.Modules;
      else
        Failed(summary, name, m.WriteError);
    } else {
      TextDocument text = c.Code->TranslateCode(s, m.Source, m.File, kModeModule);  // M4
      SilentIndent(text);                                                           // M6
      const ProjectComponent* component = s.ActiveProject->Add(m.Path, std::move(text));
      if (WriteComponent(s, summary, name, component->Name)) ++summary.Modules;
    }
    m = ModuleTranslations::Module();
    if (s.Ui) s.Ui->ProgressStep(1, name);  // M7
  }
}

// Every object of the run is named before any is converted, in list order,
// so that a name never depends on which objects a run converts first; a
// name that had to change is said in the analysis.
void RegisterNames(ConversionSession& s) {
  s.Names = NameRegistry();
  for (size_t i = 1; i < s.FormList.size(); ++i) s.Names.Name(ComponentRole::Form, s.FormList[i]);
  for (size_t i = 1; i < s.ReportList.size(); ++i)
    s.Names.Name(ComponentRole::Report, s.ReportList[i]);
  for (size_t i = 1; i < s.ModuleList.size(); ++i)
    s.Names.Name(ComponentRole::Module, s.ModuleList[i]);
  if (!s.SupportDb) return;
  for (const Renaming& r : s.Names.Renamings())
    s.SupportDb->AddRenaming({r.Object, r.Name.VbName, r.Name.File, r.Why});
}

// The user controls of the continuous forms make a project of their own;
// a project group opens it with the main project, ahead of it, so that the
// main project finds the controls.
void WriteControlProject(ConversionSession& s, RunSummary& summary, const fs::path& vbp) {
  const ProjectModel* controls = s.ControlProject;
  if (!controls || controls->Components().empty()) return;
  const std::string file = controls->Name + ".vbp";
  const fs::path path = vbp.parent_path() / Windows1252ToUtf8(file);
  WriteOutput(s, summary, controls->Name, path, controls->VbpText(path.parent_path()));
  const std::string group = "VBGROUP 5.0\r\nProject=" + file +
                            "\r\nStartupProject=" + Utf8ToWindows1252(vbp.filename().string()) +
                            "\r\n";
  WriteOutput(s, summary, s.ProjectName, vbp.parent_path() / (vbp.stem().string() + ".vbg"), group);
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

bool CheckRequest(ConversionSession& s, AccessLink& link, const RunRequest& request) {
  if (request.OutputDir.empty()) {  // 1, 2
    s.Ui->ShowMessage(Text(kMsgOutputPathRequired), MessageIcon::Information);
    return false;
  }
  const std::string output = WithSeparator(request.OutputDir);  // 3
  if (!link.TreeRoot().empty() && IsInside(output, link.TreeRoot())) {
    s.Ui->ShowMessage(FormatText(kMsgOutputInsideSource, {output}), MessageIcon::Stop);
    return false;
  }
  if (request.Forms.empty() && request.Modules.empty() && request.Reports.empty()) {  // 9
    s.Ui->ShowMessage(Text(kMsgNothingToConvert), MessageIcon::Information);
    return false;
  }
  std::error_code ec;
  if (!fs::is_directory(output, ec)) {  // 4
    if (!s.Ui->AskYesNo(Text(kMsgCreateDirectory), true)) return false;
    fs::create_directories(output, ec);
    if (ec) {
      s.Ui->ShowMessage(ec.message() + ": " + output, MessageIcon::Stop);
      return false;
    }
  }
  return true;
}

RunSummary RunTranslation(ConversionSession& s, AccessLink& link, Converters& c,
                          const RunRequest& request) {
  RunSummary summary;
  s.OutputPath = WithSeparator(request.OutputDir);
  OutputDirectory output(s.OutputPath);
  s.Output = &output;
  s.ControlProject = nullptr;
  s.FormList.assign(1, "");  // 6
  s.ModuleList.assign(1, "");
  s.ReportList.assign(1, "");
  s.NeedConversionCode = true;
  s.CheckFindings = 0;
  s.BlockingFindings = 0;
  // 7, 8: a run always makes a new project here; an earlier project in the
  // output directory is replaced, so each selected entry is taken.
  for (const auto& f : request.Forms) s.FormList.push_back(f);
  for (const auto& m : request.Modules) s.ModuleList.push_back(m);
  for (const auto& r : request.Reports) s.ReportList.push_back(r);
  s.ListControlsUsed = {};  // 11
  // 12: the project is named after the source file, less its extension.
  std::string file = FileNameOf(s.SourcePath);
  if (!link.DatabaseFile().empty() && file.size() > 4) {
    s.ProjectName = file.substr(0, file.size() - 4);
  } else {
    s.ProjectName = fs::path(file).stem().string();
  }
  if (s.ProjectName.empty()) s.ProjectName = "Project1";
  s.ProjectFile = s.ProjectName + ".vbp";
  link.NewProject(s);  // 13
  summary.Started = true;
  RunConversion(s, link, c, summary);  // 14
  // The converters note what they could not do in the analysis; the summary
  // says all of it.
  if (s.SupportDb) {
    summary.Notes.clear();
    for (const auto& [object, text] : s.SupportDb->RunNotes())
      if (object != kSourceTreeNotes)  // shown as warnings before the run
        summary.Notes.push_back(object.empty() ? text : object + ": " + text);
  }
  s.Output = nullptr;
  return summary;
}

RunSummary StartTranslation(ConversionSession& s, AccessLink& link, Converters& c,
                            const RunRequest& request) {
  if (!CheckRequest(s, link, request)) return RunSummary();
  return RunTranslation(s, link, c, request);
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
  // What reading the tree passed over (a file that is no export, a table's
  // definition, code whose object is missing) is kept with the run's notes.
  if (link.Tree())
    for (const auto& warning : link.Tree()->Warnings())
      s.SupportDb->AddRunNote(std::string(kSourceTreeNotes), Utf8ToWindows1252(warning));
  if (!link.CopySourceDatabase(s, &err)) {  // S3
    s.SupportDb->EndBatch();
    s.Ui->ShowMessage(err, MessageIcon::Stop);
    summary.Started = false;
    return;
  }
  RegisterNames(s);
  if (!s.IsAdp && s.SourceDb) {  // S4
    std::string startup = s.SourceDb->Property("StartupForm").value_or("");
    if (!startup.empty()) {
      s.StartupFormName = startup;
      s.SourceDb->SetProperty("StartupForm", "(none)");
    }
  }
  int units = static_cast<int>(s.ReportList.size() - 1 + s.ModuleList.size() - 1 +
                               3 * (s.FormList.size() - 1));
  if (s.Ui) s.Ui->ProgressStart(units);                          // S6
  UnpackOptionWord(s, s.OutputPath, PackOptionWord(s.Options));  // S8
  for (const auto& stage : c.Code->UnbuiltStages())
    Note(s, summary, "", FormatText(kMsgNotBuiltStage, {stage}));

  ModuleTranslations modules(s, c);
  ConvertMacrosStep(s, c, summary);
  ConvertFormsStep(s, c, summary);
  ConvertReportsStep(s, c, summary);
  ConvertModulesStep(s, c, summary, modules);
  AssembleProject(s, c, summary);

  const fs::path vbp = fs::path(s.OutputPath) / s.ProjectFile;
  WriteOutput(s, summary, s.ProjectName, vbp, s.ActiveProject->VbpText(vbp.parent_path()));
  WriteControlProject(s, summary, vbp);
  if (s.Ui) s.Ui->ProgressEnd();  // E2
  CountLines(s, summary);
  CheckConversionOutput(s);
  if (!s.SupportDb->EndBatch(&err))
    Failed(summary, "morvane.db", "the analysis could not be written: " + err);
  summary.AnalysisPath = WriteAnalysisReport(s, summary);  // E3, E4
  if (summary.AnalysisPath.empty())
    Failed(summary, "analysis", "the analysis page could not be written");
}

}  // namespace morvane

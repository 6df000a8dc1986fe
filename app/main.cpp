// The morvane command: `morvane list SOURCE`, `morvane convert SOURCE -o
// OUTDIR`, with the options of the main window as flags, and `morvane check
// OUTDIR`.
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <optional>

#include "app/command_line_ui.h"
#include "app/text_output.h"
#include "design/design_store.h"
#include "events/event_writer.h"
#include "forms/form_converter.h"
#include "macros/macro_converter.h"
#include "platform/catalog.h"
#include "session/access_link.h"
#include "session/conversion_session.h"
#include "session/driver.h"
#include "session/naming.h"
#include "session/project_check.h"
#include "session/strings.h"
#include "translator/code_converter.h"

namespace fs = std::filesystem;
using namespace morvane;

namespace {

struct Options {
  std::string source;
  std::string sourceTree;
  std::string layout;
  std::string output;
  std::vector<std::string> forms, modules, reports;
  bool all = false;
  int listboxType = 5;
  int comboboxType = 4;
  std::string listboxMode = "unbound";
  std::string comboboxMode = "bound";
  bool standardControls = true, mdi = true, relativePaths = true, ssOptionSet = false,
       datePicker = true, macros = true, vb5 = false;
  std::string user = "Admin", password, workgroup, adoConnect;
  bool yes = false, no = false;
  bool details = false;
};

const char* QueryTypeName(int type) {
  switch (type) {
    case kDbQSelect:
      return "select";
    case kDbQCrosstab:
      return "crosstab";
    case kDbQDelete:
      return "delete";
    case kDbQUpdate:
      return "update";
    case kDbQAppend:
      return "append";
    case kDbQMakeTable:
      return "make-table";
    case kDbQDDL:
      return "data-definition";
    case kDbQSQLPassThrough:
      return "pass-through";
    case kDbQSetOperation:
      return "union";
    case kDbQSPTBulk:
      return "bulk pass-through";
    default:
      return "other";
  }
}

fs::path DataDirectory(const char* argv0) {
  std::error_code ec;
  fs::path exe = fs::read_symlink("/proc/self/exe", ec);
  if (ec) exe = fs::absolute(argv0, ec);
  fs::path installed = exe.parent_path().parent_path() / "share" / "morvane";
  if (fs::exists(installed / "MorvaneConversionCode.bas", ec)) return installed;
  return MORVANE_DATA_DIR;
}

int Fail(const std::string& message) {
  std::fprintf(stderr, "morvane: error: %s\n", message.c_str());
  return 2;
}

// Names typed on the command line are UTF-8; the system's names are
// Windows-1252.
std::vector<std::string> ToSystemText(const std::vector<std::string>& names) {
  std::vector<std::string> out;
  for (const auto& n : names) out.push_back(Utf8ToWindows1252(n));
  return out;
}

// Each requested name must be in the catalog; the selection keeps the
// catalog's spelling.
bool Select(const std::vector<std::string>& requested, const std::vector<std::string>& offered,
            const char* kind, std::vector<std::string>* selected, std::string* err) {
  for (const auto& name : requested) {
    const std::string* hit = nullptr;
    for (const auto& o : offered)
      if (EqualsNoCase(o, name)) hit = &o;
    if (!hit) {
      *err = FormatText(kMsgNoSuchObject, {kind, Windows1252ToUtf8(name)});
      return false;
    }
    selected->push_back(*hit);
  }
  return true;
}

// Reads the design of every form and report the tree has, so that an export
// that cannot be read is named (file and line) before anything is converted.
std::vector<std::string> DesignProblems(const SourceTree& tree) {
  std::vector<std::string> problems;
  DesignStore store(tree);
  for (auto kind : {AccessObjectKind::Form, AccessObjectKind::Report}) {
    for (const auto& name : tree.Names(kind)) {
      std::string err;
      if (!store.Open(kind, name, &err)) problems.push_back(err);
    }
  }
  return problems;
}

void PrintList(const char* heading, const std::vector<std::string>& names) {
  std::printf("%s:\n", heading);
  for (const auto& n : names) std::printf("  %s\n", Windows1252ToUtf8(n).c_str());
}

int RunList(const Options& o) {
  ConversionSession s;
  AccessLink link;
  std::string err;
  if (!link.ChooseDatabase(s, {o.source, o.sourceTree, o.layout}, &err)) return Fail(err);
  CatalogListing l = link.Listing();
  PrintList("Forms", l.Forms);
  PrintList("Modules", l.Modules);
  PrintList("Reports", l.Reports);
  PrintList("Macros", l.Macros);
  if (o.details) {
    const Catalog& db = *link.Db();
    std::printf("Tables:\n");
    for (const auto& t : db.TableDefs()) {
      std::printf("  %s (%zu fields%s)\n", Windows1252ToUtf8(t.Name).c_str(), t.Fields.size(),
                  t.Linked ? ", linked" : "");
    }
    std::printf("Queries:\n");
    for (const auto& q : db.QueryDefs())
      std::printf("  %s (%s, type %d)\n", Windows1252ToUtf8(q.Name).c_str(), QueryTypeName(q.Type),
                  q.Type);
    std::printf("Properties:\n");
    for (const auto& [name, value] : db.PropertyList())
      std::printf("  %s = %s\n", Windows1252ToUtf8(name).c_str(), Windows1252ToUtf8(value).c_str());
  }
  if (link.Tree()) {
    for (const auto& w : link.Tree()->Warnings())
      std::fprintf(stderr, "morvane: warning: %s\n", Windows1252ToUtf8(w).c_str());
    for (const auto& p : DesignProblems(*link.Tree()))
      std::fprintf(stderr, "morvane: warning: %s\n", Windows1252ToUtf8(p).c_str());
  }
  return 0;
}

int RunConvert(const Options& o, const char* argv0) {
  std::optional<bool> answer;
  if (o.yes) answer = true;
  if (o.no) answer = false;
  CommandLineUi ui(answer);
  ConversionSession s;
  s.Ui = &ui;
  s.DataDir = DataDirectory(argv0);
  s.ListboxType = o.listboxType;
  s.ComboboxType = o.comboboxType;
  s.ListboxBound = o.listboxMode == "bound";
  s.ComboboxBound = o.comboboxMode == "bound";
  s.StandardControls = o.standardControls;
  s.IsMdi = o.mdi;
  s.WantRelativePaths = o.relativePaths;
  s.WantSsOptionSet = o.ssOptionSet;
  s.WantDatePicker = o.datePicker;
  s.MacrosWanted = o.macros;
  s.IsVb5 = o.vb5;
  s.UserName = Utf8ToWindows1252(o.user);
  s.Password = Utf8ToWindows1252(o.password);
  s.WorkgroupFile = Utf8ToWindows1252(o.workgroup);
  s.SecurityDisabled = o.workgroup.empty();

  AccessLink link;
  std::string err;
  if (!link.ChooseDatabase(s, {o.source, o.sourceTree, o.layout}, &err)) return Fail(err);
  if (!o.adoConnect.empty()) s.AdoConnect = Utf8ToWindows1252(o.adoConnect);
  std::vector<std::string> warnings;
  if (link.Tree()) {
    warnings = link.Tree()->Warnings();
    for (auto& p : DesignProblems(*link.Tree())) warnings.push_back(std::move(p));
  }
  for (const auto& w : warnings)
    std::fprintf(stderr, "morvane: warning: %s\n", Windows1252ToUtf8(w).c_str());

  CatalogListing offered = link.Listing();
  RunRequest request;
  request.OutputDir = o.output;
  const bool all = o.all || (o.forms.empty() && o.modules.empty() && o.reports.empty());
  if (all) {
    request.Forms = offered.Forms;
    request.Modules = offered.Modules;
    request.Reports = offered.Reports;
  } else if (!Select(ToSystemText(o.forms), offered.Forms, "form", &request.Forms, &err) ||
             !Select(ToSystemText(o.modules), offered.Modules, "module", &request.Modules, &err) ||
             !Select(ToSystemText(o.reports), offered.Reports, "report", &request.Reports, &err)) {
    return Fail(err);
  }
  if (!link.Tree()) {
    return Fail(FormatText(kMsgNoSourceTree,
                           {o.source, fs::path(o.source).replace_extension(".src").string()}));
  }

  TranslatorCodeConverter code;
  DesignStore store(*link.Tree());
  MacroConverterImpl macroConverter(&store);
  EventHintActions hintActions(store);
  DesignFormConverter forms(store, hintActions);
  Converters converters;
  converters.Code = &code;
  converters.Macros = &macroConverter;
  converters.Forms = &forms;
  RunSummary summary = StartTranslation(s, link, converters, request);
  if (!summary.Started) return 1;

  const int total = summary.Forms + summary.Reports + summary.Modules;
  std::string macros =
      summary.Macros ? ", " + std::to_string(summary.Macros) + " macro(s)" : std::string();
  std::printf("%s\n",
              FormatText(kMsgSummaryObjects,
                         {std::to_string(total), std::to_string(summary.Forms),
                          std::to_string(summary.Reports), std::to_string(summary.Modules), macros})
                  .c_str());
  std::printf("%s\n", FormatText(kMsgSummaryLines, {std::to_string(summary.LinesTranslated),
                                                    std::to_string(summary.LinesToReview),
                                                    std::to_string(summary.LinesNotTranslated)})
                          .c_str());
  for (const auto& note : summary.Notes)
    std::printf("Not done: %s\n", Windows1252ToUtf8(note).c_str());
  std::printf("%s\n", FormatText(kMsgSummaryAnalysis, {summary.AnalysisPath}).c_str());
  return 0;
}

// `morvane check OUTDIR`: each finding as file:line, and a non-zero status
// when something would keep Visual Basic 6 from loading the project.
int RunCheck(const std::string& dir) {
  std::vector<ProjectFinding> findings;
  std::string err;
  if (!CheckProject(dir, &findings, &err)) return Fail(err);
  int blocking = 0;
  for (const auto& f : findings) {
    std::printf("%s\n", Windows1252ToUtf8(FormatFinding(f)).c_str());
    if (!f.Loads) ++blocking;
  }
  std::printf("%d problem(s), %zu warning(s)\n", blocking, findings.size() - blocking);
  return blocking > 0 ? 1 : 0;
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app{"Converts a Microsoft Access 2000/XP application into a Visual Basic 6 project."};
  app.require_subcommand(1);
  Options o;

  auto addSource = [&](CLI::App* cmd) {
    cmd->add_option("SOURCE", o.source,
                    "Access source tree (directory of SaveAsText exports), or an .mdb/.adp file "
                    "with its tree beside it (<name>.src/)")
        ->required();
    cmd->add_option("--source-tree", o.sourceTree, "The source tree of an .mdb/.adp file");
    cmd->add_option("--layout", o.layout, "Force the layout of the source tree (default: detect)");
  };

  CLI::App* list = app.add_subcommand("list", "List the forms, modules, reports and macros");
  addSource(list);
  list->add_flag("--details", o.details, "Also list the tables, queries and database properties");

  CLI::App* convert = app.add_subcommand("convert", "Convert into a Visual Basic 6 project");
  addSource(convert);
  convert->add_option("-o,--output", o.output, "Output directory")->required();
  convert->add_option("--forms", o.forms, "Forms to convert")->delimiter(',');
  convert->add_option("--modules", o.modules, "Modules to convert")->delimiter(',');
  convert->add_option("--reports", o.reports, "Reports to convert")->delimiter(',');
  convert->add_flag("--all", o.all, "Convert everything (the default without a selection)");
  convert
      ->add_option("--listbox-type", o.listboxType,
                   "1 GreenTree, 2 Sheridan 2.0, 3 Sheridan 3.0, 4 Halvex Kestrel, "
                   "5 Microsoft ListView")
      ->check(CLI::Range(1, 5));
  convert
      ->add_option("--combobox-type", o.comboboxType,
                   "1 GreenTree, 2 Sheridan 2.0, 3 Sheridan 3.0, 4 Microsoft Forms 2.0")
      ->check(CLI::Range(1, 4));
  convert->add_option("--listbox-mode", o.listboxMode)->check(CLI::IsMember({"bound", "unbound"}));
  convert->add_option("--combobox-mode", o.comboboxMode)
      ->check(CLI::IsMember({"bound", "unbound"}));
  convert->add_flag("--standard-controls,!--no-standard-controls", o.standardControls,
                    "Use standard VB controls where they serve");
  convert->add_flag("--mdi,!--no-mdi", o.mdi, "Create an MDI project");
  convert->add_flag("--relative-paths,!--no-relative-paths", o.relativePaths,
                    "Data controls name the database without the output path");
  convert->add_flag("--ss-option-set,!--no-ss-option-set", o.ssOptionSet,
                    "Use the Sheridan option set for option groups");
  convert->add_flag("--date-picker,!--no-date-picker", o.datePicker,
                    "Date-formatted text boxes become date pickers");
  convert->add_flag("--macros,!--no-macros", o.macros, "Convert the macros");
  convert->add_flag("--vb5", o.vb5, "Write for Visual Basic 5");
  convert->add_option("--user", o.user, "User of a secured database");
  convert->add_option("--password", o.password, "Password of a secured database");
  convert->add_option("--workgroup", o.workgroup, "Workgroup file of a secured database");
  convert->add_option("--ado-connect", o.adoConnect, "ADO connection string of the generated code");
  auto* yes = convert->add_flag("--yes", o.yes, "Answer Yes to the run's questions");
  convert->add_flag("--no", o.no, "Answer No to the run's questions")->excludes(yes);

  std::string checkDir;
  CLI::App* check = app.add_subcommand(
      "check", "Check a generated project for what Visual Basic 6 would not load or compile");
  check->add_option("OUTDIR", checkDir, "The output directory of a conversion")->required();

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& e) {
    return app.exit(e);
  }
  try {
    if (list->parsed()) return RunList(o);
    if (check->parsed()) return RunCheck(checkDir);
    return RunConvert(o, argv[0]);
  } catch (const std::exception& e) {
    return Fail(e.what());
  }
}

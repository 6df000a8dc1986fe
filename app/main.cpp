// The morvane command: `morvane list SOURCE`, `morvane convert SOURCE -o
// OUTDIR`, with the options of the main window as flags, and `morvane check
// OUTDIR`.
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <optional>

#include "app/command_line_ui.h"
#include "app/conversion_run.h"
#include "platform/catalog.h"
#include "platform/encoding.h"
#include "session/naming.h"
#include "session/project_check.h"
#include "session/strings.h"

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
       datePicker = true, macros = true, vb5 = false, oneThread = false;
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

int Fail(const std::string& message) {
  std::fprintf(stderr, "morvane: error: %s\n", message.c_str());
  return kRunNotStarted;
}

// Names typed on the command line are UTF-8; the system's names are
// Windows-1252.
std::vector<std::string> ToSystemText(const std::vector<std::string>& names) {
  std::vector<std::string> out;
  for (const auto& n : names) out.push_back(Utf8ToWindows1252(n));
  return out;
}

void PrintList(const char* heading, const std::vector<std::string>& names) {
  std::printf("%s:\n", heading);
  for (const auto& n : names) std::printf("  %s\n", Windows1252ToUtf8(n).c_str());
}

void PrintWarnings(ConversionRun& run) {
  for (const auto& w : run.Warnings()) std::fprintf(stderr, "morvane: warning: %s\n", w.c_str());
}

int RunList(const Options& o) {
  ConversionRun run{RunOptions{}};
  std::string err;
  if (!run.Open({o.source, o.sourceTree, o.layout}, &err)) return Fail(err);
  CatalogListing l = run.Listing();
  PrintList("Forms", l.Forms);
  PrintList("Modules", l.Modules);
  PrintList("Reports", l.Reports);
  PrintList("Macros", l.Macros);
  if (o.details) {
    const Catalog& db = *run.Link().Db();
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
  PrintWarnings(run);
  return 0;
}

RunOptions OptionsOf(const Options& o) {
  RunOptions r;
  r.DataDir = DataDirectory();
  r.ListboxType = o.listboxType;
  r.ComboboxType = o.comboboxType;
  r.ListboxBound = o.listboxMode == "bound";
  r.ComboboxBound = o.comboboxMode == "bound";
  r.StandardControls = o.standardControls;
  r.IsMdi = o.mdi;
  r.RelativePaths = o.relativePaths;
  r.SsOptionSet = o.ssOptionSet;
  r.DatePicker = o.datePicker;
  r.MacrosWanted = o.macros;
  r.IsVb5 = o.vb5;
  r.TranslateModulesAside = !o.oneThread;
  r.UserName = Utf8ToWindows1252(o.user);
  r.Password = Utf8ToWindows1252(o.password);
  r.WorkgroupFile = Utf8ToWindows1252(o.workgroup);
  r.SecurityDisabled = o.workgroup.empty();
  r.AdoConnect = Utf8ToWindows1252(o.adoConnect);
  return r;
}

int RunConvert(const Options& o) {
  std::optional<bool> answer;
  if (o.yes) answer = true;
  if (o.no) answer = false;
  CommandLineUi ui(answer);
  ConversionRun run(OptionsOf(o));
  std::string err;
  if (!run.Open({o.source, o.sourceTree, o.layout}, &err)) return Fail(err);
  PrintWarnings(run);

  RunRequest request;
  Selection selection{ToSystemText(o.forms), ToSystemText(o.modules), ToSystemText(o.reports),
                      o.all};
  if (!run.MakeRequest(o.output, selection, &request, &err)) return Fail(Windows1252ToUtf8(err));
  if (!run.Link().Tree()) {
    return Fail(FormatText(kMsgNoSourceTree,
                           {o.source, fs::path(o.source).replace_extension(".src").string()}));
  }
  if (!run.Check(request, ui)) return kRunNotStarted;
  RunSummary summary = run.Run(request, ui);
  if (!summary.Started) return kRunNotStarted;

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
  if (summary.ControlsNotConverted > 0)
    std::printf(
        "%s\n",
        FormatText(kMsgSummaryControls, {std::to_string(summary.ControlsNotConverted)}).c_str());
  for (const auto& note : summary.Notes)
    std::printf("Not done: %s\n", Windows1252ToUtf8(note).c_str());
  for (const auto& failure : summary.Failures)
    std::fprintf(stderr, "morvane: error: %s\n", failure.c_str());
  if (!summary.AnalysisPath.empty())
    std::printf("%s\n", FormatText(kMsgSummaryAnalysis, {summary.AnalysisPath}).c_str());
  return StatusOf(summary);
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
  // A file size limit makes a write fail instead of ending the process, so
  // the run names the file it could not write.
  std::signal(SIGXFSZ, SIG_IGN);
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
  convert->add_flag("--one-thread", o.oneThread,
                    "Translate the modules on the run's own thread (the output is the same)");
  convert->add_option("--user", o.user, "User of a secured database");
  convert->add_option("--password", o.password, "Password of a secured database");
  convert->add_option("--workgroup", o.workgroup, "Workgroup file of a secured database");
  convert->add_option("--ado-connect", o.adoConnect, "ADO connection string of the generated code");
  auto* yes = convert->add_flag("--yes", o.yes, "Answer Yes to the run's questions");
  convert->add_flag("--no", o.no, "Answer No to the run's questions")->excludes(yes);

  list->footer("Exit status: 0 when the source was listed; 2 when it could not be opened.");
  convert->footer(
      "Exit status: 0 when every selected object was converted (notes in the analysis allowed); "
      "3 when the run finished but some object could not be read or written, or was kept out "
      "of the project (each is named on stderr and in the analysis); 2 when the run could not "
      "start (a bad argument, a source that cannot be read, an output directory that cannot be "
      "used).");

  std::string checkDir;
  CLI::App* check = app.add_subcommand(
      "check", "Check a generated project for what Visual Basic 6 would not load or compile");
  check->add_option("OUTDIR", checkDir, "The output directory of a conversion")->required();
  check->footer(
      "Exit status: 0 when Visual Basic 6 would load and compile every file; 1 when something "
      "would keep it from doing so (each place is printed as file:line); 2 when the directory "
      "cannot be read.");

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& e) {
    // Help is a finished run; a bad argument is a run that could not start.
    return app.exit(e) == 0 ? 0 : kRunNotStarted;
  }
  try {
    if (list->parsed()) return RunList(o);
    if (check->parsed()) return RunCheck(checkDir);
    return RunConvert(o);
  } catch (const std::exception& e) {
    return Fail(e.what());
  }
}

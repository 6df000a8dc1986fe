// Putting a run together: options, source, design store, converters, driver.
#include "app/conversion_run.h"

#include <cstdlib>

#include "app/form_actions.h"
#include "cforms/continuous_forms.h"
#include "design/design_store.h"
#include "forms/form_converter.h"
#include "macros/macro_converter.h"
#include "platform/encoding.h"
#include "reports/report_converter.h"
#include "session/naming.h"
#include "session/strings.h"
#include "session/user_interface.h"
#include "translator/code_converter.h"

namespace morvane {

namespace {

// Each requested name must be in the catalog; the selection keeps the
// catalog's spelling.
bool Select(const std::vector<std::string>& requested, const std::vector<std::string>& offered,
            const char* kind, std::vector<std::string>* selected, std::string* err) {
  for (const auto& name : requested) {
    const std::string* hit = nullptr;
    for (const auto& o : offered)
      if (EqualsNoCase(o, name)) hit = &o;
    if (!hit) {
      *err = FormatText(kMsgNoSuchObject, {kind, name});
      return false;
    }
    selected->push_back(*hit);
  }
  return true;
}

}  // namespace

ConversionRun::ConversionRun(RunOptions options) : options_(std::move(options)) {}

ConversionRun::~ConversionRun() = default;

bool ConversionRun::Open(const SourceChoice& source, std::string* err) {
  if (!link_.ChooseDatabase(s_, source, err)) return false;
  // The source gives the connection string unless the user named one.
  const std::string connect = s_.Options.AdoConnect;
  s_.Options = options_;
  if (s_.Options.AdoConnect.empty()) s_.Options.AdoConnect = connect;
  if (!link_.Tree()) return true;
  store_ = std::make_unique<DesignStore>(*link_.Tree());
  code_ = std::make_unique<TranslatorCodeConverter>();
  macros_ = std::make_unique<MacroConverterImpl>(store_.get());
  continuous_ = std::make_unique<ContinuousForms>(*store_);
  hints_ = std::make_unique<FormHintActions>(*store_, *continuous_);
  forms_ = std::make_unique<DesignFormConverter>(*store_, *hints_);
  reports_ = std::make_unique<DesignReportConverter>(*store_);
  converters_.Code = code_.get();
  converters_.Macros = macros_.get();
  converters_.Forms = forms_.get();
  converters_.Reports = reports_.get();
  return true;
}

std::vector<std::string> ConversionRun::Warnings() {
  std::vector<std::string> warnings;
  if (!link_.Tree()) return warnings;
  warnings = link_.Tree()->Warnings();
  for (auto kind : {AccessObjectKind::Form, AccessObjectKind::Report}) {
    for (const auto& name : link_.Tree()->Names(kind)) {
      std::string err;
      if (!store_->Open(kind, name, &err)) warnings.push_back(Windows1252ToUtf8(err));
    }
  }
  return warnings;
}

bool ConversionRun::MakeRequest(const std::string& outputDir, const Selection& selection,
                                RunRequest* request, std::string* err) const {
  const CatalogListing offered = Listing();
  request->OutputDir = outputDir;
  const bool all = selection.All || (selection.Forms.empty() && selection.Modules.empty() &&
                                     selection.Reports.empty());
  if (all) {
    request->Forms = offered.Forms;
    request->Modules = offered.Modules;
    request->Reports = offered.Reports;
    return true;
  }
  return Select(selection.Forms, offered.Forms, "form", &request->Forms, err) &&
         Select(selection.Modules, offered.Modules, "module", &request->Modules, err) &&
         Select(selection.Reports, offered.Reports, "report", &request->Reports, err);
}

bool ConversionRun::Check(const RunRequest& request, UserInterface& ui) {
  s_.Ui = &ui;
  return CheckRequest(s_, link_, request);
}

RunSummary ConversionRun::Run(const RunRequest& request, UserInterface& ui) {
  s_.Ui = &ui;
  RunSummary summary = RunTranslation(s_, link_, converters_, request);
  s_.Ui = nullptr;
  return summary;
}

RunStatus StatusOf(const RunSummary& summary) {
  if (!summary.Started) return kRunNotStarted;
  return summary.Failures.empty() ? kRunConverted : kRunIncomplete;
}

std::filesystem::path DataDirectory() {
  namespace fs = std::filesystem;
  if (const char* named = std::getenv("MORVANE_DATA_DIR"); named && *named) return named;
  // The program's own location, not the current directory: an installed copy
  // runs from anywhere.
  std::error_code ec;
  fs::path exe = fs::read_symlink("/proc/self/exe", ec);
  return exe.parent_path().parent_path() / "share" / "morvane";
}

std::string MissingDataFile(const std::filesystem::path& dir) {
  static constexpr const char* kRequired[] = {
      "MorvaneConversionCode.bas", "MDIParent.frm",         "CustomControlMapping.tsv",
      "mtm_tblActions.tsv",        "mtm_tblActionArgs.tsv", "mtm_tblLookups.tsv",
      "conversion_templates",
  };
  std::error_code ec;
  for (const char* name : kRequired)
    if (!std::filesystem::exists(dir / name, ec)) return name;
  return "";
}

}  // namespace morvane

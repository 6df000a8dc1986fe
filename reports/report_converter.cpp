// The driver's report converter: opens the design, runs the report writer,
// and hands what it made to the report's state.
#include "reports/report_converter.h"

#include "design/design_store.h"
#include "platform/line_editor.h"
#include "platform/output_directory.h"
#include "platform/project_model.h"
#include "platform/support_db.h"
#include "reports/report_writer.h"
#include "session/conversion_session.h"
#include "session/naming.h"

namespace morvane {

namespace {

// The libraries a project with DataReports and a data environment needs.
struct DesignerLibrary {
  const char* guid;
  int major;
  int minor;
};

constexpr DesignerLibrary kDesignerLibraries[] = {
    {"{642AC760-AAB4-11D0-8494-00A0C90DC8A9}", 1, 0},  // Data Report Designer
    {"{6B263850-900B-11D0-9484-00A0C91110ED}", 1, 0},  // Data Formatting Object Library
    {"{3D5C6BF0-69A3-11D0-B393-00A0C9055D8E}", 1, 0},  // Data Environment Instance
};

void Note(ConversionSession& s, const std::string& object, const std::string& text) {
  if (s.SupportDb) s.SupportDb->AddRunNote(object, text);
}

}  // namespace

std::string DesignReportConverter::ConvertReport(ConversionSession& s, const std::string& name) {
  if (s.OptionWordLength != 11) return std::string();
  std::string err;
  const FormDesign* design = store_.OpenReport(name, &err);
  if (!design) {
    Note(s, name, err.empty() ? "the report was not written" : err);
    return std::string();
  }
  const ComponentName& names = s.Names.Name(ComponentRole::Report, name);
  ConvertedReport report =
      ConvertReportDesign(*design, s.SourceDb, environment_, names.VbName, names.File);
  FormState& state = s.Form();
  state.Text = TextDocument::FromBytes(report.Dsr);
  state.Binary = std::move(report.Dsx);
  if (s.SupportDb) {
    // The log keeps the rows of other reports from earlier runs; this
    // report's rows are those of its latest conversion.
    s.SupportDb->ClearLogOf({name, names.VbName});
    for (const LogRow& row : report.Log) s.SupportDb->AddLog(row);
    for (const ReportOutputRow& row : report.Review) s.SupportDb->AddReportOutput(row);
    s.SupportDb->MergeStats(
        {names.VbName, 0, 0, 0, 0, 0, 0, 0, report.Items, report.ItemsToReview, 0});
  }
  return report.InitCode;
}

TextDocument DesignReportConverter::WriteDataEnvironment(ConversionSession& s) {
  std::string dsx;
  const std::string text = environment_.Text(s.Options.AdoConnect, &dsx);
  if (!dsx.empty() && s.Output) {
    std::string err;
    if (!s.Output->Write("rptEnvironment.dsx", dsx, &err)) {
      Note(s, "rptEnvironment", err);
      return TextDocument();
    }
  }
  TextDocument environment = TextDocument::FromBytes(text);
  SilentIndent(environment);
  if (s.ActiveProject) {
    for (const DesignerLibrary& lib : kDesignerLibraries) {
      bool have = false;
      for (const ReferenceInfo& r : s.ActiveProject->References())
        have = have || EqualsNoCase(r.Guid, lib.guid);
      if (!have) s.ActiveProject->AddFromGuid(lib.guid, lib.major, lib.minor);
    }
  }
  return environment;
}

}  // namespace morvane

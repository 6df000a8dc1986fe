// The support database: one SQLite file, morvane.db, in the output directory.
// It keeps the conversion analysis (tblReportOutput, tblStats, tblLog), the
// scratch tables of the walkers (tblFields, tblPict) and the read-only mapping
// tables (CustomControlMapping, mtm_tblActions, mtm_tblActionArgs,
// mtm_tblLookups) seeded from the program's data directory.
#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace morvane {

struct ReportOutputRow {
  std::string ModuleName;
  long ReasonID = 0;
  std::string CodeLine;
  int LineNumber = 0;
  std::string TranslatedLine;
  std::string Routine;
};

struct StatsRow {
  std::string ModuleName;
  int TotalLines = 0;
  int CommentLines = 0;
  int LinesNotTranslated = 0;
  int LinesPotentiallyConverted = 0;
  int BlankLines = 0;
  int SubCount = 0;
  int ProcCount = 0;
  int CtlCount = 0;
  int CtlsPartiallyConverted = 0;
  int CodeLines = 0;
};

struct LogRow {
  long ErrorID = 0;
  std::string Report;
  std::string Location;
  int ControlDeleted = 0;
};

// A row of CustomControlMapping.
struct CustomControlRow {
  std::string VBType;
  std::string ClassID;
  std::string FileName;
};

// Rows of the macro mapping tables; a Null text is nullopt.
struct MacroActionRow {
  std::string Action;
  long ActionID = 0;
  std::optional<std::string> MapsTo;
  int NumArgs = 0;
};
struct MacroActionArgRow {
  long ActionID = 0;
  int ArgNumber = 0;
  int ArgumentType = 0;
  long LookupBase = 0;
  bool AutoExpression = false;
};
struct MacroLookupRow {
  long LookupNumber = 0;
  std::string Value;
};

// An object whose Visual Basic name or file name had to differ from its
// Access name beyond the usual mapping.
struct RenamingRow {
  std::string Object;
  std::string VbName;
  std::string File;
  std::string Why;
};

struct FieldRow {
  std::string FieldName;
  int Type = 0;
  std::string Form;
};

class SupportDatabase {
 public:
  // Opens (creating when needed) the database file and its schema. The
  // mapping tables are seeded from `dataDir` when they are empty.
  static std::unique_ptr<SupportDatabase> Open(const std::filesystem::path& file,
                                               const std::filesystem::path& dataDir,
                                               std::string* err);
  ~SupportDatabase();
  SupportDatabase(const SupportDatabase&) = delete;
  SupportDatabase& operator=(const SupportDatabase&) = delete;

  const std::filesystem::path& File() const { return file_; }
  // The engine's code of the last failed operation.
  int LastErrorCode() const;

  // Runs SQL without results. False with the engine's message on failure.
  bool Execute(const std::string& sql, std::string* err = nullptr);

  // Groups the writes of a run into one transaction: rows written one at a
  // time otherwise cost a journal write each. Reads see the open batch.
  void BeginBatch() { Execute("BEGIN"); }
  // False with the engine's message when the batch could not be written
  // (a full disk, say); the rows of the batch are then lost.
  bool EndBatch(std::string* err = nullptr) { return Execute("COMMIT", err); }

  // qryRptOutputDel and qryStatsDel: empty the analysis of an earlier run.
  // tblLog is kept.
  void ClearAnalysis();

  bool AddReportOutput(const ReportOutputRow& row);
  // Adds `count` rows in their order, as many calls of AddReportOutput would.
  bool AddReportOutputs(const ReportOutputRow* const* rows, size_t count);
  // Finds the row by ModuleName; writes each count only when it is not 0.
  bool MergeStats(const StatsRow& row);
  bool AddLog(const LogRow& row);
  // Forgets the log rows of a report, under each of its names.
  bool ClearLogOf(const std::vector<std::string>& reports);

  // Rows of a table of the schema; -1 when the table cannot be read.
  int CountRows(const std::string& table) const;

  void ClearFields();  // "Delete * From tblFields"
  bool AddField(const FieldRow& row);
  std::optional<FieldRow> FindField(const std::string& fieldName) const;

  // tblPict: a picture on its way from the design to a binary record, in
  // the row with ID 1.
  bool StagePicture(const std::string& bytes);
  std::optional<std::string> StagedPicture() const;
  bool ClearStagedPicture();

  // The mapping of an Access custom control's class, compared without
  // regard to case as Jet compares text.
  std::optional<CustomControlRow> FindCustomControl(const std::string& accessClass) const;

  // The macro mapping tables, whole, in their stored order.
  std::vector<MacroActionRow> MacroActions() const;
  std::vector<MacroActionArgRow> MacroActionArgs() const;
  std::vector<MacroLookupRow> MacroLookups() const;

  bool AddRenaming(const RenamingRow& row);
  std::vector<RenamingRow> Renamings() const;

  // Notes of the run: what it could not do (an object without an export, a
  // converter or stage this build does not have), one row each.
  void ClearRunNotes();
  bool AddRunNote(const std::string& object, const std::string& note);
  std::vector<std::pair<std::string, std::string>> RunNotes() const;

  std::vector<ReportOutputRow> ReportOutput() const;
  std::vector<StatsRow> Stats() const;
  std::vector<LogRow> Log() const;

 private:
  SupportDatabase() = default;
  // The statements of the rows a run writes many of, prepared once.
  sqlite3_stmt* Kept(const char* sql) const;
  sqlite3* db_ = nullptr;
  mutable std::map<const char*, sqlite3_stmt*> kept_;
  std::filesystem::path file_;
};

}  // namespace morvane

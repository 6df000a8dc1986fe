// The support database over SQLite: schema, seeding of the mapping tables
// from the data directory, and the row writers of the analysis.
#include "platform/support_db.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <string>
#include <vector>

#include "platform/text_file.h"
#include "platform/text_fold.h"

namespace morvane {

namespace {

// Table and column names are the ones the converters and the analysis
// reports use. Every table that the walkers fill or read is here, also those
// whose rows come later in a run.
constexpr const char* kSchema = R"sql(
CREATE TABLE IF NOT EXISTS tblReportOutput (
  ID INTEGER PRIMARY KEY AUTOINCREMENT,
  ModuleName TEXT, ReasonID INTEGER, CodeLine TEXT, LineNumber INTEGER,
  TranslatedLine TEXT, Routine TEXT);
CREATE TABLE IF NOT EXISTS tblStats (
  ModuleName TEXT PRIMARY KEY, TotalLines INTEGER DEFAULT 0, CommentLines INTEGER DEFAULT 0,
  LinesNotTranslated INTEGER DEFAULT 0, LinesPotentiallyConverted INTEGER DEFAULT 0,
  BlankLines INTEGER DEFAULT 0, SubCount INTEGER DEFAULT 0, ProcCount INTEGER DEFAULT 0,
  CtlCount INTEGER DEFAULT 0, CtlsPartiallyConverted INTEGER DEFAULT 0,
  CodeLines INTEGER DEFAULT 0);
CREATE TABLE IF NOT EXISTS tblLog (
  ID INTEGER PRIMARY KEY AUTOINCREMENT,
  ErrorID INTEGER, Report TEXT, Location TEXT, ControlDeleted INTEGER DEFAULT 0);
CREATE TABLE IF NOT EXISTS tblRunNotes (
  ID INTEGER PRIMARY KEY AUTOINCREMENT, Object TEXT, Note TEXT);
CREATE TABLE IF NOT EXISTS tblNames (Object TEXT, VbName TEXT, File TEXT, Why TEXT);
CREATE TABLE IF NOT EXISTS tblFields (FieldName TEXT, Type INTEGER, Form TEXT);
CREATE TABLE IF NOT EXISTS tblPict (ID INTEGER PRIMARY KEY, PictureData BLOB);
CREATE TABLE IF NOT EXISTS CustomControlMapping (
  AccessClassName TEXT PRIMARY KEY, VBType TEXT, ClassID TEXT, FileName TEXT);
CREATE TABLE IF NOT EXISTS mtm_tblActions (
  Action TEXT, ActionID INTEGER PRIMARY KEY, MapsTo TEXT, NumArgs INTEGER);
CREATE TABLE IF NOT EXISTS mtm_tblActionArgs (
  ActionID INTEGER, ArgNumber INTEGER, ArgumentType INTEGER, LookupBase INTEGER,
  AutoExpression INTEGER, PRIMARY KEY (ActionID, ArgNumber));
CREATE TABLE IF NOT EXISTS mtm_tblLookups (
  LookupNumber INTEGER PRIMARY KEY, Value TEXT);
)sql";

// Mapping tables seeded from `<data>/<table>.tsv`: a header line with the
// column names, then one tab-separated row per line; "#" starts a comment
// line. "\t" inside a value cannot occur; an empty value is NULL.
constexpr const char* kSeededTables[] = {
    "CustomControlMapping",
    "mtm_tblActions",
    "mtm_tblActionArgs",
    "mtm_tblLookups",
};

class Statement {
 public:
  Statement(sqlite3* db, const char* sql) { sqlite3_prepare_v2(db, sql, -1, &stmt_, nullptr); }
  // A statement the database keeps prepared: reset for its next use instead
  // of finalized.
  explicit Statement(sqlite3_stmt* kept) : stmt_(kept), kept_(true) {}
  ~Statement() {
    if (!kept_) {
      sqlite3_finalize(stmt_);
    } else if (stmt_) {
      sqlite3_reset(stmt_);
      sqlite3_clear_bindings(stmt_);
    }
  }
  bool ok() const { return stmt_ != nullptr; }
  Statement& Bind(int i, const std::string& v) {
    sqlite3_bind_text(stmt_, i, v.data(), static_cast<int>(v.size()), SQLITE_TRANSIENT);
    return *this;
  }
  Statement& Bind(int i, long long v) {
    sqlite3_bind_int64(stmt_, i, v);
    return *this;
  }
  bool Run() { return stmt_ && sqlite3_step(stmt_) == SQLITE_DONE; }
  bool Next() { return stmt_ && sqlite3_step(stmt_) == SQLITE_ROW; }
  std::string Text(int col) const {
    auto p = reinterpret_cast<const char*>(sqlite3_column_text(stmt_, col));
    return p ? std::string(p, static_cast<size_t>(sqlite3_column_bytes(stmt_, col))) : "";
  }
  long long Int(int col) const { return sqlite3_column_int64(stmt_, col); }
  bool IsNull(int col) const { return sqlite3_column_type(stmt_, col) == SQLITE_NULL; }
  std::optional<std::string> Blob(int col) const {
    const void* p = sqlite3_column_blob(stmt_, col);
    const int size = sqlite3_column_bytes(stmt_, col);
    return p ? std::string(static_cast<const char*>(p), static_cast<size_t>(size)) : std::string();
  }
  Statement& BindBlob(int i, const std::string& v) {
    sqlite3_bind_blob(stmt_, i, v.data(), static_cast<int>(v.size()), SQLITE_TRANSIENT);
    return *this;
  }
  sqlite3_stmt* get() { return stmt_; }

 private:
  sqlite3_stmt* stmt_ = nullptr;
  bool kept_ = false;
};

// Every row `sql` selects, in its order, each made by `read` from the
// statement standing on it.
template <typename Row, typename Read>
std::vector<Row> ReadRows(sqlite3* db, const char* sql, Read read) {
  std::vector<Row> rows;
  Statement st(db, sql);
  while (st.Next()) rows.push_back(read(st));
  return rows;
}

bool SeedTable(sqlite3* db, const std::filesystem::path& file, const std::string& table) {
  {
    std::string count_sql = "SELECT COUNT(*) FROM " + table;
    Statement count(db, count_sql.c_str());
    if (!count.Next() || count.Int(0) > 0) return true;
  }
  std::vector<std::string> lines;
  if (!std::filesystem::exists(file) || !ReadTextLines(file, &lines, nullptr)) return true;
  std::vector<std::string> columns;
  std::string insert;
  sqlite3_exec(db, "BEGIN", nullptr, nullptr, nullptr);
  for (const auto& line : lines) {
    if (line.empty() || line[0] == '#') continue;
    auto fields = text::Split(line, '\t');
    if (columns.empty()) {
      columns = fields;
      insert = "INSERT INTO " + table + " (";
      for (size_t i = 0; i < columns.size(); ++i) insert += (i ? "," : "") + columns[i];
      insert += ") VALUES (";
      for (size_t i = 0; i < columns.size(); ++i) insert += i ? ",?" : "?";
      insert += ")";
      continue;
    }
    Statement st(db, insert.c_str());
    for (size_t i = 0; i < columns.size(); ++i) {
      if (i < fields.size() && !fields[i].empty()) st.Bind(static_cast<int>(i + 1), fields[i]);
    }
    st.Run();
  }
  sqlite3_exec(db, "COMMIT", nullptr, nullptr, nullptr);
  return true;
}

}  // namespace

std::unique_ptr<SupportDatabase> SupportDatabase::Open(const std::filesystem::path& file,
                                                       const std::filesystem::path& dataDir,
                                                       std::string* err) {
  std::unique_ptr<SupportDatabase> db(new SupportDatabase());
  db->file_ = file;
  if (sqlite3_open(file.string().c_str(), &db->db_) != SQLITE_OK) {
    if (err) *err = "cannot open the support database " + file.string();
    return nullptr;
  }
  std::string why;
  // The analysis is rebuilt by every run, so losing the last rows to a crash
  // costs nothing, while a sync per row costs most of a run's time.
  db->Execute("PRAGMA synchronous = OFF; PRAGMA journal_mode = MEMORY;");
  if (!db->Execute(kSchema, &why)) {
    if (err) *err = "cannot create the support database " + file.string() + ": " + why;
    return nullptr;
  }
  for (const char* table : kSeededTables)
    SeedTable(db->db_, dataDir / (std::string(table) + ".tsv"), table);
  return db;
}

SupportDatabase::~SupportDatabase() {
  for (auto& [sql, stmt] : kept_) sqlite3_finalize(stmt);
  sqlite3_close(db_);
}

sqlite3_stmt* SupportDatabase::Kept(const char* sql) const {
  auto it = kept_.find(sql);
  if (it != kept_.end()) return it->second;
  sqlite3_stmt* stmt = nullptr;
  if (sqlite3_prepare_v2(db_, sql, -1, &stmt, nullptr) != SQLITE_OK) return nullptr;
  kept_.emplace(sql, stmt);
  return stmt;
}

bool SupportDatabase::Execute(const std::string& sql, std::string* err) {
  char* msg = nullptr;
  if (sqlite3_exec(db_, sql.c_str(), nullptr, nullptr, &msg) != SQLITE_OK) {
    if (err) *err = msg ? msg : "unknown error";
    sqlite3_free(msg);
    return false;
  }
  return true;
}

void SupportDatabase::ClearAnalysis() {
  Execute("DELETE FROM tblReportOutput");
  Execute("DELETE FROM tblStats");
}

bool SupportDatabase::AddReportOutput(const ReportOutputRow& row) {
  Statement st(
      Kept("INSERT INTO tblReportOutput (ModuleName, ReasonID, CodeLine, LineNumber, "
           "TranslatedLine, Routine) VALUES (?,?,?,?,?,?)"));
  return st.Bind(1, row.ModuleName)
      .Bind(2, static_cast<long long>(row.ReasonID))
      .Bind(3, row.CodeLine)
      .Bind(4, static_cast<long long>(row.LineNumber))
      .Bind(5, row.TranslatedLine)
      .Bind(6, row.Routine)
      .Run();
}

bool SupportDatabase::AddReportOutputs(const ReportOutputRow* const* rows, size_t count) {
  // Up to kBatch rows go in through one statement: running a statement
  // costs several times what a row costs (the table's numbering is read and
  // written once a statement), so a module's hundreds of rows take a
  // fraction of the time. The rows are numbered in the order given.
  constexpr size_t kBatch = 32;
  // The statement of n + 1 rows, made once for every n.
  static const std::array<std::string, kBatch> statements = [] {
    std::array<std::string, kBatch> sql;
    std::string text =
        "INSERT INTO tblReportOutput (ModuleName, ReasonID, CodeLine, LineNumber, "
        "TranslatedLine, Routine) VALUES (?,?,?,?,?,?)";
    for (size_t n = 0; n < kBatch; ++n) {
      sql[n] = text;
      text += ",(?,?,?,?,?,?)";
    }
    return sql;
  }();
  while (count > 0) {
    const size_t n = std::min(count, kBatch);
    sqlite3_stmt* st = Kept(statements[n - 1].c_str());
    if (!st) return false;
    // The rows outlive the statement's run, so their text is not copied.
    const auto text = [st](int i, const std::string& v) {
      sqlite3_bind_text(st, i, v.data(), static_cast<int>(v.size()), SQLITE_STATIC);
    };
    for (size_t r = 0; r < n; ++r) {
      const ReportOutputRow& row = *rows[r];
      const int at = static_cast<int>(r * 6);
      text(at + 1, row.ModuleName);
      sqlite3_bind_int64(st, at + 2, row.ReasonID);
      text(at + 3, row.CodeLine);
      sqlite3_bind_int64(st, at + 4, row.LineNumber);
      text(at + 5, row.TranslatedLine);
      text(at + 6, row.Routine);
    }
    const bool done = sqlite3_step(st) == SQLITE_DONE;
    sqlite3_reset(st);
    if (!done) return false;
    rows += n;
    count -= n;
  }
  return true;
}

bool SupportDatabase::MergeStats(const StatsRow& row) {
  {
    Statement ins(Kept("INSERT OR IGNORE INTO tblStats (ModuleName) VALUES (?)"));
    if (!ins.Bind(1, row.ModuleName).Run()) return false;
  }
  // One statement sets every count that is not 0 and leaves the others.
  static const std::string update = [] {
    std::string sql = "UPDATE tblStats SET ";
    const char* columns[] = {"TotalLines", "CommentLines",  "LinesNotTranslated",
                             "LinesPotentiallyConverted", "BlankLines", "SubCount",
                             "ProcCount",  "CtlCount",      "CtlsPartiallyConverted",
                             "CodeLines"};
    int n = 0;
    for (const char* column : columns) {
      const std::string p = "?" + std::to_string(++n);
      sql += std::string(n > 1 ? ", " : "") + column + " = CASE " + p + " WHEN 0 THEN " + column +
             " ELSE " + p + " END";
    }
    return sql + " WHERE ModuleName = ?" + std::to_string(n + 1);
  }();
  const int counts[] = {row.TotalLines, row.CommentLines, row.LinesNotTranslated,
                        row.LinesPotentiallyConverted, row.BlankLines, row.SubCount,
                        row.ProcCount, row.CtlCount, row.CtlsPartiallyConverted, row.CodeLines};
  if (std::all_of(std::begin(counts), std::end(counts), [](int c) { return c == 0; }))
    return true;
  Statement up(Kept(update.c_str()));
  for (size_t i = 0; i < std::size(counts); ++i)
    up.Bind(static_cast<int>(i + 1), static_cast<long long>(counts[i]));
  return up.Bind(static_cast<int>(std::size(counts) + 1), row.ModuleName).Run();
}

bool SupportDatabase::AddLog(const LogRow& row) {
  Statement st(
      Kept("INSERT INTO tblLog (ErrorID, Report, Location, ControlDeleted) VALUES (?,?,?,?)"));
  return st.Bind(1, static_cast<long long>(row.ErrorID))
      .Bind(2, row.Report)
      .Bind(3, row.Location)
      .Bind(4, static_cast<long long>(row.ControlDeleted))
      .Run();
}

int SupportDatabase::CountRows(const std::string& table) const {
  std::string sql = "SELECT COUNT(*) FROM \"" + table + "\"";
  Statement st(db_, sql.c_str());
  return st.Next() ? static_cast<int>(st.Int(0)) : -1;
}

void SupportDatabase::ClearRunNotes() {
  Execute("DELETE FROM tblRunNotes");
  Execute("DELETE FROM tblNames");
}

bool SupportDatabase::AddRunNote(const std::string& object, const std::string& note) {
  Statement st(Kept("INSERT INTO tblRunNotes (Object, Note) VALUES (?,?)"));
  return st.Bind(1, object).Bind(2, note).Run();
}

std::vector<std::pair<std::string, std::string>> SupportDatabase::RunNotes() const {
  std::vector<std::pair<std::string, std::string>> rows;
  Statement st(db_, "SELECT Object, Note FROM tblRunNotes ORDER BY ID");
  while (st.Next()) rows.emplace_back(st.Text(0), st.Text(1));
  return rows;
}

void SupportDatabase::ClearFields() { Execute("DELETE FROM tblFields"); }

bool SupportDatabase::AddField(const FieldRow& row) {
  Statement st(Kept("INSERT INTO tblFields (FieldName, Type, Form) VALUES (?,?,?)"));
  return st.Bind(1, row.FieldName)
      .Bind(2, static_cast<long long>(row.Type))
      .Bind(3, row.Form)
      .Run();
}

std::optional<FieldRow> SupportDatabase::FindField(const std::string& fieldName) const {
  Statement st(
      Kept("SELECT FieldName, Type, Form FROM tblFields WHERE FieldName = ? COLLATE NOCASE "
           "LIMIT 1"));
  st.Bind(1, fieldName);
  if (!st.Next()) return std::nullopt;
  return FieldRow{st.Text(0), static_cast<int>(st.Int(1)), st.Text(2)};
}

bool SupportDatabase::AddRenaming(const RenamingRow& row) {
  Statement st(db_, "INSERT INTO tblNames (Object, VbName, File, Why) VALUES (?,?,?,?)");
  return st.Bind(1, row.Object).Bind(2, row.VbName).Bind(3, row.File).Bind(4, row.Why).Run();
}

std::vector<RenamingRow> SupportDatabase::Renamings() const {
  std::vector<RenamingRow> rows;
  Statement st(db_, "SELECT Object, VbName, File, Why FROM tblNames ORDER BY rowid");
  while (st.Next()) rows.push_back({st.Text(0), st.Text(1), st.Text(2), st.Text(3)});
  return rows;
}

bool SupportDatabase::ClearLogOf(const std::vector<std::string>& reports) {
  bool ok = true;
  for (const auto& report : reports) {
    Statement st(db_, "DELETE FROM tblLog WHERE Report = ?");
    ok = st.Bind(1, report).Run() && ok;
  }
  return ok;
}

int SupportDatabase::LastErrorCode() const { return db_ ? sqlite3_extended_errcode(db_) : -1; }

bool SupportDatabase::StagePicture(const std::string& bytes) {
  if (!ClearStagedPicture()) return false;
  Statement st(db_, "INSERT INTO tblPict (ID, PictureData) VALUES (1, ?)");
  return st.BindBlob(1, bytes).Run();
}

std::optional<std::string> SupportDatabase::StagedPicture() const {
  Statement st(db_, "SELECT PictureData FROM tblPict WHERE ID = 1");
  if (!st.ok()) return std::nullopt;
  if (!st.Next()) return std::nullopt;
  return st.Blob(0);
}

bool SupportDatabase::ClearStagedPicture() { return Execute("DELETE FROM tblPict WHERE ID = 1"); }

std::optional<CustomControlRow> SupportDatabase::FindCustomControl(
    const std::string& accessClass) const {
  Statement st(db_,
               "SELECT VBType, ClassID, FileName FROM CustomControlMapping "
               "WHERE AccessClassName = ? COLLATE NOCASE LIMIT 1");
  st.Bind(1, accessClass);
  if (!st.Next()) return std::nullopt;
  return CustomControlRow{st.Text(0), st.Text(1), st.Text(2)};
}

std::vector<MacroActionRow> SupportDatabase::MacroActions() const {
  return ReadRows<MacroActionRow>(
      db_, "SELECT Action, ActionID, MapsTo, NumArgs FROM mtm_tblActions ORDER BY rowid",
      [](const Statement& st) {
        MacroActionRow r{st.Text(0), static_cast<long>(st.Int(1)), std::nullopt,
                         static_cast<int>(st.Int(3))};
        if (!st.IsNull(2)) r.MapsTo = st.Text(2);
        return r;
      });
}

std::vector<MacroActionArgRow> SupportDatabase::MacroActionArgs() const {
  return ReadRows<MacroActionArgRow>(
      db_,
      "SELECT ActionID, ArgNumber, ArgumentType, LookupBase, AutoExpression "
      "FROM mtm_tblActionArgs",
      [](const Statement& st) -> MacroActionArgRow {
        return {static_cast<long>(st.Int(0)), static_cast<int>(st.Int(1)),
                static_cast<int>(st.Int(2)), static_cast<long>(st.Int(3)), st.Int(4) != 0};
      });
}

std::vector<MacroLookupRow> SupportDatabase::MacroLookups() const {
  return ReadRows<MacroLookupRow>(db_, "SELECT LookupNumber, Value FROM mtm_tblLookups",
                                  [](const Statement& st) -> MacroLookupRow {
                                    return {static_cast<long>(st.Int(0)), st.Text(1)};
                                  });
}

std::vector<ReportOutputRow> SupportDatabase::ReportOutput() const {
  return ReadRows<ReportOutputRow>(
      db_,
      "SELECT ModuleName, ReasonID, CodeLine, LineNumber, TranslatedLine, Routine FROM "
      "tblReportOutput ORDER BY ID",
      [](const Statement& st) -> ReportOutputRow {
        return {st.Text(0), static_cast<long>(st.Int(1)),
                st.Text(2), static_cast<int>(st.Int(3)),
                st.Text(4), st.Text(5)};
      });
}

std::vector<StatsRow> SupportDatabase::Stats() const {
  std::vector<StatsRow> rows;
  Statement st(db_,
               "SELECT ModuleName, TotalLines, CommentLines, LinesNotTranslated, "
               "LinesPotentiallyConverted, BlankLines, SubCount, ProcCount, CtlCount, "
               "CtlsPartiallyConverted, CodeLines FROM tblStats ORDER BY rowid");
  while (st.Next()) {
    StatsRow r;
    r.ModuleName = st.Text(0);
    int* ints[] = {&r.TotalLines,
                   &r.CommentLines,
                   &r.LinesNotTranslated,
                   &r.LinesPotentiallyConverted,
                   &r.BlankLines,
                   &r.SubCount,
                   &r.ProcCount,
                   &r.CtlCount,
                   &r.CtlsPartiallyConverted,
                   &r.CodeLines};
    for (int i = 0; i < 10; ++i) *ints[i] = static_cast<int>(st.Int(i + 1));
    rows.push_back(r);
  }
  return rows;
}

std::vector<LogRow> SupportDatabase::Log() const {
  std::vector<LogRow> rows;
  Statement st(db_, "SELECT ErrorID, Report, Location, ControlDeleted FROM tblLog ORDER BY ID");
  while (st.Next())
    rows.push_back(
        {static_cast<long>(st.Int(0)), st.Text(1), st.Text(2), static_cast<int>(st.Int(3))});
  return rows;
}

}  // namespace morvane

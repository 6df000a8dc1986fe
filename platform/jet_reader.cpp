// Reading a Jet file's catalog with libmdb. libmdb's object list is read once
// and every table is opened from its entry: looking tables up by name makes
// libmdb read the whole object list again each time.
#include "platform/jet_reader.h"

#include <mdbtools.h>

#include <algorithm>
#include <cstring>
#include <memory>

#include "platform/encoding.h"
#include "platform/jet_query_sql.h"
#include "platform/text_fold.h"

namespace morvane {

namespace fs = std::filesystem;

namespace {

// MSysObjects.Type values of the rows the catalog reads.
constexpr int kObjectTable = 1;
constexpr int kObjectContainer = 3;
constexpr int kObjectOdbcLink = 4;
constexpr int kObjectQuery = 5;
constexpr int kObjectJetLink = 6;

// MSysObjects.Flags bits of Jet's own tables (DAO's dbSystemObject).
constexpr long kSystemFlags = 0x80000002L;

// libmdb hands out UTF-8; the system's text is Windows-1252. A byte that does
// not start a valid sequence is kept as it is.
std::string SystemText(std::string_view utf8) {
  std::string out;
  out.reserve(utf8.size());
  for (size_t i = 0; i < utf8.size();) {
    const auto c = static_cast<unsigned char>(utf8[i]);
    const int extra = c >= 0xF0 ? 3 : c >= 0xE0 ? 2 : c >= 0xC0 ? 1 : 0;
    char32_t cp = extra == 3 ? c & 0x07 : extra == 2 ? c & 0x0F : c & 0x1F;
    bool valid = extra > 0 && i + extra < utf8.size();
    for (int k = 1; valid && k <= extra; ++k) {
      const auto t = static_cast<unsigned char>(utf8[i + k]);
      valid = (t & 0xC0) == 0x80;
      cp = (cp << 6) | (t & 0x3F);
    }
    if (!valid) {
      out += static_cast<char>(c);
      ++i;
      continue;
    }
    const unsigned char b = Windows1252FromCodePoint(cp);
    out += b ? static_cast<char>(b) : '?';
    i += extra + 1;
  }
  return out;
}

std::string SystemText(const char* utf8) { return utf8 ? SystemText(std::string_view(utf8)) : ""; }

// libmdb gives a boolean property as "yes" or "no"; DAO's value reads as
// True or False.
std::string PropertyValue(const char* utf8) {
  const std::string value = SystemText(utf8);
  if (value == "yes") return "True";
  if (value == "no") return "False";
  return value;
}

struct Closer {
  void operator()(MdbHandle* mdb) const { mdb_close(mdb); }
  void operator()(MdbTableDef* def) const { mdb_free_tabledef(def); }
};
using HandlePtr = std::unique_ptr<MdbHandle, Closer>;
using TablePtr = std::unique_ptr<MdbTableDef, Closer>;

// libmdb's object list, by the names as libmdb spells them and the kind of
// object: a form and a table may share a name.
class EntryList {
 public:
  explicit EntryList(MdbHandle* mdb) : mdb_(mdb), list_(mdb_read_catalog(mdb, MDB_ANY)) {}
  MdbHandle* Handle() const { return mdb_; }
  MdbCatalogEntry* Find(const std::string& rawName, std::initializer_list<int> types) const {
    for (unsigned i = 0; list_ && i < list_->len; ++i) {
      auto* entry = static_cast<MdbCatalogEntry*>(g_ptr_array_index(list_, i));
      if (rawName != entry->object_name) continue;
      for (int type : types)
        if (type == MDB_ANY || entry->object_type == type) return entry;
    }
    return nullptr;
  }

 private:
  MdbHandle* mdb_;
  GPtrArray* list_;  // owned by the handle
};

constexpr std::initializer_list<int> kTableEntries = {MDB_TABLE, MDB_SYSTEM_TABLE};

TablePtr OpenTable(MdbCatalogEntry* entry) {
  if (!entry) return nullptr;
  TablePtr def(mdb_read_table(entry));
  if (def) mdb_read_columns(def.get());
  return def;
}

// Text buffers bound to the named columns of a table, filled row by row.
class Rows {
 public:
  Rows(MdbCatalogEntry* entry, std::initializer_list<const char*> columns)
      : def_(OpenTable(entry)) {
    if (!def_) return;
    mdb_rewind_table(def_.get());
    slots_.resize(columns.size());  // libmdb keeps the buffers' addresses
    size_t i = 0;
    for (const char* name : columns) {
      Slot& slot = slots_[i++];
      slot.buffer.assign(kBindSize, '\0');
      slot.bound = mdb_bind_column_by_name(def_.get(), const_cast<gchar*>(name), slot.buffer.data(),
                                           &slot.length) >= 0;
    }
  }
  bool ok() const { return def_ != nullptr; }
  bool Next() {
    if (!def_) return false;
    for (auto& slot : slots_) slot.buffer[0] = '\0';
    return mdb_fetch_row(def_.get());
  }
  std::string Raw(size_t i) const {
    const Slot& s = slots_[i];
    if (!s.bound || s.length <= 0) return "";
    return std::string(s.buffer.data(), strnlen(s.buffer.data(), kBindSize));
  }
  std::string Text(size_t i) const { return SystemText(Raw(i)); }
  long Number(size_t i) const { return std::strtol(Raw(i).c_str(), nullptr, 10); }

  static constexpr size_t kBindSize = 200000;

 private:
  struct Slot {
    std::vector<char> buffer;
    int length = 0;
    bool bound = false;
  };
  TablePtr def_;
  std::vector<Slot> slots_;
};

struct ObjectRow {
  std::string RawName;  // as libmdb spells it, to find its entry
  std::string Name;
  long Id = 0;
  long ParentId = 0;
  int Type = 0;
  long Flags = 0;
  std::string Connect, Database, ForeignName;
};

int DaoFieldType(int mdbType) {
  switch (mdbType) {
    case MDB_NUMERIC:
      return kDbDecimal;
    case MDB_COMPLEX:
      return kDbLong;  // a multi-valued field's key into its hidden table
    default:
      return mdbType;  // libmdb numbers the Jet types as DAO does
  }
}

// DAO gives a text field's size in characters; Jet 4 stores two bytes for
// each.
int FieldSize(MdbHandle* mdb, const MdbColumn& col) {
  if (col.col_type == MDB_TEXT && !IS_JET3(mdb)) return col.col_size / 2;
  return col.col_size;
}

bool IsSystemTable(const ObjectRow& row) {
  return text::IStartsWith(row.Name, "MSys") || (row.Flags & kSystemFlags) != 0;
}

// The connect text DAO gives a linked table: an ODBC link keeps its own, a
// link to a Jet or ISAM file names the file after the driver's part.
std::string LinkConnect(const ObjectRow& row) {
  if (row.Type == kObjectOdbcLink) return row.Connect;
  std::string connect = row.Connect;
  if (connect.empty() || connect.back() != ';') connect += ';';
  return connect + "DATABASE=" + row.Database;
}

std::vector<ObjectRow> ReadObjects(const EntryList& entries, bool* ok) {
  std::vector<ObjectRow> rows;
  Rows objects(entries.Find("MSysObjects", kTableEntries),
               {"Id", "ParentId", "Name", "Type", "Flags", "Connect", "Database", "ForeignName"});
  *ok = objects.ok();
  while (objects.Next()) {
    ObjectRow r;
    r.Id = objects.Number(0);
    r.ParentId = objects.Number(1);
    r.RawName = objects.Raw(2);
    r.Name = objects.Text(2);
    r.Type = static_cast<int>(objects.Number(3));
    r.Flags = objects.Number(4);
    r.Connect = objects.Text(5);
    r.Database = objects.Text(6);
    r.ForeignName = objects.Text(7);
    rows.push_back(std::move(r));
  }
  return rows;
}

// Containers are the rows of type 3; their documents name them as parent.
// Temporary objects ("~sq_...", "~TMPCLP...") are no documents.
void ReadContainers(const std::vector<ObjectRow>& rows, JetContents* out) {
  for (const auto& c : rows) {
    if (c.Type != kObjectContainer) continue;
    auto& docs = out->Containers[c.Name];
    for (const auto& d : rows)
      if (d.ParentId == c.Id && d.Type != kObjectContainer && d.Name.rfind('~', 0) != 0)
        docs.push_back(d.Name);
    std::sort(docs.begin(), docs.end(), text::LessNoCase);
  }
}

void ReadTables(const std::vector<ObjectRow>& rows, const EntryList& entries, JetContents* out) {
  for (const auto& r : rows) {
    const bool local = r.Type == kObjectTable && !IsSystemTable(r);
    if (!local && r.Type != kObjectOdbcLink && r.Type != kObjectJetLink) continue;
    TableInfo t;
    t.Name = r.Name;
    t.Linked = !local;
    if (t.Linked) {
      t.Connect = LinkConnect(r);
      t.SourceTable = r.ForeignName;
    } else if (TablePtr def = OpenTable(entries.Find(r.RawName, kTableEntries))) {
      for (unsigned i = 0; def->columns && i < def->columns->len; ++i) {
        auto* col = static_cast<MdbColumn*>(g_ptr_array_index(def->columns, i));
        t.Fields.push_back({SystemText(col->name), DaoFieldType(col->col_type),
                            FieldSize(entries.Handle(), *col)});
      }
    }
    out->Tables.push_back(std::move(t));
  }
}

void ReadQueries(const std::vector<ObjectRow>& rows, const EntryList& entries, JetContents* out) {
  std::map<long, std::vector<QueryPart>> design;
  Rows parts(entries.Find("MSysQueries", kTableEntries),
             {"ObjectId", "Attribute", "Expression", "Flag", "Name1", "Name2"});
  while (parts.Next()) {
    QueryPart p;
    p.Attribute = static_cast<int>(parts.Number(1));
    p.Expression = parts.Text(2);
    p.Flag = parts.Number(3);
    p.Name1 = parts.Text(4);
    p.Name2 = parts.Text(5);
    design[parts.Number(0)].push_back(std::move(p));
  }
  for (const auto& r : rows) {
    if (r.Type != kObjectQuery || r.Name.rfind('~', 0) == 0) continue;
    QueryInfo q;
    q.Name = r.Name;
    const auto it = design.find(r.Id);
    const std::vector<QueryPart> none;
    const auto& parts_of = it == design.end() ? none : it->second;
    if (!parts_of.empty()) q.Sql = RebuildQuerySql(parts_of);
    q.Type = JetQueryType(r.Flags, QueryTypeOf(parts_of));
    out->Queries.push_back(std::move(q));
  }
}

// The database's properties hang on the MSysDb entry.
void ReadProperties(const EntryList& entries, JetContents* out) {
  MdbCatalogEntry* db = entries.Find("MSysDb", {MDB_ANY});
  if (!db || !db->props) return;
  std::map<std::string, std::string> sorted;
  for (unsigned j = 0; j < db->props->len; ++j) {
    auto* props = static_cast<MdbProperties*>(g_ptr_array_index(db->props, j));
    if (!props || !props->hash) continue;
    GHashTableIter iter;
    gpointer key, value;
    g_hash_table_iter_init(&iter, props->hash);
    while (g_hash_table_iter_next(&iter, &key, &value))
      sorted.emplace(SystemText(static_cast<const char*>(key)),
                     PropertyValue(static_cast<const char*>(value)));
  }
  out->Properties.assign(sorted.begin(), sorted.end());
}

}  // namespace

int JetQueryType(long objectFlags, int designType) {
  const int fromFlags = static_cast<int>(objectFlags & 0xF0);
  if (designType < 0) return fromFlags;
  if (designType == kDbQSQLPassThrough && fromFlags == kDbQSPTBulk) return kDbQSPTBulk;
  return designType;
}

bool ReadJetContents(const fs::path& file, JetContents* out, std::string* err) {
  HandlePtr mdb(mdb_open(file.string().c_str(), MDB_NOFLAGS));
  if (!mdb) {
    *err = file.string() + ": the database cannot be opened";
    return false;
  }
  mdb_set_bind_size(mdb.get(), Rows::kBindSize);
  const EntryList entries(mdb.get());
  bool ok = false;
  const std::vector<ObjectRow> rows = ReadObjects(entries, &ok);
  if (!ok) {
    *err = file.string() + ": the database has no readable object table";
    return false;
  }
  ReadContainers(rows, out);
  ReadTables(rows, entries, out);
  ReadQueries(rows, entries, out);
  ReadProperties(entries, out);
  return true;
}

}  // namespace morvane

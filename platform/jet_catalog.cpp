// Reading a Jet file's catalog with libmdb. Everything is read at Open and the
// handle is closed again, so the catalog is a plain in-memory record from
// then on.
#include "platform/jet_catalog.h"

#include <mdbtools.h>

#include <algorithm>
#include <cstring>
#include <fstream>

#include "platform/encoding.h"
#include "platform/jet_query_sql.h"
#include "platform/text_file.h"
#include "platform/text_fold.h"

namespace morvane {

namespace fs = std::filesystem;

namespace {

std::string Lower(const std::string& s) { return text::Lower(s); }

// libmdb hands out UTF-8; the system's text is Windows-1252.
std::string SystemText(const char* utf8) {
  if (!utf8) return "";
  DecodedText decoded;
  std::string err;
  if (DecodeToWindows1252(utf8, &decoded, &err) != DecodeStatus::Ok) return utf8;
  return decoded.Text;
}

// Checks the file's first page before libmdb sees it: libmdb trusts what it
// reads, and a damaged or foreign file must give a message, not a crash.
bool CheckHeader(const fs::path& file, int* version, std::string* err) {
  std::error_code ec;
  if (!fs::is_regular_file(file, ec)) {
    *err = file.string() + ": no such file";
    return false;
  }
  std::ifstream in(file, std::ios::binary);
  unsigned char head[0x20] = {};
  in.read(reinterpret_cast<char*>(head), sizeof head);
  const auto size = fs::file_size(file, ec);
  static const unsigned char kMagic[4] = {0x00, 0x01, 0x00, 0x00};
  const bool jet = std::memcmp(head + 4, "Standard Jet DB", 15) == 0;
  const bool ace = std::memcmp(head + 4, "Standard ACE DB", 15) == 0;
  if (!in || std::memcmp(head, kMagic, 4) != 0 || !(jet || ace)) {
    *err = file.string() + ": not an Access database file";
    return false;
  }
  const int format = head[0x14];
  *version = format == 0 ? 3 : format + 3;
  const uintmax_t page = format == 0 ? 2048 : 4096;
  if (ec || size < 3 * page || size % page != 0) {
    *err = file.string() + ": the file is truncated or damaged";
    return false;
  }
  return true;
}

struct Handle {
  MdbHandle* mdb = nullptr;
  ~Handle() {
    if (mdb) mdb_close(mdb);
  }
};

struct ObjectRow {
  std::string RawName;  // as libmdb spells it, to look the table up again
  long Id = 0;
  long ParentId = 0;
  std::string Name;
  int Type = 0;
  long Flags = 0;
  std::string Connect, Database, ForeignName;
};

// Binds text buffers to the named columns of a table.
class Rows {
 public:
  Rows(MdbHandle* mdb, const char* table, std::initializer_list<const char*> columns) {
    def_ = mdb_read_table_by_name(mdb, const_cast<gchar*>(table), MDB_ANY);
    if (!def_) return;
    mdb_read_columns(def_);
    mdb_rewind_table(def_);
    slots_.reserve(columns.size());  // libmdb keeps the slots' addresses
    for (const char* c : columns) {
      auto& slot = slots_.emplace_back();
      slot.name = c;
      slot.buffer.assign(kBind, '\0');
      if (mdb_bind_column_by_name(def_, const_cast<gchar*>(c), slot.buffer.data(), &slot.len) < 0)
        slot.bound = false;
    }
  }
  ~Rows() {
    if (def_) mdb_free_tabledef(def_);
  }
  bool ok() const { return def_ != nullptr; }
  bool Next() { return def_ && mdb_fetch_row(def_); }
  std::string Raw(size_t i) const {
    const auto& s = slots_[i];
    if (!s.bound || s.len <= 0) return "";
    return std::string(s.buffer.data(), strnlen(s.buffer.data(), kBind));
  }
  std::string Text(size_t i) const { return SystemText(Raw(i).c_str()); }
  long Number(size_t i) const { return std::strtol(Text(i).c_str(), nullptr, 10); }

  static constexpr size_t kBind = 200000;

 private:
  struct Slot {
    std::string name;
    std::vector<char> buffer;
    int len = 0;
    bool bound = true;
  };
  MdbTableDef* def_ = nullptr;
  std::vector<Slot> slots_;
};

int DaoType(int mdbType) {
  switch (mdbType) {
    case MDB_NUMERIC:
      return kDbDecimal;
    case MDB_COMPLEX:
      return kDbLong;
    default:
      return mdbType;  // libmdb's codes for the Jet types are DAO's
  }
}

bool IsSystemTable(const ObjectRow& row) {
  return row.Name.rfind("MSys", 0) == 0 || row.Name.rfind("USys", 0) == 0 ||
         (row.Flags & 0x80000002L) != 0 || row.Name.rfind("f_", 0) == 0;
}

}  // namespace

std::unique_ptr<JetCatalog> JetCatalog::Open(const fs::path& file, const fs::path& overlayFile,
                                             std::string* err) {
  int version = 0;
  if (!CheckHeader(file, &version, err)) return nullptr;
  Handle h;
  h.mdb = mdb_open(file.string().c_str(), MDB_NOFLAGS);
  if (!h.mdb) {
    *err = file.string() + ": the database cannot be opened";
    return nullptr;
  }
  mdb_set_bind_size(h.mdb, Rows::kBind);
  std::unique_ptr<JetCatalog> cat(new JetCatalog());
  cat->version_ = version;
  cat->overlayFile_ = overlayFile;

  std::vector<ObjectRow> rows;
  {
    Rows objects(h.mdb, "MSysObjects",
                 {"Id", "ParentId", "Name", "Type", "Flags", "Connect", "Database", "ForeignName"});
    if (!objects.ok()) {
      *err = file.string() + ": the database has no readable object catalog";
      return nullptr;
    }
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
  }

  // Containers are the rows of type 3; their documents name them as parent.
  for (const auto& c : rows) {
    if (c.Type != 3) continue;
    auto& docs = cat->containers_[c.Name];
    for (const auto& d : rows)
      if (d.ParentId == c.Id && d.Type != 3 && d.Name.rfind("~", 0) != 0) docs.push_back(d.Name);
    std::sort(docs.begin(), docs.end(),
              [](const std::string& a, const std::string& b) { return Lower(a) < Lower(b); });
  }

  std::map<long, QueryInfo*> queriesById;
  for (const auto& r : rows) {
    if ((r.Type == 1 && !IsSystemTable(r)) || r.Type == 4 || r.Type == 6) {
      TableInfo t;
      t.Name = r.Name;
      t.Linked = r.Type != 1;
      t.Connect = r.Type == 6 ? ";DATABASE=" + r.Database : r.Connect;
      t.SourceTable = r.ForeignName;
      if (r.Type == 1) {
        MdbTableDef* def =
            mdb_read_table_by_name(h.mdb, const_cast<gchar*>(r.RawName.c_str()), MDB_TABLE);
        if (def) {
          mdb_read_columns(def);
          for (unsigned i = 0; i < def->num_cols; ++i) {
            auto* col = static_cast<MdbColumn*>(g_ptr_array_index(def->columns, i));
            t.Fields.push_back({SystemText(col->name), DaoType(col->col_type), col->col_size});
          }
          mdb_free_tabledef(def);
        }
      }
      cat->tables_.push_back(std::move(t));
    } else if (r.Type == 5 && r.Name.rfind("~", 0) != 0) {
      QueryInfo q;
      q.Name = r.Name;
      q.Type = static_cast<int>(r.Flags & 0xFF);
      cat->queries_.push_back(std::move(q));
    }
  }
  for (auto& q : cat->queries_)
    for (const auto& r : rows)
      if (r.Type == 5 && r.Name == q.Name) queriesById[r.Id] = &q;

  {
    Rows parts(h.mdb, "MSysQueries",
               {"ObjectId", "Attribute", "Expression", "Flag", "Name1", "Name2"});
    std::map<long, std::vector<QueryPart>> byQuery;
    while (parts.ok() && parts.Next()) {
      QueryPart p;
      p.Attribute = static_cast<int>(parts.Number(1));
      p.Expression = parts.Text(2);
      p.Flag = parts.Number(3);
      p.Name1 = parts.Text(4);
      p.Name2 = parts.Text(5);
      byQuery[parts.Number(0)].push_back(std::move(p));
    }
    for (auto& [id, query] : queriesById) {
      auto it = byQuery.find(id);
      if (it == byQuery.end()) continue;
      query->Sql = RebuildQuerySql(it->second);
      if (int type = QueryTypeOf(it->second); type >= 0) query->Type = type;
    }
  }

  // Database properties: the MSysDb entry's property block.
  GPtrArray* catalog = mdb_read_catalog(h.mdb, MDB_ANY);
  for (unsigned i = 0; catalog && i < catalog->len; ++i) {
    auto* entry = static_cast<MdbCatalogEntry*>(g_ptr_array_index(catalog, i));
    if (std::strcmp(entry->object_name, "MSysDb") != 0 || !entry->props) continue;
    for (unsigned j = 0; j < entry->props->len; ++j) {
      auto* props = static_cast<MdbProperties*>(g_ptr_array_index(entry->props, j));
      if (!props->hash) continue;
      GHashTableIter iter;
      gpointer key, value;
      g_hash_table_iter_init(&iter, props->hash);
      while (g_hash_table_iter_next(&iter, &key, &value)) {
        const std::string name = SystemText(static_cast<const char*>(key));
        cat->properties_.emplace(Lower(name), SystemText(static_cast<const char*>(value)));
        cat->propertyNames_.emplace(Lower(name), name);
      }
    }
  }

  std::vector<std::string> lines;
  if (!overlayFile.empty() && ReadTextLines(overlayFile, &lines, nullptr)) {
    for (const auto& l : lines) {
      size_t eq = l.find('=');
      if (eq == std::string::npos) continue;
      cat->overlay_[Lower(l.substr(0, eq))] = l.substr(eq + 1);
      cat->overlayNames_[Lower(l.substr(0, eq))] = l.substr(0, eq);
    }
  }
  return cat;
}

std::vector<std::string> JetCatalog::ContainerDocuments(const std::string& container) const {
  for (const auto& [name, docs] : containers_)
    if (Lower(name) == Lower(container)) return docs;
  return {};
}

std::optional<std::string> JetCatalog::Property(const std::string& name) const {
  const std::string key = Lower(name);
  if (auto it = overlay_.find(key); it != overlay_.end()) return it->second;
  if (auto it = properties_.find(key); it != properties_.end()) return it->second;
  return std::nullopt;
}

void JetCatalog::SetProperty(const std::string& name, const std::string& value) {
  overlay_[Lower(name)] = value;
  overlayNames_[Lower(name)] = name;
  SaveOverlay();
}

std::vector<std::pair<std::string, std::string>> JetCatalog::PropertyList() const {
  std::map<std::string, std::pair<std::string, std::string>> merged;
  for (const auto& [key, value] : properties_) merged[key] = {propertyNames_.at(key), value};
  for (const auto& [key, value] : overlay_) merged[key] = {overlayNames_.at(key), value};
  std::vector<std::pair<std::string, std::string>> out;
  for (auto& [key, entry] : merged) out.push_back(entry);
  return out;
}

void JetCatalog::SaveOverlay() const {
  if (overlayFile_.empty()) return;
  std::vector<std::string> lines;
  for (const auto& [key, value] : overlay_) lines.push_back(overlayNames_.at(key) + "=" + value);
  WriteTextLines(overlayFile_, lines, nullptr);
}

}  // namespace morvane

// Reading what the catalog needs out of a Jet file with libmdb: the object
// table, the tables' columns, the saved queries' design rows and the database
// properties, turned into plain data. libmdb trusts the file's bytes, so this
// runs only behind the guard of jet_guarded_read.h.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/catalog.h"

namespace morvane {

struct JetContents {
  std::map<std::string, std::vector<std::string>> Containers;  // documents in name order
  std::vector<TableInfo> Tables;
  std::vector<QueryInfo> Queries;
  std::vector<std::pair<std::string, std::string>> Properties;  // the database's, as stored
};

// Reads the file in this process. False with a one-line reason naming the
// file when libmdb cannot open it or it has no object table.
bool ReadJetContents(const std::filesystem::path& file, JetContents* out, std::string* err);

// The DAO type of a saved query from its object row's flags and the DAO type
// of its design rows' operation (-1 when the rows name none). The rows decide;
// the flags, which carry the DAO value in their 0xF0 bits, fill in when the
// rows are missing and tell a bulk pass-through query (no records returned)
// from an ordinary one, which the operation alone does not.
int JetQueryType(long objectFlags, int designType);

}  // namespace morvane

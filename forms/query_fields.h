// The fields of a record source as DAO lists them, worked out without a
// database engine: a table's own fields, a saved query's from its SQL, and a
// SELECT statement's from its select list against the fields of the tables
// and queries it reads ("*", "T.*", plain and qualified names, aliases with
// AS, and expressions with or without a name of their own).
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/catalog.h"

namespace morvane {

// A record source or row source counts as a SELECT statement when its first
// seven characters, in lower case, are "select ": "SELECT\r\n..." and
// "selected" are names to look up.
bool IsSelectStatement(std::string_view source);

// The fields of a saved query by name; nullopt when the catalog has no such
// query or its SQL gives no field list (an action query, a text that is no
// SELECT statement).
std::optional<std::vector<FieldInfo>> QueryFields(const Catalog& db, const std::string& name);
// The fields of a table by name; nullopt when there is no such table.
std::optional<std::vector<FieldInfo>> TableFields(const Catalog& db, const std::string& name);
// The fields of a SELECT statement (a PARAMETERS clause ahead of it, a
// TRANSFORM, and a UNION behind it, whose first part gives the fields);
// nullopt when the text has no select list. A table or query that the
// catalog lacks adds nothing to "*", while the columns the statement names
// still count.
std::optional<std::vector<FieldInfo>> SelectFields(const Catalog& db, const std::string& sql);

}  // namespace morvane

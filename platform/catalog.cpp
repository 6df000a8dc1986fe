// Shared lookups of the catalog interface and the in-memory catalog.
#include "platform/catalog.h"

#include "platform/source_query.h"
#include "platform/text_fold.h"

namespace morvane {

static bool SameText(const std::string& a, const std::string& b) { return text::IEquals(a, b); }

std::optional<QueryInfo> Catalog::SavedQueryDef(const std::string& name) const {
  for (auto& q : QueryDefs())
    if (SameText(q.Name, name)) return q;
  return std::nullopt;
}

std::optional<QueryInfo> Catalog::QueryDef(const std::string& name) const {
  if (auto saved = SavedQueryDef(name)) return saved;
  for (auto& q : made_)
    if (SameText(q.Name, name)) return q;
  return std::nullopt;
}

bool Catalog::CreateQueryDef(const std::string& name, const std::string& sql) {
  if (name.empty() || QueryDef(name) || TableDef(name)) return false;
  made_.push_back({name, sql, QueryTypeOfSql(sql)});
  return true;
}

bool Catalog::DeleteQueryDef(const std::string& name) {
  for (auto it = made_.begin(); it != made_.end(); ++it)
    if (SameText(it->Name, name)) {
      made_.erase(it);
      return true;
    }
  return false;
}

std::optional<TableInfo> Catalog::TableDef(const std::string& name) const {
  for (auto& t : TableDefs())
    if (SameText(t.Name, name)) return t;
  return std::nullopt;
}

std::vector<std::string> MemoryCatalog::ContainerDocuments(const std::string& container) const {
  auto it = Containers.find(container);
  return it == Containers.end() ? std::vector<std::string>{} : it->second;
}

std::optional<std::string> MemoryCatalog::Property(const std::string& name) const {
  for (auto& [k, v] : Properties)
    if (SameText(k, name)) return v;
  return std::nullopt;
}

void MemoryCatalog::SetProperty(const std::string& name, const std::string& value) {
  for (auto& [k, v] : Properties)
    if (SameText(k, name)) {
      v = value;
      return;
    }
  Properties[name] = value;
}

}  // namespace morvane

// Query SQL from Jet's design rows.
#include "platform/jet_query_sql.h"

#include <algorithm>

namespace morvane {

namespace {

enum Operation {
  kSelect = 1,
  kMakeTable = 2,
  kAppend = 3,
  kUpdate = 4,
  kDelete = 5,
  kCrosstab = 6,
  kDdl = 7,
  kPassThrough = 8,
  kUnion = 9,
};

// Option bits of attribute 3.
constexpr long kAllFields = 0x01;
constexpr long kDistinct = 0x02;
constexpr long kOwnerAccess = 0x04;
constexpr long kDistinctRow = 0x08;
constexpr long kTop = 0x10;
constexpr long kPercent = 0x20;

std::string Bracket(const std::string& name) {
  bool plain = !name.empty() && !std::isdigit(static_cast<unsigned char>(name[0]));
  for (unsigned char c : name) plain = plain && (std::isalnum(c) || c == '_' || c >= 0x80);
  return plain ? name : "[" + name + "]";
}

std::string Join(const std::vector<std::string>& items, const char* separator) {
  std::string out;
  for (size_t i = 0; i < items.size(); ++i) out += (i ? separator : "") + items[i];
  return out;
}

const char* ParameterType(long daoType) {
  switch (daoType) {
    case 1:
      return "Bit";
    case 2:
      return "Byte";
    case 3:
      return "Short";
    case 4:
      return "Long";
    case 5:
      return "Currency";
    case 6:
      return "IEEESingle";
    case 7:
      return "IEEEDouble";
    case 8:
      return "DateTime";
    case 9:
      return "Binary";
    case 11:
      return "LongBinary";
    case 12:
      return "Memo";
    case 15:
      return "Guid";
    default:
      return "Text ( 255 )";
  }
}

struct Design {
  int operation = kSelect;
  long options = 0;
  std::string target, topValue, remoteDatabase;
  std::vector<const QueryPart*> parameters, tables, columns, joins, groupBy, orderBy;
  std::string where, having;
};

Design Read(const std::vector<QueryPart>& parts) {
  Design d;
  for (const auto& p : parts) {
    switch (p.Attribute) {
      case 1:
        d.operation = static_cast<int>(p.Flag);
        d.target = p.Name1;
        break;
      case 2:
        d.parameters.push_back(&p);
        break;
      case 3:
        d.options = p.Flag;
        d.topValue = p.Name1;
        break;
      case 4:
        d.remoteDatabase = p.Name1;
        break;
      case 5:
        d.tables.push_back(&p);
        break;
      case 6:
        d.columns.push_back(&p);
        break;
      case 7:
        d.joins.push_back(&p);
        break;
      case 8:
        d.where = p.Expression;
        break;
      case 9:
        d.groupBy.push_back(&p);
        break;
      case 10:
        d.having = p.Expression;
        break;
      case 11:
        d.orderBy.push_back(&p);
        break;
      default:
        break;
    }
  }
  return d;
}

std::string TableText(const QueryPart& t) {
  std::string text = t.Expression.empty() ? Bracket(t.Name1) : "(" + t.Expression + ")";
  if (!t.Name2.empty()) text += " AS " + Bracket(t.Name2);
  return text;
}

// One joined part of the FROM list: its text and the tables (by alias or
// name) inside it.
struct JoinGroup {
  std::string text;
  std::vector<std::string> members;
  bool joined = false;  // a join expression, bracketed when it is nested
};

std::string Nested(const JoinGroup& g) { return g.joined ? "(" + g.text + ")" : g.text; }

// The FROM list as Access writes it: each join nests the parts that already
// hold its two tables, so a chain of joins reads
// "(A INNER JOIN B ON ...) INNER JOIN C ON ..." and two joined pairs meet as
// "(A INNER JOIN B ON ...) INNER JOIN (C INNER JOIN D ON ...) ON ...".
// Parts appear in the order of their first table, separated by commas.
std::string FromText(const Design& d) {
  auto key = [](const QueryPart& t) { return t.Name2.empty() ? t.Name1 : t.Name2; };
  std::vector<JoinGroup> groups;
  for (const auto* t : d.tables) groups.push_back({TableText(*t), {key(*t)}, false});
  auto groupOf = [&](const std::string& name) -> int {
    for (size_t i = 0; i < groups.size(); ++i)
      if (std::find(groups[i].members.begin(), groups[i].members.end(), name) !=
          groups[i].members.end())
        return static_cast<int>(i);
    groups.push_back({Bracket(name), {name}, false});
    return static_cast<int>(groups.size() - 1);
  };
  for (const auto* j : d.joins) {
    const char* kind = j->Flag == 2   ? " LEFT JOIN "
                       : j->Flag == 3 ? " RIGHT JOIN "
                                      : " INNER JOIN ";
    const int left = groupOf(j->Name1);
    const int right = groupOf(j->Name2);
    if (left == right) {
      groups[left].text += " AND " + j->Expression;
      continue;
    }
    JoinGroup& target = groups[std::min(left, right)];
    JoinGroup& other = groups[std::max(left, right)];
    JoinGroup merged{Nested(groups[left]) + kind + Nested(groups[right]) + " ON " + j->Expression,
                     target.members, true};
    merged.members.insert(merged.members.end(), other.members.begin(), other.members.end());
    target = std::move(merged);
    groups.erase(groups.begin() + std::max(left, right));
  }
  std::vector<std::string> items;
  for (const auto& g : groups) items.push_back(g.text);
  std::string from = Join(items, ", ");
  if (!d.remoteDatabase.empty()) from += " IN '" + d.remoteDatabase + "'";
  return from;
}

std::string ColumnText(const QueryPart& c) {
  return c.Name1.empty() ? c.Expression : c.Expression + " AS " + Bracket(c.Name1);
}

std::string SelectHead(const Design& d) {
  std::string head = "SELECT ";
  if (d.options & kDistinct) head += "DISTINCT ";
  if (d.options & kDistinctRow) head += "DISTINCTROW ";
  if ((d.options & kTop) && !d.topValue.empty())
    head += "TOP " + d.topValue + ((d.options & kPercent) ? " PERCENT " : " ");
  return head;
}

std::vector<std::string> Tail(const Design& d, std::vector<std::string> lines) {
  if (!d.where.empty()) lines.push_back("WHERE " + d.where);
  if (!d.groupBy.empty()) {
    std::vector<std::string> g;
    for (const auto* p : d.groupBy) g.push_back(p->Expression);
    lines.push_back("GROUP BY " + Join(g, ", "));
  }
  if (!d.having.empty()) lines.push_back("HAVING " + d.having);
  if (!d.orderBy.empty()) {
    std::vector<std::string> o;
    for (const auto* p : d.orderBy)
      o.push_back(p->Expression + (p->Name1 == "D" || p->Name1 == "d" ? " DESC" : ""));
    lines.push_back("ORDER BY " + Join(o, ", "));
  }
  return lines;
}

}  // namespace

std::string RebuildQuerySql(const std::vector<QueryPart>& parts) {
  const Design d = Read(parts);
  std::vector<std::string> lines;
  if (!d.parameters.empty()) {
    std::vector<std::string> p;
    for (const auto* q : d.parameters)
      p.push_back(Bracket(q->Name1) + " " + ParameterType(q->Flag));
    lines.push_back("PARAMETERS " + Join(p, ", ") + ";");
  }
  std::vector<std::string> columns;
  for (const auto* c : d.columns) columns.push_back(ColumnText(*c));
  if ((d.options & kAllFields) && d.operation != kUnion) columns.insert(columns.begin(), "*");
  const std::string from = FromText(d);

  switch (d.operation) {
    case kUnion: {
      std::vector<std::string> selects;
      for (const auto* t : d.tables) {
        std::string select = t->Expression;
        while (!select.empty() && std::isspace(static_cast<unsigned char>(select.back())))
          select.pop_back();
        selects.push_back(select);
      }
      lines.push_back(Join(selects, (d.options & kDistinct) ? "\r\nUNION " : "\r\nUNION ALL "));
      Design order;
      order.orderBy = d.orderBy;
      lines = Tail(order, lines);
      break;
    }
    case kPassThrough:
    case kDdl: {
      std::vector<std::string> text;
      for (const auto& p : parts)
        if (!p.Expression.empty()) text.push_back(p.Expression);
      lines.push_back(Join(text, " "));
      break;
    }
    case kUpdate: {
      std::vector<std::string> sets;
      for (const auto* c : d.columns) sets.push_back(c->Name1 + " = " + c->Expression);
      lines.push_back("UPDATE " + from);
      lines.push_back("SET " + Join(sets, ", "));
      lines = Tail(d, lines);
      break;
    }
    case kDelete:
      lines.push_back("DELETE " + Join(columns, ", "));
      lines.push_back("FROM " + from);
      lines = Tail(d, lines);
      break;
    case kAppend: {
      std::vector<std::string> targets, values;
      for (const auto* c : d.columns) {
        values.push_back(c->Expression);
        if (!c->Name1.empty()) targets.push_back(c->Name1);
      }
      std::string into = "INSERT INTO " + Bracket(d.target);
      if (targets.size() == values.size() && !targets.empty())
        into += " ( " + Join(targets, ", ") + " )";
      lines.push_back(into);
      lines.push_back(SelectHead(d) + Join(values, ", "));
      lines.push_back("FROM " + from);
      lines = Tail(d, lines);
      break;
    }
    case kCrosstab: {
      // Columns: flag 0 the value (TRANSFORM), 1 the column heading (PIVOT),
      // 2 the row headings. The pivot expression is not grouped by.
      std::string value, pivot;
      std::vector<std::string> rows;
      for (const auto* c : d.columns) {
        if (c->Flag == 0 && value.empty())
          value = ColumnText(*c);
        else if (c->Flag == 1)
          pivot = c->Expression;
        else
          rows.push_back(ColumnText(*c));
      }
      Design grouped = d;
      std::string pivotBase = pivot.substr(0, pivot.find(" In ("));
      grouped.groupBy.erase(
          std::remove_if(grouped.groupBy.begin(), grouped.groupBy.end(),
                         [&](const QueryPart* g) { return g->Expression == pivotBase; }),
          grouped.groupBy.end());
      lines.push_back("TRANSFORM " + value);
      lines.push_back(SelectHead(d) + Join(rows, ", "));
      lines.push_back("FROM " + from);
      grouped.orderBy.clear();
      lines = Tail(grouped, lines);
      lines.push_back("PIVOT " + pivot);
      break;
    }
    case kMakeTable:
      lines.push_back(SelectHead(d) + Join(columns, ", ") + " INTO " + Bracket(d.target));
      lines.push_back("FROM " + from);
      lines = Tail(d, lines);
      break;
    default:
      lines.push_back(SelectHead(d) + Join(columns, ", "));
      lines.push_back("FROM " + from);
      lines = Tail(d, lines);
      if (d.options & kOwnerAccess) lines.push_back("WITH OWNERACCESS OPTION");
      break;
  }
  return Join(lines, "\r\n") + ";";
}

int QueryTypeOf(const std::vector<QueryPart>& parts) {
  struct Map {
    int operation;
    int daoType;
  };
  static constexpr Map kTypes[] = {
      {kSelect, 0},    {kMakeTable, 80}, {kAppend, 64},       {kUpdate, 48}, {kDelete, 32},
      {kCrosstab, 16}, {kDdl, 96},       {kPassThrough, 112}, {kUnion, 128},
  };
  for (const auto& p : parts) {
    if (p.Attribute != 1) continue;
    for (const auto& m : kTypes)
      if (m.operation == p.Flag) return m.daoType;
  }
  return -1;
}

}  // namespace morvane

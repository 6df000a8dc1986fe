// Rebuilding a saved query's SQL text from its rows in Jet's query table:
// Jet stores a query as its design (operation, tables, columns, joins,
// criteria, grouping, order), not as text.
#pragma once

#include <string>
#include <vector>

namespace morvane {

struct QueryPart {
  int Attribute = 0;  // 1 operation, 2 parameter, 3 options, 4 remote database, 5 table,
                      // 6 column, 7 join, 8 where, 9 group by, 10 having, 11 order by
  std::string Expression;
  long Flag = 0;
  std::string Name1;
  std::string Name2;
};

// The SQL as Access's SQL view shows it: clauses on lines of their own (CR
// LF), ending in ";".
std::string RebuildQuerySql(const std::vector<QueryPart>& parts);

// The DAO query type of the design's operation; -1 when the rows name none.
int QueryTypeOf(const std::vector<QueryPart>& parts);

}  // namespace morvane

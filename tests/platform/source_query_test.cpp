// Quoted values of query exports: doubled quotes, backslash escapes, and
// values continued on following lines.
#include "platform/source_query.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

TEST(QuotedValueAt, EscapesAndContinuedPieces) {
  struct Case {
    std::vector<std::string> lines;
    const char* value;
    size_t lastLine;
  };
  const Case cases[] = {
      {{"dbMemo \"SQL\" =\"SELECT \"\"a\"\" FROM t;\""}, "SELECT \"a\" FROM t;", 0},
      {{"dbMemo \"SQL\" =\"SELECT * FROM t WHERE n = \\\"x\\\";\\015\\012\""},
       "SELECT * FROM t WHERE n = \"x\";\r\n",
       0},
      {{"dbMemo \"SQL\" =\"SELECT 'C:\\\\data' AS p\""}, "SELECT 'C:\\data' AS p", 0},
      {{"dbMemo \"SQL\" =\"SELECT a\"", "    \", b FROM t;\"", "Operation =1"},
       "SELECT a, b FROM t;",
       1},
  };
  for (const auto& c : cases) {
    size_t index = 0;
    EXPECT_EQ(QuotedValueAt(c.lines, &index), c.value) << c.lines[0];
    EXPECT_EQ(index, c.lastLine);
  }
}

}  // namespace
}  // namespace morvane

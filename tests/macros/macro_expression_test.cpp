// The expression rewriter and the procedure names of macros.
#include "macros/macro_expression.h"

#include <gtest/gtest.h>

#include "macros/macro_names.h"
#include "session/conversion_session.h"

namespace morvane {
namespace {

struct ExpressionCase {
  const char* in;
  const char* out;
  bool context;
};

// The golden mcrRows shows a bracketed name that is no Visual Basic name,
// comparisons joined by And and Or, and a function call with its arguments.
TEST(MacroExpression, RewritesFormReferencesAndHandsTheRestToEval) {
  const ExpressionCase cases[] = {
      {"[Total]>5", ".Total > 5 ", true},
      {"[a]=1 Or [b]=\"x\"", ".a = 1 Or .b = \"x\" ", true},
      {"[Forms]![F]!x", "Forms!F!x ", false},
      {"[Forms].[F]", "Eval(\"[Forms].[F]\")", false},
      {"x In (1,2)", "Eval(\"x In (1,2)\")", false},
      {"[d] Between 1 And 2", "Eval(\"[d] Between 1 And 2\")", false},
      {"[s] Is Null", "Eval(\"[s] Is Null\")", false},
      {"[t] Not Like \"a*\"", "Eval(\"[t] Not Like \"\"a*\"\"\")", false},
      {"Yes", "True ", false},
      {"No", "False ", false},
      {"\"Yes\"", "\"Yes\" ", false},
      {"   ", "", false},
      {"", "", false},
      {"[sub]![x]", ".sub!x ", true},
      {"[Screen].[ActiveForm]", "Screen.ActiveForm ", false},
      {"\"a\"\"b\"", "\"a\"\" b\" ", false},
      {"[x]\t=\r\n1", ".x = 1 ", true},
  };
  for (const auto& c : cases) {
    std::string text = c.in;
    bool context = false;
    EXPECT_EQ(ConvertMacroExpression(text, &context), c.out) << c.in;
    EXPECT_EQ(context, c.context) << c.in;
  }
}

TEST(MacroExpression, TokensEndAtDelimitersOutsideStringsAndBrackets) {
  const std::string text = "[Order Date]>=#1/1/2000# And \"a b\"";
  long pos = 0;
  std::vector<std::string> tokens;
  for (std::string t = NextExprToken(text, pos); !t.empty(); t = NextExprToken(text, pos))
    tokens.push_back(t);
  EXPECT_EQ(tokens, (std::vector<std::string>{"[Order Date]", ">", "=", "#1", "/", "1", "/",
                                              "2000#", "And", "\"a b\""}));
  long beyond = 100;
  EXPECT_EQ(NextExprToken(text, beyond), "");
  EXPECT_TRUE(IsQuotedToken("'x'"));
  EXPECT_FALSE(IsQuotedToken("\"x'"));
  EXPECT_EQ(StripBrackets("[a]![\"[b]\"]"), "a!\"[b]\"");
  EXPECT_EQ(StripBrackets(std::string(3000, '[') + "x").size(), 0u);
}

TEST(MacroNames, CleanedNumberedAndCut) {
  ConversionSession s;
  EXPECT_EQ(MacroProcName(s, "Nav", "Go.Back"), "Nav_Go_Back");
  EXPECT_EQ(MacroProcName(s, "Nav", "Go"), "Nav_Go");
  EXPECT_EQ(MacroProcName(s, "Nav", "Go"), "Nav_Go1");
  EXPECT_EQ(MacroProcName(s, " x", ""), "Proc_x");
  // A Visual Basic name begins with a letter; DoCmd.RunMacro calls it so.
  EXPECT_EQ(MacroProcName(s, "002_Import", ""), "Proc002_Import");
  EXPECT_EQ(MacroProcName(s, "Close All", ""), "Close_All");
  // Group and name are cut to 14 characters each when together they pass 30.
  EXPECT_EQ(MacroProcName(s, "OrderManagement", "RecalculateTotals"),
            "OrderManagemen_RecalculateTot");
  EXPECT_EQ(MacroProcName(s, std::string(40, 'm'), ""), std::string(29, 'm'));

  EXPECT_TRUE(IsValidObjectName("Orders 2"));
  EXPECT_FALSE(IsValidObjectName(" Orders"));
  EXPECT_FALSE(IsValidObjectName("=x"));
  EXPECT_FALSE(IsValidObjectName("a.b"));
  EXPECT_FALSE(IsValidObjectName(std::string(65, 'a')));
  EXPECT_FALSE(IsValidObjectName(""));
}

TEST(MacroNames, UniquenessIsOnePassOverTheList) {
  std::vector<std::string> used;
  EXPECT_EQ(UniqueMacroName(used, "M"), "M");
  EXPECT_EQ(UniqueMacroName(used, "M"), "M1");
  EXPECT_EQ(UniqueMacroName(used, "M"), "M2");
  // A later element equal to the numbered name is not checked again.
  std::vector<std::string> order{"A1", "A"};
  EXPECT_EQ(UniqueMacroName(order, "A"), "A1");
}

}  // namespace
}  // namespace morvane

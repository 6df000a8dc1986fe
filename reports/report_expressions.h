// What a report text box's expression ("=...") becomes in a DataReport: the
// caption of a label with the report's page and date codes, or a function
// item over one field of the group, or run-time code. Plain text rules with
// no design in hand, so that each can be tested on its own.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace morvane {

// Whether the expression shows page numbers or the date or time: it holds
// "[Page]", "[Pages]", "Time()", "Date()" or "Now()" (case counts).
bool HasPageOrDateField(std::string_view source);

// The caption of the label that stands for a page or date expression, with
// %p and %P for the page and the page count, %d and %D for the short and
// long date, %t and %T for the short and long time. `format` is the text
// box's Format. `resolved` tells whether the whole expression became
// caption text (false when a part that no code stands for is left as
// text).
std::string PageDateCaption(std::string_view source, std::string_view format,
                            bool* resolved = nullptr);

// The aggregate an expression such as "=Sum([Amount])" asks for.
struct AggregateItem {
  int FunctionType = 0;      // the DataReport's FunctionType
  std::string Field;         // the field it runs over; empty when none is named
  bool SingleField = false;  // the expression is the function over that field alone
};

// The leading function name of the expression behind its "=": letters,
// digits, "_" and characters above 128.
std::string LeadingFunctionName(std::string_view source);
// The aggregate item of an expression whose leading function is Sum, Avg,
// Min, Max, Count or StDev (compared exactly); nullopt for any other.
std::optional<AggregateItem> Aggregate(std::string_view source);

// The text of an expression made only of quoted strings and numbers joined
// by "&" ("=\"***\"", "=1"); nullopt for any other.
std::optional<std::string> ConstantText(std::string_view source);

// The expression behind the "=" when the database can compute it as a
// column of the report's records: every name it reads is one of `fields`
// (in brackets or as a plain word), and every function is one that Jet
// runs outside Access too. nullopt otherwise.
std::optional<std::string> JetColumnExpression(std::string_view source,
                                               const std::vector<std::string>& fields);

// Whether an expression (without its "=") can run as Visual Basic code as
// it stands: it names no field or control in brackets or behind "!", and no
// aggregate or domain function of Access.
bool IsPlainVbExpression(std::string_view expression);

}  // namespace morvane

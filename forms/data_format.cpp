// DataFormat bodies: Access's named formats mapped to the format types of
// Visual Basic's StdDataFormat, a custom format passed through as it is.
#include "forms/data_format.h"

#include <string_view>

#include "design/form_design.h"
#include "forms/frm_text.h"

namespace morvane {

namespace {

// The decimals text stands where `kDecimals` stands in a pattern.
constexpr char kDecimals = '@';

struct NamedFormat {
  std::string_view access;  // compared exactly
  int type;
  std::string_view pattern;  // the quoted text of the Format line
  int subFormatType;
};

constexpr NamedFormat kNamedFormats[] = {
    {"General Number", 1, "0@", 1},
    {"Fixed", 1, "0@", 1},
    {"Standard", 1, "#,##0@", 1},
    {"Currency", 1, "\"$\"#,##0.00", 2},
    {"General Date", 1, "m/d/yy h:mm:ss AMPM", 3},
    {"Long Date", 1, "dddddd", 3},
    {"Medium Date", 1, "dd-mmm-yy", 3},
    {"Short Date", 1, "m/d/yy", 3},
    {"Long Time", 1, "h:mm:ss AMPM", 4},
    {"Medium Time", 1, "h:mm AMPM", 4},
    {"Short Time", 1, "hh:mm", 4},
    {"Percent", 1, "0@%", 5},
    {"Scientific", 1, "0.00E+00", 6},
};

// The boolean formats show their own words for True and False.
struct BooleanFormat {
  std::string_view access;
  std::string_view trueWord;
  std::string_view falseWord;
};

constexpr BooleanFormat kBooleanFormats[] = {
    {"True/False", "True", "False"},
    {"Yes/No", "Yes", "No"},
    {"On/Off", "On", "Off"},
};

constexpr std::string_view kFlagLines[] = {"HaveTrueFalseNull = 0", "FirstDayOfWeek = 0",
                                           "FirstWeekOfYear = 0", "LCID = 1033"};

// "." and one zero per decimal place; Access's automatic setting (255) and
// one place give none.
std::string DecimalsText(const std::optional<long>& places) {
  if (!places || *places <= 1 || *places >= 255) return std::string();
  return "." + std::string(static_cast<size_t>(*places), '0');
}

std::string Quoted(std::string_view text) { return "\"" + EscapeQuotes(text) + "\""; }

void AddPlain(std::vector<std::string>& out, int type, const std::string& quoted,
              int subFormatType) {
  out.push_back("Type = " + std::to_string(type));
  out.push_back("Format = " + quoted);
  out.insert(out.end(), std::begin(kFlagLines), std::end(kFlagLines));
  out.push_back("SubFormatType = " + std::to_string(subFormatType));
}

}  // namespace

std::vector<std::string> DataFormatLines(const std::optional<std::string>& format,
                                         const std::optional<long>& decimalPlaces) {
  std::vector<std::string> out;
  const std::string name = format.value_or("");
  if (name.empty()) {
    AddPlain(out, 0, "\"\"", 0);
    return out;
  }
  for (const NamedFormat& f : kNamedFormats) {
    if (f.access != name) continue;
    std::string pattern(f.pattern);
    if (size_t at = pattern.find(kDecimals); at != std::string::npos)
      pattern.replace(at, 1, DecimalsText(decimalPlaces));
    AddPlain(out, f.type, Quoted(pattern), f.subFormatType);
    return out;
  }
  for (const BooleanFormat& f : kBooleanFormats) {
    if (f.access != name) continue;
    out.push_back("Type = 5");
    out.push_back("Format = \"\"");
    out.push_back("HaveTrueFalseNull = 1");
    out.push_back("TrueValue = " + Quoted(f.trueWord));
    out.push_back("FalseValue = " + Quoted(f.falseWord));
    out.push_back("NullValue = \"\"");
    out.push_back("FirstDayOfWeek = 0");
    out.push_back("FirstWeekOfYear = 0");
    out.push_back("LCID = 1033");
    out.push_back("SubFormatType = 7");
    return out;
  }
  AddPlain(out, 1, Quoted(name), 0);
  return out;
}

std::string DataFormatText(const DesignObject& control) {
  std::string text;
  for (const std::string& line :
       DataFormatLines(control.Text("Format"), control.Number("DecimalPlaces")))
    text += "\r\n" + line;
  return text;
}

}  // namespace morvane

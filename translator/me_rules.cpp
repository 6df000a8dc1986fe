// The Me rules of a form's code: "Me!" becomes "Me.", and references through
// the form object ("Me." or the form's own name) to record-level properties
// reach the form's data control, while bound field names read through
// tblFields become recordset field access.
#include "translator/me_rules.h"

#include <algorithm>
#include <string_view>

#include "platform/support_db.h"
#include "session/conversion_session.h"
#include "session/naming.h"
#include "session/analysis_writers.h"
#include "translator/rule_outcomes.h"
#include "translator/text_helpers.h"
#include "translator/vb_code.h"
#include "translator/vb_text.h"

namespace morvane {

namespace {

enum class Member { Bookmark, CurrentRecord, RecordSource, GoToPage, Flag, Other };

struct MemberRule {
  std::string_view name;
  Member kind;
  bool FormState::*flag;
};

constexpr MemberRule kMembers[] = {
    {"Bookmark", Member::Bookmark, nullptr},
    {"CurrentRecord", Member::CurrentRecord, nullptr},
    {"RecordSource", Member::RecordSource, nullptr},
    {"GoToPage", Member::GoToPage, nullptr},
    {"OpenArgs", Member::Flag, &FormState::UsesOpenArgs},
    {"Filter", Member::Flag, &FormState::UsesFilter},
    {"FilterOn", Member::Flag, &FormState::UsesFilterOn},
    {"OrderBy", Member::Flag, &FormState::UsesOrderBy},
    {"OrderByOn", Member::Flag, &FormState::UsesOrderByOn},
};

const MemberRule* FindMember(const std::string& m) {
  for (const auto& r : kMembers)
    if (EqualsNoCase(r.name, m)) return &r;
  return nullptr;
}

// The form's GoToPage becomes a move of the tab control that stands in for
// the pages. Returns false when the search for this owner ends.
bool GoToPage(ModuleTranslation& t, std::string& line, const std::string& owner, int p) {
  const int ownerLength = Len(owner);
  const int comma = InStr(line, ",", p);
  if (comma == 0) {
    line = owner + ".SSTab1.Tab = " + Mid(line, ownerLength + 10) + " - 1";
    return true;
  }
  auto page = Mid(line, 12, comma - ownerLength - 10);
  if (!page) return true;
  if (page->empty()) {
    Marked(t, line, 2);
    return true;
  }
  const std::string text = owner + ".SSTab1.Tab = " + *page + " - 1";
  Kept(t, line, text, 7, text, false);
  return false;
}

// What the code asks of a tab page, which is no control here, asked of the
// SSTab that shows it: its caption, visibility and enabled state become the
// tab's, SetFocus selects the tab and PageIndex is the tab's number. `head`
// ends with "Me."; `after` follows the page's name. The text put in, or
// empty with a review row when the member has no counterpart.
std::string PageRule(ModuleTranslation& t, std::string& line, const std::string& head,
                     const std::string& after, const FormState::TabPage& page) {
  const std::string index = std::to_string(page.Index);
  const std::string member = after.starts_with(".") ? LeadingIdentifier(after.substr(1)) : "";
  const std::string behind = after.substr(member.empty() ? 0 : member.size() + 1);
  std::string text;
  if (EqualsNoCase(member, "Caption"))
    text = page.Tab + ".TabCaption(" + index + ")";
  else if (EqualsNoCase(member, "Visible"))
    text = page.Tab + ".TabVisible(" + index + ")";
  else if (EqualsNoCase(member, "Enabled"))
    text = page.Tab + ".TabEnabled(" + index + ")";
  else if (EqualsNoCase(member, "SetFocus"))
    text = page.Tab + ".Tab = " + index;
  if (!text.empty()) {
    line = head + text + behind;
    return text;
  }
  if (EqualsNoCase(member, "PageIndex")) {
    line = head.substr(0, head.size() - 3) + index + behind;
    return index;
  }
  ReportRule(t, kReasonReview, line,
             "a page of the tab control " + page.Tab + ", which no control stands for");
  return {};
}

void RulesFor(ModuleTranslation& t, std::string& line, const std::string& owner) {
  ConversionSession& s = t.Session;
  const std::string key = owner + ".";
  const std::string& dat = t.DataControl;
  // The owner stands as a word of its own, in code or a comment: "datOrders."
  // is no reference to the form "Orders", nor is a word in a string literal.
  // And the search goes on behind what a rule put in.
  constexpr WordMatch kOwner{false, true};
  auto next = [&](int from) {
    const size_t at = FindWord(line, key, static_cast<size_t>(from - 1), kOwner);
    return at == std::string::npos ? 0 : static_cast<int>(at) + 1;
  };
  for (int p = next(1); p != 0;) {
    const int behind = p + Len(key);  // first character behind the "."
    const std::string head = Mid(line, 1, behind - 1).value_or(line);
    const std::string rest = Mid(line, behind);
    const std::string m = LeadingIdentifier(rest);
    const MemberRule* rule = FindMember(m);
    const Member kind = rule ? rule->kind : Member::Other;
    std::string inserted;
    switch (kind) {
      case Member::Bookmark:
        inserted = dat + ".recordset.";
        line = head + inserted + rest;
        break;
      case Member::CurrentRecord:
        inserted = dat + ".recordset.AbsolutePosition";
        line = head + inserted + rest.substr(m.size());
        break;
      case Member::RecordSource:
        inserted = dat + ".";
        line = head + inserted + rest;
        break;
      case Member::GoToPage:
        if (!GoToPage(t, line, owner, p)) return;
        break;
      case Member::Flag:
        s.Form().*(rule->flag) = true;
        break;
      case Member::Other:
        if (owner == "Me" && !m.empty()) {
          const auto page = s.Form().TabPages.find(ToLower(m));
          if (page != s.Form().TabPages.end()) {
            inserted = PageRule(t, line, head, rest.substr(m.size()), page->second);
            break;
          }
        }
        if (owner != "Me" || m.empty() || !s.SupportDb) break;
        if (auto field = s.SupportDb->FindField(m)) {
          inserted = "dat" + field->Form + ".recordset.Fields(\"" + m + "\")";
          line = head + inserted + rest.substr(m.size());
        }
        break;
    }
    p = next(std::max(p + 1, Len(head) + Len(inserted) + 1));
  }
}

}  // namespace

void MeRules(ModuleTranslation& t, std::string& line) {
  if (StartsWithNoCase(line, "Me!")) line = "Me." + line.substr(3);
  Replace(t, line, " Me!", " Me.");
  RulesFor(t, line, "Me");
  RulesFor(t, line, t.ModuleName);
}

}  // namespace morvane

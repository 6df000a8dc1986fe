// DoCmd rules: one table row per method, in the order they are tried; the
// methods whose translation depends on their arguments have a function each.
#include "translator/docmd_rules.h"

#include <optional>
#include <string_view>

#include "platform/catalog.h"
#include "session/analysis_writers.h"
#include "session/conversion_session.h"
#include "session/naming.h"
#include "translator/rule_outcomes.h"
#include "translator/text_helpers.h"
#include "translator/vb_code.h"
#include "translator/vb_text.h"

namespace morvane {

namespace {

enum class Match { Equals, Begins };
enum class Outcome { Plain, Kept, Special };
using SpecialRule = void (*)(ModuleTranslation&, std::string&);

// New text: head + the line from position `from` (when not 0) + tail. The
// translated text of the analysis row has the same shape with `reportHead`,
// or is the new text when `reportHead` is empty.
struct DoCmdRule {
  Match match;
  std::string_view text;
  Outcome outcome;
  std::string_view head;
  int from;
  std::string_view tail;
  int reason;
  std::string_view reportHead;
  SpecialRule special;
};

constexpr DoCmdRule PlainRow(Match m, std::string_view text, std::string_view newText) {
  return {m, text, Outcome::Plain, newText, 0, "", 0, "", nullptr};
}
constexpr DoCmdRule KeptRow(Match m, std::string_view text, std::string_view head, int from,
                            std::string_view tail, int reason, std::string_view reportHead = "") {
  return {m, text, Outcome::Kept, head, from, tail, reason, reportHead, nullptr};
}
constexpr DoCmdRule SpecialRow(Match m, std::string_view text, SpecialRule rule) {
  return {m, text, Outcome::Special, "", 0, "", 0, "", rule};
}

constexpr std::string_view kSsTab = "Screen.ActiveForm.SSTab1.Tab = ";

void MoveSizeRule(ModuleTranslation& t, std::string& line) {
  ReportRule(t, kReasonNoEquivalent, line, std::string());
  Bump(t.LinesNotTranslated);
  line = "'me.move new left,new top,width,height " + std::string(kCommentMark) +
         std::string(kCommentMark) + line;
  t.StatementMarked = true;
}

void CloseRule(ModuleTranslation& t, std::string& line) {
  const ConversionSession& s = t.Session;
  if (Contains(line, "acForm") || Contains(line, "a_Form") ||
      (line.size() >= 13 && line[12] == '2')) {
    if (Contains(line, "Me.Name")) {
      Kept(t, line, "Unload " + FormReference(s, t.ModuleName), kReasonReview,
           "Unload " + SafeName(t.ModuleName));
    } else {
      // The form's name stands behind the first comma (the whole line when
      // there is none).
      std::string text = "Unload " + FormReference(s, TrimBlanks(Mid(line, InStr(line, ",") + 1)));
      Kept(t, line, text, kReasonReview, text);
    }
  } else if (StartsWithNoCase(line, "DoCmd.Close , ,") || EqualsNoCase(line, "DoCmd.Close")) {
    line = "Unload Screen.ActiveForm";
  } else {
    Marked(t, line, kReasonNoEquivalent);
  }
}

void DoCmdRequeryRule(ModuleTranslation& t, std::string& line) {
  std::string text;
  if (line.find('"') != std::string::npos) {
    auto name = Mid(line, 16, Len(line) - 16);  // the name without its quotes
    if (!name) return;
    text = *name + ".requery";
  } else {
    text = Mid(line, 14) + ".requery";
  }
  // Without a control's name the requery is of the active object, which
  // has no counterpart here; ".requery" alone would not compile.
  if (TrimBlanks(text) == ".requery") {
    Marked(t, line, kReasonNoEquivalent);
    ++t.PassedHits;
    return;
  }
  Kept(t, line, text, kReasonReview, text);
}

void OpenFormRule(ModuleTranslation& t, std::string& line) {
  const std::string l = ReplaceAllText(line, "FormName:=", "");
  const std::string form = FormReference(t.Session, TrimBlanks(Mid(l, 15)));
  const int comma = InStr(l, ",");
  if (comma == 0) {
    auto name = Mid(l, 17, Len(l) - 17);
    if (!name) return;
    Kept(t, line, form + ".Show", kReasonReview, *name + ".Show");
    return;
  }
  // The open arguments: behind the sixth comma, or behind a named argument.
  std::string args;
  int pos = 0;
  int commas = 0;
  while (commas < 6 && (pos = InStr(l, ",", pos + 1)) > 0) ++commas;
  if (commas == 6)
    args = TrimBlanks(Mid(l, pos + 1));
  else if (int named = InStr(l, "openargs:="); named > 0)
    args = TrimBlanks(Mid(l, named + 10));
  const bool modal =
      Contains(l, "windowmode:=3") || Contains(l, "acdialog") || Contains(l, "a_dialog");
  const std::string show = form + ".Show" + (modal ? " vbModal " : "");
  auto name = Mid(l, 17, comma - 18);
  if (!name) return;
  Kept(t, line, show, kReasonReview, *name + ".Show" + (modal ? " vbModal " : ""));
  if (!args.empty()) {
    t.Write("Load " + form);
    t.Write(form + ".Openargs = " + args);
    Bump(t.TotalLines, 2);
    Bump(t.CodeLines, 2);
  }
}

bool IsActionQuery(int type) {
  constexpr int kActionTypes[] = {kDbQAction,    kDbQDelete,         kDbQUpdate, kDbQAppend,
                                  kDbQMakeTable, kDbQSQLPassThrough, kDbQSPTBulk};
  for (int action : kActionTypes)
    if (type == action) return true;
  return false;
}

void OpenQueryRule(ModuleTranslation& t, std::string& line) {
  const std::string l = ReplaceAllText(line, "QueryName:=", "");
  const int comma = InStr(l, ",");
  const std::string q =
      TrimBlanks(comma > 0 ? Mid(l, 16, comma - 16).value_or(std::string()) : Mid(l, 16));
  if (t.Session.IsAdp) {
    Marked(t, line, kReasonNoEquivalent);
    return;
  }
  std::optional<QueryInfo> query;
  if (t.Session.SourceDb && q.size() >= 2) {
    const std::string name = q.substr(1, q.size() - 2);
    if (!t.Session.Speculative) {
      query = t.Session.SourceDb->QueryDef(name);
    } else {
      // Beside the forms, which may still make queries, only the database's
      // own are sure; any other name is left to the run's own thread.
      query = t.Session.SourceDb->SavedQueryDef(name);
      if (!query) t.Session.SpeculationFailed = true;
    }
  }
  if (query && IsActionQuery(query->Type)) {
    Kept(t, line, "db.Execute " + q, kReasonReview, "db.Execute " + q);
  } else {
    Marked(t, line, kReasonNoEquivalent);
  }
}

bool IsEmptyArgument(const std::string& field) {
  std::string trimmed = TrimBlanks(field);
  return trimmed.empty() || trimmed == "\"\"";
}

// A quoted expression without its quotes.
std::optional<std::string> Unquoted(const std::string& field) {
  std::string trimmed = TrimBlanks(field);
  return Mid(trimmed, 2, Len(trimmed) - 2);
}

void RunMacroRule(ModuleTranslation& t, std::string& line) {
  const int comma = InStr(line, ",");
  auto name = comma > 0 ? Mid(line, 17, comma - 18) : Mid(line, 17, Len(line) - 17);
  if (!name) return;
  // The macro's procedure begins with a letter, as the macro converter
  // names it.
  const std::string procedure = VbIdentifier(*name, "Proc", 255);
  if (procedure != SafeName(*name)) ++t.PassedHits;
  const std::string call = "Call " + procedure;
  if (comma == 0 || EqualsNoCase(Mid(line, comma + 1), " , \"\"")) {
    line = call;
    return;
  }
  // Repeat count and repeat condition become a loop around the call.
  const std::string f2 = NthField(line, 2, ",");
  const std::string f3 = NthField(line, 3, ",");
  if (!IsEmptyArgument(f2) && IsEmptyArgument(f3)) {
    Kept(t, line, "Next", kReasonReview, "For..Next Loop", false);
    t.Write("Dim iRunMacroCount as Integer");
    t.Write("For iRunMacroCount = 1 to " + f2);
    t.Write(call);
    return;
  }
  auto condition = Unquoted(f3);
  if (!condition) return;
  if (IsEmptyArgument(f2)) {
    Kept(t, line, "Loop", kReasonReview, "Do..Loop", false);
    t.Write("Do Until " + *condition);
    t.Write(call);
    return;
  }
  Kept(t, line, "Next", kReasonReview, "For..Next Loop", false);
  t.Write("Dim iRunMacroCount as Integer");
  t.Write("For iRunMacroCount = 1 to " + f2);
  t.Write("If Not " + *condition + " Then Exit For");
  t.Write(call);
}

void GoToPageRule(ModuleTranslation& t, std::string& line) {
  const int comma = InStr(line, ",");
  if (comma == 0) {
    line = std::string(kSsTab) + Mid(line, 15) + " - 1";
    return;
  }
  std::string page = Mid(line, 15, comma - 15).value_or(std::string());
  if (page.empty()) {
    Marked(t, line, kReasonNotHandled);
    return;
  }
  std::string text = std::string(kSsTab) + page + " - 1";
  Kept(t, line, text, kReasonReview, text, false);
}

constexpr DoCmdRule kDoCmdRules[] = {
    PlainRow(Match::Equals, "DoCmd.Hourglass True", "Screen.MousePointer = vbHourglass"),
    PlainRow(Match::Equals, "DoCmd.Hourglass false", "Screen.MousePointer = vbDefault"),
    KeptRow(Match::Equals, "DoCmd.CancelEvent", "Cancel = True", 0, "", kReasonCancelEvent),
    PlainRow(Match::Equals, "DoCmd.Beep", "Beep"),
    SpecialRow(Match::Begins, "DoCmd.Close", CloseRule),
    PlainRow(Match::Equals, "DoCmd.Maximize", "Screen.ActiveForm.Windowstate = 2"),
    PlainRow(Match::Equals, "DoCmd.Minimize", "Screen.ActiveForm.Windowstate = 1"),
    SpecialRow(Match::Begins, "DoCmd.MoveSize", MoveSizeRule),
    PlainRow(Match::Equals, "DoCmd.Quit", "End"),
    SpecialRow(Match::Begins, "DoCmd.ReQuery", DoCmdRequeryRule),
    KeptRow(Match::Equals, "DoCmd.Restore", "Screen.ActiveForm.Windowstate = 0", 0, "",
            kReasonReview, "Me.Windowstate = 0"),
    KeptRow(Match::Begins, "DoCmd.RunSQL", "DB.Execute ", 14, "", kReasonReview),
    SpecialRow(Match::Begins, "DoCmd.OpenForm", OpenFormRule),
    KeptRow(Match::Begins, "DoCmd.GotoControl", "Screen.ActiveForm.Controls(", 18, ").SetFocus",
            kReasonReview, "Controls("),
    KeptRow(Match::Begins, "DoCmd.Printout", "Screen.ActiveForm.PrintForm", 0, "", kReasonReview),
    KeptRow(Match::Equals, "DoCmd.RepaintObject", "Screen.ActiveForm.Refresh", 0, "",
            kReasonReview),
    SpecialRow(Match::Begins, "DoCmd.OpenQuery", OpenQueryRule),
    SpecialRow(Match::Begins, "DoCmd.RunMacro", RunMacroRule),
    SpecialRow(Match::Begins, "DoCmd.GoToPage", GoToPageRule),
};

constexpr bool RulesAreWellFormed() {
  for (const auto& rule : kDoCmdRules) {
    if (rule.text.substr(0, 6) != "DoCmd.") return false;
    if ((rule.outcome == Outcome::Special) != (rule.special != nullptr)) return false;
    if (rule.outcome == Outcome::Kept && rule.reason == 0) return false;
  }
  return true;
}
static_assert(RulesAreWellFormed(), "every DoCmd rule names a DoCmd method and its outcome");

std::string RuleText(const DoCmdRule& rule, std::string_view head, const std::string& line) {
  std::string text(head);
  if (rule.from > 0) text += Mid(line, rule.from);
  text += rule.tail;
  return text;
}

}  // namespace

void DoCmdRules(ModuleTranslation& t, std::string& line) {
  for (const auto& rule : kDoCmdRules) {
    bool fits = rule.match == Match::Equals ? EqualsNoCase(line, rule.text)
                                            : StartsWithNoCase(line, rule.text);
    if (!fits) continue;
    // A rule that reads the arguments would take a comment behind them for
    // one: the comment is set aside and comes back behind the result.
    if (rule.match != Match::Equals) {
      if (const size_t mark = CommentStart(line); mark != std::string::npos) {
        const std::string comment = line.substr(mark);
        line = CodePart(line);
        DoCmdRules(t, line);
        line += " " + comment;
        return;
      }
    }
    switch (rule.outcome) {
      case Outcome::Plain:
        line = RuleText(rule, rule.head, line);
        break;
      case Outcome::Kept:
        Kept(t, line, RuleText(rule, rule.head, line), rule.reason,
             RuleText(rule, rule.reportHead.empty() ? rule.head : rule.reportHead, line));
        break;
      case Outcome::Special:
        rule.special(t, line);
        break;
    }
    return;
  }
  Marked(t, line, kReasonNotHandled);
}

}  // namespace morvane

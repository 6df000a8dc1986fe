// Questions about record sources and row sources, answered from the source
// database's catalog: the field at a column, the SQL that ties a subform to
// its parent's current row, whether a one-column list will do, and the
// Visual Basic class of a custom control from the CustomControlMapping
// table of the support database.
#include "forms/record_source.h"

#include <algorithm>
#include <vector>

#include "design/design_store.h"
#include "design/form_design.h"
#include "forms/form_writer.h"
#include "forms/frm_text.h"
#include "forms/query_fields.h"
#include "platform/support_db.h"
#include "platform/text_fold.h"
#include "session/conversion_session.h"
#include "session/naming.h"

namespace morvane {

namespace {

std::optional<std::vector<FieldInfo>> FieldsOfName(const Catalog& db, const std::string& name) {
  if (auto fields = QueryFields(db, name)) return fields;
  return TableFields(db, name);
}

// Access joins several link fields with ";". Each pair becomes one condition
// of the join and of the restriction; a side with fewer names pairs the
// rest with an empty name, as a single empty field would be.
std::vector<std::string> SplitLinkFields(const std::string& text) {
  std::vector<std::string> out = text::Split(text, ';');
  for (std::string& f : out) f = TrimBlanks(f);
  return out;
}

// A text or date field compares with a quoted value.
bool NeedsQuotes(const std::optional<std::vector<FieldInfo>>& fields, const std::string& name) {
  if (!fields) return false;
  for (const FieldInfo& f : *fields)
    if (EqualsNoCase(f.Name, name)) return f.Type == kDbDate || f.Type == kDbText;
  return false;
}

}  // namespace

std::string FieldNameAt(ConversionSession& s, const std::string& source, int index) {
  if (!s.SourceDb || index < 0) return std::string();
  // A SELECT statement is read directly: its fields come from its select
  // list, so no scratch query is needed in the database.
  auto fields = IsSelectStatement(source) ? SelectFields(*s.SourceDb, source)
                                          : FieldsOfName(*s.SourceDb, source);
  if (!fields || static_cast<size_t>(index) >= fields->size()) return std::string();
  return (*fields)[static_cast<size_t>(index)].Name;
}

std::string SubformLinkSql(FormWriter& w, const std::string& source,
                           const ControlDesign& subformControl) {
  ConversionSession& s = w.Session();
  Catalog* db = s.SourceDb;
  // The parent is the form that holds the subform control: the top form,
  // or for a nested subform the subform around it.
  const FormDesign& holder = subformControl.Owner();
  const std::string parentData = w.DataControlOf(holder.Name());
  const std::string joinName = "qry" + parentData;

  // Child side: a SELECT statement is saved as a query the join can name.
  std::string child = source;
  if (IsSelectStatement(source)) {
    child = joinName + "1";
    if (db) db->CreateQueryDef(child, source);
  }

  // Parent side: the record source of the top form, likewise.
  const std::string parentSource = holder.Text("RecordSource").value_or("");
  std::string master = parentSource;
  if (IsSelectStatement(parentSource)) {
    master = joinName + "2";
    if (db) db->CreateQueryDef(master, parentSource);
  }
  std::optional<std::vector<FieldInfo>> masterFields;
  if (db) masterFields = FieldsOfName(*db, master);

  const auto childFields = SplitLinkFields(subformControl.Text("LinkChildFields").value_or(""));
  const auto masterNames = SplitLinkFields(subformControl.Text("LinkMasterFields").value_or(""));
  const size_t pairs = std::max(childFields.size(), masterNames.size());
  auto at = [](const std::vector<std::string>& v, size_t i) {
    return i < v.size() ? v[i] : std::string();
  };

  std::string join = "Select * from [" + child + "] INNER JOIN [" + master + "] ON ";
  for (size_t i = 0; i < pairs; ++i) {
    if (i > 0) join += " AND ";
    join += "[" + child + "].[" + at(childFields, i) + "] = [" + master + "].[" +
            at(masterNames, i) + "]";
  }
  if (db) db->CreateQueryDef(joinName, join);

  // The result closes the quoted text of the hint's statement and joins the
  // parent's current value to it at run time; a text or date value sits in
  // doubled quotes inside the quoted text.
  std::string result = EscapeQuotes(JoinLines(join));
  for (size_t i = 0; i < pairs; ++i) {
    const std::string field = at(masterNames, i);
    const std::string q = NeedsQuotes(masterFields, field) ? "\"\"" : "";
    result += i == 0 ? " Where [" : " & \" AND [";
    result += master + "].[" + field + "]=" + q + "\" & " + parentData + ".Recordset.Fields(\"" +
              field + "\")";
    if (!q.empty()) result += " & " + q + q;
  }
  return result;
}

bool IsPlainListControl(ConversionSession&, const ControlDesign& control) {
  auto columns = control.Number("ColumnCount");
  return columns && *columns <= 1;
}

std::string MapCustomControl(ConversionSession& s, const std::string& accessClass, FormWriter* w) {
  if (!s.SupportDb || accessClass.empty()) return std::string();
  auto row = s.SupportDb->FindCustomControl(accessClass);
  if (!row) return std::string();
  if (w && !row->ClassID.empty() && row->ClassID != "0")
    w->AddComponent(row->ClassID, row->FileName);
  return row->VBType;
}

}  // namespace morvane

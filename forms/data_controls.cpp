// Data controls: the form's own (VB.Data or the ADO data control), the one a
// bound list gets, the tblFields rows they leave for the code translator,
// the hints that let a parent's data control drive a subform's, and the
// binding and empty picture records of a form's .frx file.
#include "forms/data_controls.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>

#include "design/form_design.h"
#include "forms/form_writer.h"
#include "forms/frm_text.h"
#include "forms/query_fields.h"
#include "forms/record_source.h"
#include "platform/support_db.h"
#include "platform/text_file.h"
#include "session/conversion_session.h"
#include "session/hint_processor.h"
#include "session/naming.h"

namespace morvane {

namespace {

constexpr const char* kAdoDataControlGuid = "{67397AA1-7FB1-11D0-B148-00A0C922E820}#6.0#0";
constexpr const char* kAdoDataControlFile = "MSADODC.OCX";
constexpr const char* kStdFontHead = "BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851}";

// The .frx records. A bindings record is a head of 9 bytes and the text; the
// empty picture record is a StdPicture of no bytes.
constexpr unsigned char kDaoBindingsTag[] = {0xCE, 0xFA, 0x01, 0x00};
constexpr unsigned char kAdoBindingsTag[] = {0xC6, 0xFA, 0x01, 0x00};
constexpr unsigned char kEmptyPicture[] = {
    0x18, 0x00, 0x00, 0x00,                          // 24 bytes follow
    0x04, 0x52, 0xE3, 0x0B, 0x91, 0x8F, 0xCE, 0x11,  // {0BE35204-8F91-11CE-
    0x9D, 0xE3, 0x00, 0xAA, 0x00, 0x4B, 0xB8, 0x51,  //  9DE3-00AA004BB851}
    0x6C, 0x74, 0x00, 0x00,                          //
    0x00, 0x00, 0x00, 0x00,                          // a picture of size 0
};
static_assert(sizeof(kEmptyPicture) == 28);

// The file name of the source database as the generated project opens it:
// the database's own name, or for a source tree without one the tree's name
// with ".mdb", as the ADO connection names it.
std::string DatabaseFileName(const ConversionSession& s) {
  std::string path = s.SourcePath;
  while (!path.empty() && (path.back() == '/' || path.back() == '\\')) path.pop_back();
  std::string file = FileNameOf(path);
  for (const char* ext : {".mdb", ".mde", ".adp", ".ade", ".accdb"})
    if (EndsWithNoCase(file, ext)) return file;
  return file + ".mdb";
}

// One row of tblFields per field of the record source, which is looked up as
// a saved query first and then as a table. A SELECT statement is neither and
// gives no rows.
void FillFields(ConversionSession& s, const std::string& source, const std::string& name) {
  if (!s.SourceDb || !s.SupportDb) return;
  auto fields = QueryFields(*s.SourceDb, source);
  if (!fields) fields = TableFields(*s.SourceDb, source);
  if (!fields) return;
  for (const FieldInfo& f : *fields) s.SupportDb->AddField({f.Name, f.Type, name});
}

// A subform's data control reads its source through a SELECT, so that the
// hint's link statement can replace it; a list has no form to compare.
bool ForSubform(const FormWriter& w, const std::optional<std::string>& formName) {
  return formName && *formName != w.Text().OwnerFormName;
}

int AdoCommandType(const FormWriter& w, const std::string& source,
                   const std::optional<std::string>& formName) {
  if (const FormDesign* form = w.Text().CurrentForm) {
    if (!form->Text("Filter").value_or("").empty()) return 1;
    if (!form->Text("OrderBy").value_or("").empty()) return 1;
    if (form->Flag("FilterOn").value_or(false) || form->Flag("OrderByOn").value_or(false)) return 1;
  }
  if (IsSelectStatement(source) || ForSubform(w, formName)) return 1;
  return 2;
}

// Visual Basic reads a designer line of at most 1023 bytes: a longer
// record source is set by the form's load code, where a line continues.
constexpr size_t kDesignerLineLimit = 1023;

void AddRecordSourceLine(std::string& text, FormWriter& w, const std::string& dat,
                         const std::string& source) {
  const std::string line = "RecordSource = \"" + source + "\"";
  if (line.size() <= kDesignerLineLimit) {
    AddLine(text, line);
  } else {
    std::string expression = JoinCrLf(QuotedStringLines(source));
    expression.resize(expression.size() - 2);  // the last line end
    AddHint(w.Session(), FormLoadLineHint{dat + ".RecordSource = " + expression});
  }
}

// A statement goes as it is; a table or query is named for a command of
// table type, and read through a statement where the command is text (a
// filtered or sorted form, a subform), since a bare name is no command text.
void AddAdoRecordSource(std::string& text, FormWriter& w, const std::string& source,
                        const std::optional<std::string>& formName, const std::string& dat) {
  if (source.empty()) return;
  if (IsSelectStatement(source)) return AddRecordSourceLine(text, w, dat, source);
  const std::string name = source.find(' ') != std::string::npos ? "[" + source + "]" : source;
  if (AdoCommandType(w, source, formName) == 1)
    AddLine(text, "RecordSource = \"Select * From " + name + "\"");
  else
    AddLine(text, "RecordSource = \"" + name + "\"");
}

// Upper-case hexadecimal, at least four digits. An offset past 65535 keeps
// all its digits, as Visual Basic itself writes them.
std::string OffsetText(std::uintmax_t offset) {
  char buf[24];
  std::snprintf(buf, sizeof buf, "%04jX", offset);
  return buf;
}

}  // namespace

void WriteFormDataControl(FormWriter& w) {
  FormTextSet& t = w.Text();
  ConversionSession& s = w.Session();
  const FormDesign* form = t.CurrentForm;
  if (!form) return;
  const std::string recordSource = form->Text("RecordSource").value_or("");
  if (recordSource.empty()) return;
  const std::string formName = form->Name();
  // "dat" and the form's name, or the name of this showing of a form shown
  // twice.
  const std::string name = w.DataControlOf(formName).substr(3);
  const int type = form->Number("RecordsetType") == 2 ? 2 : 1;
  const std::string source = EscapeQuotes(JoinLines(recordSource));
  // On a page-broken form the client area is the first page's height.
  long top = t.Place.Total - 330;
  if (t.Place.PageBreakTops.size() > 1) {
    const SectionDesign* detail = form->Section(0);
    const long detailHeight = detail ? detail->Number("Height").value_or(0) : 0;
    top = t.Place.Total - detailHeight + t.Place.PageBreakTops[1] + 520 - 330;
  }
  const bool visible = t.InSubform || form->Flag("NavigationButtons").value_or(true);
  std::string text =
      s.Options.UseAdo
          ? WriteAdoDataControl(w, name, t.Place.SubformLeft, type, source, top, visible, formName)
          : WriteDataControl(w, name, t.Place.SubformLeft, type, source, top, visible, formName);
  // The control's text ends with its line end; the next control brings its own.
  if (text.ends_with("\r\n")) text.resize(text.size() - 2);
  // Inside a subform's frame the data control stands in the frame too.
  if (t.Place.Bucket >= 0)
    w.PutInBucket(t.Place.Bucket, text);
  else
    t.BodyText += "\r\n" + text;
  if (!t.InSubform || !t.CurrentControl) return;
  AddSubformLinkHints(w, *t.CurrentControl, recordSource, DataControlName(name));
}

void AddSubformLinkHints(FormWriter& w, const ControlDesign& subformControl,
                         const std::string& source, const std::string& dataControl) {
  ConversionSession& s = w.Session();
  const FormDesign& holder = subformControl.Owner();
  if (holder.Text("RecordSource").value_or("").empty() || source.empty()) return;
  const std::string parent = w.DataControlOf(holder.Name());
  AddHint(s, DataControlEntryHint{parent, dataControl + ".Recordset.MoveFirst"});
  AddHint(s, DataControlEntryHint{parent, dataControl + ".Recordset.Movelast"});
  AddHint(s, DataControlEntryHint{parent, dataControl + ".refresh"});
  if (subformControl.Text("LinkMasterFields").value_or("").empty() &&
      subformControl.Text("LinkChildFields").value_or("").empty())
    return;
  AddHint(s, DataControlEntryHint{parent, dataControl + ".RecordSource=\"" +
                                              SubformLinkSql(w, source, subformControl)});
}

std::string WriteDataControl(FormWriter& w, const std::string& name, long left, int type,
                             const std::string& source, long top, bool visible,
                             const std::optional<std::string>& formName) {
  ConversionSession& s = w.Session();
  w.LocatePage();
  const std::string dat = DataControlName(name);
  std::string text;
  AddLine(text, "Begin VB.Data " + dat);
  AddLine(text, "Caption = \"" + dat + "\"");
  AddLine(text, "Connect = \"Access\"");
  AddLine(text, "DatabaseName = \"" + (s.Options.RelativePaths ? std::string() : s.OutputPath) +
                    DatabaseFileName(s) + "\"");
  AddLine(text, "Exclusive = 0");
  AddLine(text, "Height = 300");
  AddLine(text, "Left = " + std::to_string(left + w.Text().Place.PageLeft));
  AddLine(text, "Options = 0");
  AddLine(text, "ReadOnly = " + std::to_string(type - 1));
  AddLine(text, "RecordsetType = " + std::to_string(type));
  if (!source.empty()) AddRecordSourceLine(text, w, dat, source);
  AddLine(text, "Top = " + std::to_string(top));
  if (formName) {
    AddHint(s, DataControlEntryHint{dat, ""});
    FillFields(s, source, name);
  }
  if (visible) {
    AddLine(text, "Width = 2700");
    AddHint(s, DataMoveHint{formName.value_or(""), dat});
  } else {
    AddLine(text, "Width = 1215");
  }
  AddLine(text, visible ? "Visible = True" : "Visible = False");
  AddLine(text, "End");
  return text;
}

std::string WriteAdoDataControl(FormWriter& w, const std::string& name, long left, int type,
                                const std::string& source, long top, bool visible,
                                const std::optional<std::string>& formName) {
  ConversionSession& s = w.Session();
  w.LocatePage();
  w.AddComponent(kAdoDataControlGuid, kAdoDataControlFile);
  const std::string dat = DataControlName(name);
  std::string text;
  AddLine(text, "Begin MSAdodcLib.Adodc " + dat);
  AddLine(text, "Height = 300");
  AddLine(text, "Left = " + std::to_string(left + w.Text().Place.PageLeft));
  AddLine(text, "Top = " + std::to_string(top));
  if (visible) {
    AddLine(text, "Width = 2700");
    AddHint(s, DataMoveHint{formName.value_or(""), dat});
  } else {
    AddLine(text, "Width = 1215");
  }
  AddLine(text, "_ExtentX = 5212");
  AddLine(text, "_ExtentY = 767");
  AddLine(text, "ConnectMode = 0");
  AddLine(text, "CursorLocation = 3");
  AddLine(text, "IsolationLevel = -1");
  AddLine(text, "ConnectionTimeout = 15");
  AddLine(text, "CommandTimeout = 30");
  AddLine(text, "CursorType = " + std::to_string(type + 1));
  AddLine(text, "LockType = 3");
  if (formName) {
    AddHint(s, DataControlEntryHint{dat, ""});
    AddLine(text, "CommandType = " + std::to_string(AdoCommandType(w, source, formName)));
    FillFields(s, source, name);
  }
  AddLine(text, "CursorOptions = 0");
  AddLine(text, "CacheSize = 50");
  AddLine(text, "MaxRecords = 0");
  AddLine(text, "BOFAction = 0");
  AddLine(text, "EOFAction = 0");
  AddLine(text, "ConnectStringType = 1");
  AddLine(text, "Appearance = 1");
  AddLine(text, "BackColor = -2147483643");
  AddLine(text, "ForeColor = -2147483640");
  AddLine(text, "Orientation = 0");
  AddLine(text, "Enabled = -1");
  AddLine(text, "Connect = \"" + s.Options.AdoConnect + "\"");
  AddLine(text, "OLEDBString = \"" + s.Options.AdoConnect + "\"");
  AddLine(text, "OLEDBFile = \"\"");
  AddLine(text, "DataSourceName = \"\"");
  AddLine(text, "OtherAttributes = \"\"");
  AddLine(text, "UserName = \"\"");
  AddLine(text, "Password = \"\"");
  AddLine(text, visible ? "Visible = -1" : "Visible = 0");
  AddAdoRecordSource(text, w, source, formName, dat);
  AddLine(text, "Caption = \"" + dat + "\"");
  AddFixedFontLines(text, kStdFontHead, "MS Sans Serif", "8.25");
  AddLine(text, "_Version = 393216");
  AddLine(text, "End");
  return text;
}

std::string WriteBindingsRecord(FormWriter& w, const std::string& text, bool isList,
                                bool emptyPicture) {
  ConversionSession& s = w.Session();
  // The records go to the binary file of the form being converted.
  std::string& frx = s.Form().Binary;
  const std::uintmax_t offset = frx.size();

  std::string record;
  if (emptyPicture) {
    record.assign(reinterpret_cast<const char*>(kEmptyPicture), sizeof kEmptyPicture);
  } else {
    // The length is one byte: a longer text is cut so the record stays whole.
    const std::string body = text.substr(0, 255);
    const FormTextSet& t = w.Text();
    if (s.Options.UseAdo || t.InRepeater) {
      record.assign(reinterpret_cast<const char*>(kAdoBindingsTag), sizeof kAdoBindingsTag);
      unsigned char kind[2] = {0x4E, 0x04};
      if (isList && s.Form().PlainListControl) {
        kind[0] = 0x68, kind[1] = 0x00;
      } else if (isList) {
        kind[0] = 0xF1, kind[1] = 0x03;
      } else if (t.InRepeater) {
        kind[0] = 0x03, kind[1] = 0x00;
      } else if (s.Options.ListboxType == 4 || s.Options.ListboxType == 5) {
        kind[0] = 0x2A, kind[1] = 0x00;
      }
      record += static_cast<char>(kind[0]);
      record += static_cast<char>(kind[1]);
      record.append(2, '\0');
    } else {
      record.assign(reinterpret_cast<const char*>(kDaoBindingsTag), sizeof kDaoBindingsTag);
      record += static_cast<char>(!isList ? 0x01 : s.Form().PlainListControl ? 0x10 : 0x2B);
      record.append(3, '\0');
    }
    record += static_cast<char>(body.size());
    record += body;
  }

  frx += record;
  return OffsetText(offset);
}

}  // namespace morvane

// Subform writers: an Access subform control becomes what its form's own
// properties choose. A datasheet (and a continuous form that cannot be
// edited) becomes a grid over a data control of its own; a continuous form
// that cannot be edited becomes a data repeater over a user control (built
// by the continuous-form converter); any other form is embedded: its
// controls are written into a frame that stands where the subform control
// stood. The link between parent and subform becomes code on the parent's
// data control that re-queries the subform's.
#pragma once

#include <string>

namespace morvane {

class FormDesign;
class FormWriter;
struct ConversionSession;

// 112: the writer of the current control.
void WriteSubform(FormWriter& w);

// A top form that Access shows as a datasheet or as a continuous form is
// converted as a form of one record at a time; the analysis says so and
// what to do for a list of records.
void NoteRecordListView(FormWriter& w, const FormDesign& form);

// What a subform's form becomes.
enum class SubformKind { Embedded, Repeater, GreenTreeGrid, SheridanGrid, DataGrid, DbGrid };
SubformKind ChooseSubformKind(const ConversionSession& s, const FormDesign& f);

// The public property of a continuous subform's user control through which
// the data repeater reaches a field: an identifier that is no word Visual
// Basic keeps and no member of a user control or its extender.
std::string RepeaterPropertyName(const std::string& field);

}  // namespace morvane

// What every control writer shares: the frame of one control (unique name
// and page, the text handed to its bucket, the hint record and the count),
// reads of the properties that the line tables compute with, and the guards
// that count as met when their property cannot be read.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "session/hint_records.h"

namespace morvane {

class DesignObject;
class ControlDesign;
class FormDesign;
class FormWriter;

// Step 1 of every writer: the current control gets its unique name and its
// page. Null when the writer has no control in hand.
const ControlDesign* BeginControl(FormWriter& w);
// The control's text opened by its first line: `begin` (the "Begin" and
// class) followed by CurrentControlName.
std::string OpenControlText(const FormWriter& w, std::string_view begin);
// Hands the built lines (each ended by CR LF) to PutControlText without the
// last line end.
void PutText(FormWriter& w, std::string text);
// The control's event record: OwnerFormName, the control's Access name and
// design, CurrentControlName and ParentControlName; `comboKind` for a combo
// box.
void AddControlHint(FormWriter& w, const ControlDesign& c, ControlEventKind kind,
                    int comboKind = 0);
// The analysis row of a control that is converted only in part: the owner
// form, the reason and CurrentControlName.
void AddReportHint(FormWriter& w, long reason);
void CountControl(FormWriter& w, int partial = 0);
// Closes a control's lines with "End", puts them into the form and counts
// the control (`partial` when it is converted only in part).
void CloseControl(FormWriter& w, std::string text, int partial = 0);
// CloseControl, then the control's event record.
void FinishControl(FormWriter& w, const ControlDesign& c, std::string text,
                   ControlEventKind eventRecord);

// The name of the data control of the form being walked.
std::string DataControlName(const FormWriter& w);
const FormDesign* CurrentFormOf(const FormWriter& w);
// Whether the control's holder is the form the walker stands in.
bool ParentIsCurrentForm(const FormWriter& w, const ControlDesign& c);
// The type of the control's holder; 0 when the holder is the form.
int ParentType(const ControlDesign& c);
// The first label whose holder is named `holder`, in the form's order.
const ControlDesign* AttachedLabel(const FormWriter& w, const std::string& holder);

// Property reads. Each is nullopt when the property cannot be read.
std::optional<std::string> Hex(const DesignObject& o, std::string_view property);
// The text with every CR LF turned into one blank.
std::optional<std::string> OneLine(const DesignObject& o, std::string_view property);
std::optional<long> Sum(const std::optional<long>& a, long b);
std::optional<long> Sum(const std::optional<long>& a, const std::optional<long>& b);
// A text converted as Visual Basic's Abs and CBool convert it, blanks
// around it allowed; nullopt for a text they refuse. A boolean is a number
// (true unless 0) or True, False and Access's Yes, No, On, Off.
std::optional<double> NumberOfText(std::string_view text);
std::optional<bool> BoolOfText(std::string_view text);
// The absolute value in default decimal form.
std::optional<std::string> AbsText(std::string_view text);

// The extent of a length property; nullopt when it cannot be read.
std::optional<std::string> ExtentOf(const DesignObject& o, std::string_view property);

// "_ExtentX = " and "_ExtentY = " of the width and the height.
void AddExtentLines(std::string& text, const DesignObject& o);
// Height, Left, Top and Width in this order.
void AddBoxLines(std::string& text, const FormWriter& w, const ControlDesign& c);
// Height, Left, TabIndex, TabStop, Top and Width: the box of a control in
// the tab order.
void AddTabBoxLines(std::string& text, const FormWriter& w, const ControlDesign& c);
// HelpContextID, ToolTipText and Tag in this order.
void AddHelpLines(std::string& text, const DesignObject& o);
// BackColor and ForeColor in this order.
void AddColorLines(std::string& text, const DesignObject& o);

// "Alignment ={AlignmentMap(TextAlign)}" when TextAlign is above 0; the map
// has no entry for 4 (distribute), which loses the line.
void AddAlignmentLine(std::string& text, const FormWriter& w, const ControlDesign& c);

// Guards over a read: a read that failed counts as met.
bool IsTrueOrUnread(const std::optional<bool>& v);
bool IsZeroOrUnread(const std::optional<long>& v);

// Whether the control has picture bytes; an unreadable PictureData counts
// as present, and extracting it then fails.
bool HasPicture(const ControlDesign& c);
// The Picture line of the control's picture, extracted from control `c` of
// `holder` into the form's .frx; nullopt when the picture could not be
// carried over.
std::optional<std::string> PictureLine(FormWriter& w, const std::string& holder,
                                       const ControlDesign& c);
// The holder of an image's picture: the form, or the holder's holder.
std::string PictureHolder(const ControlDesign& c);

}  // namespace morvane

// The form writer: turns the design of one Access form into the text of a
// Visual Basic form file (.frm) and its hint file (.hnt). It holds the state
// of the form under construction, the form header and sections, the walk
// over the controls with their placement and unique names, and the final
// assembly. The control writers, data controls and pictures build on it.
#pragma once

#include <array>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace morvane {

struct ConversionSession;
class DesignStore;

// The control names a form has given out, in order, with a case-blind index
// so that a clash is found without comparing against each name.
class UsedNames {
 public:
  void push_back(std::string name);
  void clear() {
    names_.clear();
    folded_.clear();
  }
  // Whether `name` is given out already, without regard to case.
  bool Contains(std::string_view name) const;
  size_t size() const { return names_.size(); }
  const std::string& operator[](size_t i) const { return names_[i]; }

 private:
  std::vector<std::string> names_;
  std::unordered_set<std::string> folded_;
};

class FormDesign;
class ControlDesign;

// An ActiveX component a form's Object lines name: its class id with
// version, and the file that holds it.
struct Component {
  const char* Guid;
  const char* File;
};

// Where the walk places controls: the offsets of the section, the subform or
// tab page being walked, and the section tops the form measured. A nested
// walk (a subform, a tab page) works on a copy and the walk after it finds
// the placement as it was (PlacementScope).
struct Placement {
  long SectionOffset = 0;
  long SubformTop = 0;
  long SubformLeft = 0;
  long TabShift = 0;
  // The left of the tab control being walked: the controls of its pages
  // stand in its client area.
  long TabLeft = 0;
  int PageIndex = 0;
  long PageLeft = 0;
  std::vector<long> PageBreakTops{0};
  // Section tops measured by WriteForm, in twips.
  long HeaderHeight = 0;
  long DetailTop = 0;
  long PageFooterTop = 0;
  long FormFooterTop = 0;
  long Total = 0;
  // Inside a container (a subform's frame, a tab control) every control's
  // text goes to the container's bucket; -1 routes by section.
  int Bucket = -1;
  // The page of the tab control whose controls are being written, -1 when
  // none: the names of its controls are listed on that page.
  int TabPage = -1;
};

// The state of one form under construction; one record for the whole walk,
// subform passes included.
struct FormTextSet {
  std::string HeaderText;                  // "VERSION 5.00" and the Object lines
  std::string BodyText;                    // Begin VB.Form: properties, then controls
  std::array<std::string, 5> SectionText;  // 1..4: header, footer, page header, page footer
  std::string PageTabHead;
  std::string PageTabBody;
  std::string OwnerFormName;
  const FormDesign* CurrentForm = nullptr;
  const ControlDesign* CurrentControl = nullptr;
  const ControlDesign* CurrentTabControl = nullptr;
  std::string ParentFormName;
  std::string ParentControlName;
  bool InSubform = false;
  bool HasPageBreaks = false;
  bool InTabControl = false;
  bool InRepeater = false;
  bool HeaderOnly = false;
  Placement Place;
  std::vector<int> PageControlCounts;
  int FormControlCount = 0;
  int FormPartialCount = 0;
  UsedNames UsedControlNames;
  // Controls converted or named as not converted; the rest are named at the
  // end of the form, so that none is lost in silence.
  std::set<const ControlDesign*> Accounted;
  std::vector<std::string> TabUsedNames;
  std::vector<std::string> OptionGroupNames;
  std::vector<std::string> ComponentFiles;
  std::vector<std::string> ComponentGuids;
  std::array<int, 4> AlignmentMap{3, 0, 2, 1};
  std::string PictureReference;
  // The names written on each page of the tab control being walked.
  std::vector<std::vector<std::string>> TabPageNames;
  // The forms a walk is inside of, the top form first: a subform that shows
  // one of them again would never end.
  std::vector<std::string> FormChain;
  // The data control of each form a walk is inside of, innermost last; a
  // form shown a second time has a data control of its own.
  std::vector<std::pair<std::string, std::string>> DataControls;
  // The forms (lower case) whose data control the form holds already.
  std::set<std::string> WalkedForms;
  // The walk writes controls whose module stays behind (a form shown a
  // second time, a repeated form's header): no event code is asked for.
  bool WithoutCode = false;
};

// Keeps the placement of a walk for as long as it lives and puts it back when
// it ends, so that a nested walk leaves the outer one's placement as it was.
class PlacementScope {
 public:
  explicit PlacementScope(FormTextSet& t) : t_(t), saved_(t.Place) {}
  ~PlacementScope() { t_.Place = std::move(saved_); }
  PlacementScope(const PlacementScope&) = delete;
  PlacementScope& operator=(const PlacementScope&) = delete;

 private:
  FormTextSet& t_;
  Placement saved_;
};

class FormWriter {
 public:
  FormWriter(ConversionSession& s, DesignStore& store);

  // Writes the form's text, binary records and hint records into the
  // session's form state. False with a message when the design cannot be
  // opened; the text stays empty then.
  bool ConvertForm(const std::string& formName, std::string* err = nullptr);
  // One walk over a form; calls itself for embedded subforms.
  void WriteForm(const std::string& formName, bool isSubform, int pass, bool headerOnly);

  ConversionSession& Session() const { return s_; }
  DesignStore& Store() { return store_; }
  FormTextSet& Text() { return t_; }
  const FormTextSet& Text() const { return t_; }

  // Registers an ActiveX component for the Object lines; a file already
  // listed is ignored.
  void AddComponent(const std::string& guid, const std::string& file);
  void AddComponent(const Component& c) { AddComponent(c.Guid, c.File); }
  // finish false: clears the components and the used names and starts the
  // header with "VERSION 5.00"; finish true: appends the Object lines.
  void WriteComponentLines(bool finish);

  // Sets the session's CurrentControlName to a name unique in the form.
  void MakeControlName(const ControlDesign& c);
  // The name of the data control of `formName` in the walk: its own, or the
  // one of this showing of a form shown twice.
  std::string DataControlOf(const std::string& formName) const;
  // A name unique in the form for a control the writers make themselves (a
  // grid's data control); registered like a control's.
  std::string UniqueControlName(const std::string& name);
  // Routes a control's finished text to the body, a section frame or the
  // page-break tab control.
  void PutControlText(const std::string& text);
  // The bucket PutControlText would choose for the current control, and the
  // text of a bucket (0 the page-break tab, 1 the body, 21..24 the section
  // frames).
  int ControlBucket() const;
  std::string& BucketText(int bucket);
  // Appends a control's text to a bucket, in that bucket's way.
  void PutInBucket(int bucket, const std::string& text);
  // Opens the frame of section n (1..4) of the top form.
  void CreateSection(const FormDesign& form, int n);
  // Page of a page-broken form that holds the current control.
  void LocatePage();
  // {Left} and {Top} of the current control; nullopt when unreadable.
  std::optional<long> ControlLeft(const ControlDesign& c) const;
  std::optional<long> ControlTop(const ControlDesign& c) const;
  // SectionOffset from a control's section, as the walk sets it; `adjust`
  // applies the page-break shift to the footers.
  void SetSectionOffset(const ControlDesign& c, bool adjust = true);

 private:
  void WriteFormHeader(const FormDesign& form);
  void WalkControls();
  void ListOnTabPage(const std::string& text);

 public:
  // Names in the analysis each control of `form` that no writer took.
  void AccountForControls(const FormDesign& form);
  // Sends a control to the writer of its type.
  void WriteControl(const ControlDesign& c);

 private:
  ConversionSession& s_;
  DesignStore& store_;
  FormTextSet t_;
  bool totalValid_ = true;  // the section heights summed within 16 bits
};

}  // namespace morvane

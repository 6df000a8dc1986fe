// Form procedure injection: the initialisation the hint processor collected
// goes into Form_Load and Form_Activate, behind the header where the Access
// code has the procedure and in a new procedure at the end otherwise; a
// report gets DataReport_Initialize.
#include "translator/form_injection.h"

#include "session/conversion_session.h"
#include "session/converters.h"
#include "session/naming.h"
#include "translator/text_helpers.h"

namespace morvane {

namespace {

// The form's picture, stretched or tiled over the form. These lines count in
// no statistic.
void PictureBlock(ModuleTranslation& t) {
  const ConversionSession& s = t.Session;
  if (s.Form().FormPictureStretched) {
    t.Write("Me.PaintPicture Me.Picture, 0, 0, Me.Width, Me.Height");
  } else if (s.Form().FormPictureTiled) {
    for (const char* line :
         {"Dim dblX As Double", "Dim dblY As Double", "Dim dblWidth As Double",
          "Dim dblHeight As Double", "", "dblWidth = Me.ScaleX(Me.Picture.Width)",
          "dblHeight = Me.ScaleY(Me.Picture.Height)", "For dblX = 0 To Me.Width step dblWidth",
          "For dblY = 0 To Me.Height step dblHeight", "PaintPicture Me.Picture, dblX, dblY ",
          "Next", "Next"})
      t.Write(line);
  }
}

// A line the injection adds and counts.
void Counted(ModuleTranslation& t, const std::string& line) {
  t.Write(line);
  Bump(t.TotalLines);
  Bump(t.CodeLines);
}

void LoadCodeAndCaptions(ModuleTranslation& t) {
  const ConversionSession& s = t.Session;
  PictureBlock(t);
  if (!s.Form().FormLoadCode.empty()) t.Write(s.Form().FormLoadCode);
  if (!s.Form().LabelCaptionCode.empty()) t.Write(s.Form().LabelCaptionCode);
}

// The written line is the header of the Sub `name`. The plain rule looks for
// "Sub <name>" anywhere, which also fires on a comment or a string holding
// it, and on a longer name: the injected code would then land outside any
// procedure or in another one. Such a hit is passed over.
bool IsSubHeader(ModuleTranslation& t, const std::string& written, std::string_view name) {
  const std::string text = "Sub " + std::string(name);
  if (FindNoCase(written, text) == std::string::npos) return false;
  for (std::string_view start : {"Sub ", "Private Sub ", "Public Sub "}) {
    if (!StartsWithNoCase(written, start)) continue;
    const std::string_view rest = std::string_view(written).substr(start.size());
    if (StartsWithNoCase(rest, name) &&
        (rest.size() == name.size() ||
         !IsIdentifierChar(static_cast<unsigned char>(rest[name.size()]))))
      return true;
  }
  ++t.PassedHits;
  return false;
}

}  // namespace

void InjectAfterLine(ModuleTranslation& t, const std::string& written) {
  // Both headers hold "Sub Form_": a line without it (or without its "_",
  // which is quicker to look for) is neither.
  if (written.find('_') == std::string::npos ||
      FindNoCase(written, "Sub Form_") == std::string::npos)
    return;
  const ConversionSession& s = t.Session;
  if (IsSubHeader(t, written, "Form_Load")) {
    t.FormLoadSeen = true;
    if (s.Form().InitCalls[0] || s.Form().InitCalls[1]) Counted(t, "Dim vReturnValue as variant");
    if (s.Form().InitCalls[0]) Counted(t, "vReturnValue=InitializeListBoxes()");
    if (s.Form().InitCalls[1]) Counted(t, "vReturnValue=InitializeComboBoxes()");
    LoadCodeAndCaptions(t);
  }
  if (IsSubHeader(t, written, "Form_Activate")) {
    t.FormActivateSeen = true;
    if (s.Form().InitCalls[2]) {
      Counted(t, "Dim vReturnValue as variant");
      Counted(t, "vReturnValue=InitialDataCtlCaptions()");
    }
  }
}

void InjectAtEnd(ModuleTranslation& t) {
  const ConversionSession& s = t.Session;
  const bool loadWork = s.Form().InitCalls[0] || s.Form().InitCalls[1] ||
                        s.Form().FormPictureStretched || s.Form().FormPictureTiled ||
                        !s.Form().FormLoadCode.empty() || !s.Form().LabelCaptionCode.empty();
  if (!t.FormLoadSeen && loadWork) {
    t.Write("Private Sub Form_Load()");
    Bump(t.TotalLines, 2);
    Bump(t.CodeLines, 2);
    if (s.Form().InitCalls[0]) Counted(t, "Call InitializeListBoxes()");
    if (s.Form().InitCalls[1]) Counted(t, "Call InitializeComboBoxes()");
    if (s.Form().InitCalls[2]) Counted(t, "Call InitialDataCtlCaptions()");
    LoadCodeAndCaptions(t);
    t.Write("End Sub");
    Bump(t.SubCount);
  }
  if (!t.FormActivateSeen && s.Form().InitCalls[2]) {
    t.Write("Private Sub Form_Activate()");
    t.Write("Dim vReturnValue as variant");
    t.Write("vReturnValue=InitialDataCtlCaptions()");
    t.Write("End Sub");
    Bump(t.TotalLines, 4);
    Bump(t.CodeLines, 4);
    Bump(t.SubCount);
  }
  if (t.Mode == kModeReport && (!s.Form().ReportInitCode.empty() || t.FormLoadSeen)) {
    t.Write("Private Sub DataReport_Initialize()");
    t.Write(s.Form().ReportInitCode);
    if (t.FormLoadSeen) t.Write("If DataReport_Open() Then Unload Me");
    t.Write("End Sub");
    Bump(t.SubCount);
    Bump(t.TotalLines, 3);
    Bump(t.CodeLines, 3);
  }
}

}  // namespace morvane

// The text of hint records for test assertions.
#include "support/hint_text.h"

#include "session/hint_processor.h"

namespace morvane::test {

namespace {

std::string Lines(std::initializer_list<std::string> fields) {
  std::string out;
  for (const auto& f : fields) out += f + "\r\n";
  return out;
}

std::string Flag(bool b) { return b ? "True" : "False"; }

struct Render {
  std::string operator()(const DataControlEntryHint& h) {
    return Lines({"AddDataCtlEntry", h.DataControl, h.Line});
  }
  std::string operator()(const ListEntryHint& h) {
    return Lines({h.Combo ? "AddComboboxEntry" : "AddListboxEntry", h.FormName, h.RowSource,
                  h.ControlName, Flag(h.IsValueList), Flag(h.PlainControl)});
  }
  std::string operator()(const ControlCodeHint& h) {
    const std::string keyword = std::string(ControlEventKindName(h.Kind)) + "Code";
    if (h.Kind == ControlEventKind::ComboBox)
      return Lines({keyword, h.FormName, h.AccessName, h.VbName, std::to_string(h.ComboKind),
                    h.SubformControl});
    return Lines({keyword, h.FormName, h.AccessName, h.VbName, h.SubformControl});
  }
  std::string operator()(const OutputCodeHint& h) {
    return Lines({"OutputCode", h.FormName, Flag(h.AsForm)});
  }
  std::string operator()(const ReportRowHint& h) {
    return Lines({"AddToReport", h.ModuleName, std::to_string(h.ReasonID), h.CodeLine,
                  std::to_string(h.LineNumber), h.TranslatedLine, h.Routine});
  }
  std::string operator()(const FormCodeHint& h) {
    return Lines({"FormCode", h.FormName, h.SubformControl});
  }
  std::string operator()(const DataMoveHint& h) {
    return Lines({"AddDataMove", h.FormName, h.DataControl});
  }
  std::string operator()(const ContinuousFormHint& h) {
    return Lines({"CForm", h.FormName, h.ControlName});
  }
  std::string operator()(const DatasheetGridHint& h) { return Lines({"DBGrid", h.FormName}); }
  std::string operator()(const FormLoadLineHint& h) { return Lines({"FLS", h.Line}); }
  std::string operator()(const ControlCountsHint& h) {
    return Lines({"CtlCounts", std::to_string(h.Controls), std::to_string(h.PartiallyConverted)});
  }
  std::string operator()(const TooManyControlsHint& h) {
    return Lines({"TooManyControls", h.FormName});
  }
  std::string operator()(const FormImageHint& h) {
    return Lines({"FormImage", h.SizeMode, h.Tiling});
  }
  std::string operator()(const LabelCaptionHint& h) {
    return Lines({"LabelCaptionFromCode", h.ControlName, h.Caption});
  }
  std::string operator()(const RenameControlClassHint& h) {
    return Lines({"RenameCFormProgID", h.OldName, h.NewName});
  }
};

}  // namespace

std::string HintText(const std::vector<HintRecord>& records) {
  std::string out;
  for (const auto& r : records) out += std::visit(Render{}, r);
  return out;
}

}  // namespace morvane::test

// Per-form reset of the session and the packing of the option word.
#include "session/conversion_session.h"

#include <cstdlib>

namespace morvane {

void ConversionSession::ResetFormFields() {
  DatasheetForms.assign(1, "");
  FormPictureTiled = false;
  FormPictureStretched = false;
  UsesOpenArgs = false;
  UsesFilter = false;
  UsesFilterOn = false;
  UsesOrderBy = false;
  UsesOrderByOn = false;
  FormFailed = false;
  FormLoadCode.clear();
  LabelCaptionCode.clear();
  InitCalls = {};
}

static char Digit(int v) { return static_cast<char>('0' + std::abs(v) % 10); }

std::string PackOptionWord(const ConversionSession& s) {
  std::string w;
  w += Digit(s.IsVb5);
  w += Digit(s.ListboxType);
  w += Digit(s.ListboxBound);
  w += Digit(s.ComboboxType);
  w += Digit(s.ComboboxBound);
  w += Digit(s.StandardControls);
  w += Digit(s.IsMdi);
  w += Digit(s.WantRelativePaths);
  w += Digit(s.WantSsOptionSet);
  w += Digit(s.UseAdo);
  w += Digit(s.WantDatePicker);
  return w;
}

bool UnpackOptionWord(ConversionSession& s, const std::string& outputPath,
                      const std::string& optionWord) {
  s.OutputPath = outputPath;
  s.OptionWord = optionWord;
  s.OptionWordLength = static_cast<int>(optionWord.size());
  auto flag = [&](size_t i, bool fallback) {
    return i < optionWord.size() ? optionWord[i] != '0' : fallback;
  };
  auto digit = [&](size_t i, int fallback) {
    return i < optionWord.size() ? optionWord[i] - '0' : fallback;
  };
  s.IsVb5 = flag(0, s.IsVb5);
  s.ListboxType = digit(1, s.ListboxType);
  s.ListboxBound = flag(2, s.ListboxBound);
  s.ComboboxType = digit(3, s.ComboboxType);
  s.ComboboxBound = flag(4, s.ComboboxBound);
  s.StandardControls = flag(5, s.StandardControls);
  s.IsMdi = flag(6, s.IsMdi);
  s.RelativePaths = flag(7, s.RelativePaths);
  s.SsOptionSet = flag(8, s.SsOptionSet);
  s.UseAdo = flag(9, s.UseAdo);
  s.DatePicker = true;
  s.DatePicker = flag(10, s.DatePicker);
  // The working store is the support database here; its tblFields is always
  // there once the database has been opened.
  return s.SupportDb == nullptr;
}

}  // namespace morvane

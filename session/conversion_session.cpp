// The session's object states and the packing of the option word.
#include "session/conversion_session.h"

#include <cstdlib>

namespace morvane {

FormState& ConversionSession::PushForm(const std::string& name) {
  forms_.states.push_back(std::make_unique<FormState>());
  forms_.states.back()->Name = name;
  return *forms_.states.back();
}

std::unique_ptr<FormState> ConversionSession::PopForm() {
  if (forms_.states.size() < 2) return nullptr;
  std::unique_ptr<FormState> state = std::move(forms_.states.back());
  forms_.states.pop_back();
  return state;
}

static char Digit(int v) { return static_cast<char>('0' + std::abs(v) % 10); }

std::string PackOptionWord(const RunOptions& o) {
  std::string w;
  w += Digit(o.IsVb5);
  w += Digit(o.ListboxType);
  w += Digit(o.ListboxBound);
  w += Digit(o.ComboboxType);
  w += Digit(o.ComboboxBound);
  w += Digit(o.StandardControls);
  w += Digit(o.IsMdi);
  w += Digit(o.RelativePaths);
  w += Digit(o.SsOptionSet);
  w += Digit(o.UseAdo);
  w += Digit(o.DatePicker);
  return w;
}

bool UnpackOptionWord(ConversionSession& s, const std::string& outputPath,
                      const std::string& optionWord) {
  s.OutputPath = outputPath;
  s.OptionWord = optionWord;
  s.OptionWordLength = static_cast<int>(optionWord.size());
  // The working store is the support database here; its tblFields is always
  // there once the database has been opened.
  return s.SupportDb == nullptr;
}

}  // namespace morvane

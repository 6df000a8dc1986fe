// Random damage to export text for the fuzz tests of the parser and the
// design loader.
#pragma once

#include <random>
#include <string>

#include "platform/text_file.h"

namespace morvane::test {

// One random edit of the text: the kinds of damage real files show
// (truncation, lost or doubled lines, stray bytes, broken quotes).
inline std::string MutateExport(std::string text, std::mt19937* rng) {
  auto pick = [rng](size_t n) {
    return n == 0 ? 0 : std::uniform_int_distribution<size_t>(0, n - 1)(*rng);
  };
  static const std::string kTokens[] = {
      "Begin",      "End", "\"",  " = Begin",         "0x", "=", "\n",
      "NotDefault", "\\",  "\\0", "CodeBehindForm\n", ","};
  switch (pick(7)) {
    case 0:  // truncate
      text.resize(pick(text.size() + 1));
      break;
    case 1: {  // drop a line
      auto lines = SplitLines(text);
      if (!lines.empty()) lines.erase(lines.begin() + static_cast<long>(pick(lines.size())));
      text = JoinCrLf(lines);
      break;
    }
    case 2: {  // duplicate a line
      auto lines = SplitLines(text);
      if (!lines.empty()) {
        size_t i = pick(lines.size());
        lines.insert(lines.begin() + static_cast<long>(i), lines[i]);
      }
      text = JoinCrLf(lines);
      break;
    }
    case 3:  // overwrite a byte with any value
      if (!text.empty()) text[pick(text.size())] = static_cast<char>(pick(256));
      break;
    case 4:  // insert a token
      text.insert(pick(text.size() + 1), kTokens[pick(std::size(kTokens))]);
      break;
    case 5:  // delete a run
      if (!text.empty()) {
        size_t at = pick(text.size());
        text.erase(at, pick(40));
      }
      break;
    default: {  // swap two lines
      auto lines = SplitLines(text);
      if (lines.size() > 1) std::swap(lines[pick(lines.size())], lines[pick(lines.size())]);
      text = JoinCrLf(lines);
      break;
    }
  }
  return text;
}

}  // namespace morvane::test

// The in-memory text file.
#include "platform/text_document.h"

#include "platform/text_file.h"

namespace morvane {

TextDocument TextDocument::FromBytes(std::string_view bytes) {
  TextDocument d;
  d.Append(bytes);
  return d;
}

void TextDocument::SetLines(std::vector<std::string> lines) {
  lines_ = std::move(lines);
  open_ = false;
  pendingCr_ = false;
  SplitBreaks(0, lines_.size());
}

void TextDocument::Append(std::string_view bytes) {
  size_t i = 0;
  if (pendingCr_ && !bytes.empty() && bytes[0] == '\n') ++i;
  if (i < bytes.size()) pendingCr_ = false;
  if (!open_ && i < bytes.size()) {
    lines_.emplace_back();
    open_ = true;
  }
  while (i < bytes.size()) {
    const size_t end = FindLineBreak(bytes, i);
    if (end == std::string_view::npos) {
      lines_.back().append(bytes.substr(i));
      return;
    }
    lines_.back().append(bytes.substr(i, end - i));
    open_ = false;
    i = end + 1;
    if (bytes[end] == '\r') {
      if (i < bytes.size() && bytes[i] == '\n')
        ++i;
      else if (i == bytes.size())
        pendingCr_ = true;
    }
    if (i < bytes.size()) {
      lines_.emplace_back();
      open_ = true;
    }
  }
}

void TextDocument::AppendLines(const std::vector<std::string>& lines) {
  for (const auto& l : lines) {
    Append(l);
    Append("\r\n");
  }
}

void TextDocument::AppendLines(std::vector<std::string>&& lines) {
  for (auto& l : lines) {
    // A line without a break of its own behind a finished line becomes a
    // line as it is.
    if (!open_ && !pendingCr_ && FindLineBreak(l, 0) == std::string_view::npos) {
      lines_.push_back(std::move(l));
      continue;
    }
    Append(l);
    Append("\r\n");
  }
}

void TextDocument::SplitBreaks(size_t from, size_t to) {
  for (size_t i = from; i < to && i < lines_.size(); ++i) {
    if (FindLineBreak(lines_[i], 0) == std::string_view::npos) continue;
    std::vector<std::string> parts;
    TextDocument piece;
    piece.Append(lines_[i]);
    piece.Append("\r\n");
    parts = std::move(piece.lines_);
    lines_.erase(lines_.begin() + static_cast<long>(i));
    lines_.insert(lines_.begin() + static_cast<long>(i), parts.begin(), parts.end());
    to += parts.size() - 1;
    i += parts.size() - 1;
  }
}

std::string TextDocument::Bytes() const {
  std::string out = JoinCrLf(lines_);
  // An open last line has no line end of its own.
  if (open_ && !out.empty()) out.resize(out.size() - 2);
  return out;
}

}  // namespace morvane

// Text file helpers shared by every writer of the system.
#include "platform/text_file.h"

#include <cstdint>
#include <cstring>
#include <fstream>
#include <iterator>

namespace morvane {

size_t FindLineBreak(std::string_view text, size_t from) {
  size_t i = from;
  // Eight bytes at a time while none of them is below 14 (CR is 13, LF 10):
  // the test is exact for bytes below 128 and only sends higher ones to the
  // byte loop. The library's find_first_of calls memchr on the two-character
  // set once per character of the text.
  constexpr uint64_t kOnes = 0x0101010101010101ull, kHighs = 0x8080808080808080ull;
  for (; i + 8 <= text.size(); i += 8) {
    uint64_t word;
    std::memcpy(&word, text.data() + i, 8);
    if (((word - kOnes * 14) & ~word & kHighs) != 0) break;
  }
  for (; i < text.size(); ++i)
    if (text[i] == '\r' || text[i] == '\n') return i;
  return std::string_view::npos;
}

namespace {

template <typename Line>
std::vector<Line> Split(std::string_view text) {
  std::vector<Line> lines;
  const size_t n = text.size();
  size_t start = 0;
  for (size_t i = FindLineBreak(text, 0); i != std::string_view::npos;
       i = FindLineBreak(text, start)) {
    lines.emplace_back(text.substr(start, i - start));
    if (text[i] == '\r' && i + 1 < n && text[i + 1] == '\n') ++i;
    start = i + 1;
  }
  if (start < n) lines.emplace_back(text.substr(start));
  return lines;
}

}  // namespace

std::vector<std::string> SplitLines(std::string_view text) { return Split<std::string>(text); }

std::vector<std::string_view> SplitLineViews(std::string_view text) {
  return Split<std::string_view>(text);
}

std::string JoinCrLf(const std::vector<std::string>& lines) {
  std::string out;
  size_t size = 0;
  for (const auto& l : lines) size += l.size() + 2;
  out.reserve(size);
  for (const auto& l : lines) {
    out += l;
    out += "\r\n";
  }
  return out;
}

bool ReadFileBytes(const std::filesystem::path& path, std::string* bytes, std::string* err) {
  std::ifstream in(path, std::ios::binary);
  if (!in) {
    if (err) *err = "cannot open " + path.string() + " for reading";
    return false;
  }
  // Read in blocks: an iterator over the stream takes a call per byte.
  bytes->clear();
  char block[1 << 16];
  for (std::streamsize got; (got = in.rdbuf()->sgetn(block, sizeof block)) > 0;)
    bytes->append(block, static_cast<size_t>(got));
  if (in.bad()) {
    if (err) *err = "cannot read " + path.string();
    return false;
  }
  return true;
}

static bool WriteWithMode(const std::filesystem::path& path, std::string_view bytes,
                          std::ios::openmode mode, std::string* err) {
  std::ofstream out(path, std::ios::binary | mode);
  if (!out) {
    if (err) *err = "cannot open " + path.string() + " for writing";
    return false;
  }
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  out.close();
  if (!out) {
    if (err) *err = "cannot write " + path.string();
    return false;
  }
  return true;
}

bool WriteFileBytes(const std::filesystem::path& path, std::string_view bytes, std::string* err) {
  return WriteWithMode(path, bytes, std::ios::trunc, err);
}

bool AppendFileBytes(const std::filesystem::path& path, std::string_view bytes, std::string* err) {
  return WriteWithMode(path, bytes, std::ios::app, err);
}

bool ReadTextLines(const std::filesystem::path& path, std::vector<std::string>* lines,
                   std::string* err) {
  std::string bytes;
  if (!ReadFileBytes(path, &bytes, err)) return false;
  *lines = SplitLines(bytes);
  return true;
}

bool WriteTextLines(const std::filesystem::path& path, const std::vector<std::string>& lines,
                    std::string* err) {
  return WriteFileBytes(path, JoinCrLf(lines), err);
}

}  // namespace morvane

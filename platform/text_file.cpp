// Text file helpers shared by every writer of the system.
#include "platform/text_file.h"

#include <fstream>
#include <iterator>

namespace morvane {

std::vector<std::string> SplitLines(std::string_view text) {
  std::vector<std::string> lines;
  std::string current;
  bool pending = false;
  for (size_t i = 0; i < text.size(); ++i) {
    char c = text[i];
    if (c == '\r' || c == '\n') {
      lines.push_back(std::move(current));
      current.clear();
      pending = false;
      if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
    } else {
      current.push_back(c);
      pending = true;
    }
  }
  if (pending) lines.push_back(std::move(current));
  return lines;
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
  bytes->assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
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

// A fresh directory under the system's temporary directory, removed with the
// object; and small file helpers for tests.
#pragma once

#include <filesystem>
#include <string>

namespace morvane::test {

class TempDir {
 public:
  TempDir();
  ~TempDir();
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;
  const std::filesystem::path& path() const { return path_; }
  std::filesystem::path operator/(const std::string& name) const { return path_ / name; }

 private:
  std::filesystem::path path_;
};

// Writes text as it stands (no line-end conversion), creating folders.
void WriteFile(const std::filesystem::path& file, const std::string& text);
std::string ReadFile(const std::filesystem::path& file);
// Turns "\n" into "\r\n" so tests can be written with plain line ends.
std::string Crlf(const std::string& text);

}  // namespace morvane::test

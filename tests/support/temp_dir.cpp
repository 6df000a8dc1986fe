// Temporary directories and file helpers for tests.
#include "support/temp_dir.h"

#include <fstream>
#include <iterator>
#include <random>

namespace morvane::test {

TempDir::TempDir() {
  std::random_device rd;
  for (;;) {
    auto candidate = std::filesystem::temp_directory_path() /
                     ("morvane-test-" + std::to_string(rd()) + std::to_string(rd()));
    if (std::filesystem::create_directory(candidate)) {
      path_ = candidate;
      return;
    }
  }
}

TempDir::~TempDir() {
  std::error_code ec;
  std::filesystem::remove_all(path_, ec);
}

void WriteFile(const std::filesystem::path& file, const std::string& text) {
  if (file.has_parent_path()) std::filesystem::create_directories(file.parent_path());
  std::ofstream out(file, std::ios::binary);
  out << text;
}

std::string ReadFile(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

std::string Crlf(const std::string& text) {
  std::string out;
  for (char c : text) {
    if (c == '\n') out += '\r';
    out += c;
  }
  return out;
}

}  // namespace morvane::test

// Running the real binary from tests.
#include "support/run_command.h"

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>

#include "support/temp_dir.h"

namespace morvane::test {

namespace {

std::string Quote(const std::string& s) {
  std::string out = "'";
  for (char c : s) out += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return out + "'";
}

}  // namespace

CommandResult RunMorvane(const std::vector<std::string>& args, const std::string& shell) {
  TempDir scratch;
  std::string cmd = (shell.empty() ? "" : shell + "; exec ") + Quote(MORVANE_BINARY);
  for (const auto& a : args) cmd += " " + Quote(a);
  cmd += " </dev/null >" + Quote((scratch / "out").string()) + " 2>" +
         Quote((scratch / "err").string());
  int raw = std::system(cmd.c_str());
  CommandResult r;
  r.status = WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
  r.out = ReadFile(scratch / "out");
  r.err = ReadFile(scratch / "err");
  return r;
}

std::vector<std::pair<std::string, std::string>> Snapshot(const std::string& dir) {
  std::vector<std::pair<std::string, std::string>> files;
  for (const auto& e : std::filesystem::recursive_directory_iterator(dir)) {
    if (!e.is_regular_file()) continue;
    files.emplace_back(std::filesystem::relative(e.path(), dir).string(), ReadFile(e.path()));
  }
  std::sort(files.begin(), files.end());
  return files;
}

}  // namespace morvane::test

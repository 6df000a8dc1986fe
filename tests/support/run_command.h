// Runs the morvane binary (or any command) and collects what it printed.
#pragma once

#include <string>
#include <vector>

namespace morvane::test {

struct CommandResult {
  int status = -1;  // exit status, or -1 when it did not exit normally
  std::string out;
  std::string err;
};

// Runs MORVANE_BINARY with the arguments, stdin from /dev/null. `shell`, when
// given, is shell text run ahead of it in the same shell (a `ulimit`, say).
CommandResult RunMorvane(const std::vector<std::string>& args, const std::string& shell = "");

// A map of every file below `dir` (relative path -> bytes), to compare trees.
std::vector<std::pair<std::string, std::string>> Snapshot(const std::string& dir);

}  // namespace morvane::test

// Where the Jet database fixtures are.
#include "support/fixtures.h"

#include <cstdlib>

namespace morvane::test {

namespace {

std::filesystem::path Wanted() {
  const char* set = std::getenv("MORVANE_JET_FIXTURES");
  return set && *set ? std::filesystem::path(set) : std::filesystem::path(MORVANE_FIXTURES_DIR);
}

}  // namespace

std::filesystem::path JetFixtures() {
  std::error_code ec;
  std::filesystem::path dir = Wanted();
  return std::filesystem::is_directory(dir, ec) ? dir : std::filesystem::path();
}

std::string NoJetFixturesReason() {
  return "no Jet database fixtures in " + Wanted().string() +
         " (set MORVANE_JET_FIXTURES to the folder that holds them)";
}

}  // namespace morvane::test

// The real Jet databases some tests read. They live outside the checkout, so
// a plain clone has none: the tests that need them skip, saying why.
#pragma once

#include <filesystem>
#include <string>

namespace morvane::test {

// The folder of the Jet database fixtures: MORVANE_JET_FIXTURES when it is
// set, else the fixtures folder next to the checkout. Empty when that folder
// does not exist.
std::filesystem::path JetFixtures();
// Why the tests that need the fixtures are skipped.
std::string NoJetFixturesReason();

}  // namespace morvane::test

// Skips the current test when the Jet database fixtures are not there.
#define MORVANE_NEED_JET_FIXTURES() \
  if (::morvane::test::JetFixtures().empty()) GTEST_SKIP() << ::morvane::test::NoJetFixturesReason()

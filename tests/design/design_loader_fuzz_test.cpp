// Randomly damaged form and report texts through the parser and the loader,
// from a fixed seed, sometimes damage on damage: each loads or gives a
// "file:line:" message on a line of the input, and every property of a
// loaded design reads without a crash.
#include <gtest/gtest.h>

#include <random>

#include "design/design_loader.h"
#include "tests/design/design_texts.h"
#include "tests/platform/export_mutator.h"

namespace morvane {
namespace {

void ReadEverything(const DesignObject& object) {
  const ExportBlock* block = object.Block();
  if (block)
    for (const auto& p : block->Properties) {
      (void)object.Text(p.Key);
      (void)object.Number(p.Key);
      (void)object.Flag(p.Key);
      (void)object.Bytes(p.Key);
    }
  for (const char* name : {"Name", "Visible", "BorderStyle", "OnClick", "Caption", "Height"})
    (void)object.Text(name);
}

TEST(DesignLoaderFuzz, DamagedDesignsLoadOrFailCleanly) {
  std::mt19937 rng(7);
  const char* seeds[] = {test::kCustomersForm, test::kSalesReport, test::kLaterForm};
  int loaded = 0, failed = 0;
  std::string text;
  for (int round = 0; round < 1500; ++round) {
    if (round % 4 != 3) text = seeds[round % 3];
    for (int e = 1 + static_cast<int>(rng() % 3); e > 0; --e) text = test::MutateExport(text, &rng);
    const auto lines = SplitLines(text);
    std::string err;
    auto design = LoadDesign(lines, "fuzz.txt", "fuzz", &err);
    if (!design) {
      ++failed;
      ASSERT_EQ(err.rfind("fuzz.txt:", 0), 0u) << err;
      const int line = std::atoi(err.c_str() + 9);
      ASSERT_GE(line, 1) << err;
      ASSERT_LE(line, static_cast<int>(std::max<size_t>(lines.size(), 1))) << err;
      continue;
    }
    ++loaded;
    ReadEverything(*design);
    for (const auto& s : design->Sections()) ReadEverything(s);
    for (const auto& g : design->GroupLevels()) ReadEverything(g);
    for (const auto& c : design->Controls()) {
      ReadEverything(c);
      (void)c.Parent().Name();
      (void)c.Pages();
      (void)c.EventProcPrefix();
      ASSERT_LE(c.Controls().size(), design->Controls().size());
    }
    (void)design->EmbeddedMacros();
  }
  // Both ends are exercised.
  EXPECT_GT(loaded, 100);
  EXPECT_GT(failed, 200);
}

}  // namespace
}  // namespace morvane

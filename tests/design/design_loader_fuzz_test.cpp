// Randomly damaged form and report texts through the loader, from a fixed
// seed: each loads or gives a "file:line:" message, and every property of a
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
  int loaded = 0;
  for (int round = 0; round < 600; ++round) {
    std::string text = test::MutateExport(seeds[round % 3], &rng);
    std::string err;
    auto design = LoadDesign(SplitLines(text), "fuzz.txt", "fuzz", &err);
    if (!design) {
      ASSERT_EQ(err.rfind("fuzz.txt:", 0), 0u) << err;
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
  EXPECT_GT(loaded, 100);
}

}  // namespace
}  // namespace morvane

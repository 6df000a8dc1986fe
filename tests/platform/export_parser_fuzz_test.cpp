// Randomly mutated exports through the parser, from a fixed seed: it must
// end every input with a result or with a "file:line:" error on a line of
// the input, never crash or hang.
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "platform/export_parser.h"
#include "platform/text_file.h"
#include "tests/platform/export_mutator.h"

namespace morvane {
namespace {

constexpr const char kSeedText[] = R"txt(Version =20
VersionRequired =20
Begin Form
    PopUp = NotDefault
    Width =9000
    Caption ="Say \"hi\""
    RowSource ="SELECT a "
        "FROM b;"
    PictureData = Begin
        0x424d0600 ,
        0x00ff
    End
    Begin
        Begin Label
            BackStyle =0
        End
        Begin Section
            Height =5000
            Begin
                Begin TextBox
                    Name ="t"
                    OnClickEmMacro = Begin
                        Version =196611
                        Begin
                            Action ="Close"
                        End
                    End
                    Begin
                        Begin Label
                            Name ="l"
                        End
                    End
                End
            End
        End
    End
    Odd = {0B} Begin
    End
End
CodeBehindForm
Option Compare Database
)txt";

TEST(ExportParserFuzz, MutatedInputsNeverCrash) {
  std::mt19937 rng(20240611);
  int failures = 0;
  std::string text = kSeedText;
  for (int round = 0; round < 2000; ++round) {
    // Mostly fresh damage to the seed; sometimes damage on damage.
    if (round % 4 != 3) text = kSeedText;
    int edits = 1 + static_cast<int>(rng() % 4);
    for (int e = 0; e < edits; ++e) text = test::MutateExport(text, &rng);
    auto lines = SplitLines(text);
    ExportDocument doc;
    std::string err;
    if (ParseExport(lines, "fuzz.txt", &doc, &err)) continue;
    ++failures;
    ASSERT_EQ(err.rfind("fuzz.txt:", 0), 0u) << err;
    int line = std::atoi(err.c_str() + 9);
    ASSERT_GE(line, 1) << err;
    ASSERT_LE(line, static_cast<int>(std::max<size_t>(lines.size(), 1))) << err;
  }
  // The mutations break the text often enough for the errors to be exercised.
  EXPECT_GT(failures, 200);
}

}  // namespace
}  // namespace morvane

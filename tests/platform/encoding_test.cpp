// Encoding detection and conversion of export files to Windows-1252.
#include "platform/encoding.h"

#include <gtest/gtest.h>

#include "support/temp_dir.h"

namespace morvane {
namespace {

// UTF-16LE bytes of a UTF-16 string, with or without the byte order mark.
std::string Utf16Le(const std::u16string& text, bool bom = true) {
  std::string out = bom ? "\xFF\xFE" : "";
  for (char16_t c : text) {
    out += static_cast<char>(c & 0xFF);
    out += static_cast<char>(c >> 8);
  }
  return out;
}

struct DecodeCase {
  const char* Label;
  std::string Bytes;
  std::string Expected;
  TextEncoding Encoding;
};

TEST(EncodingTest, DecodesEachEncodingToWindows1252) {
  const DecodeCase cases[] = {
      {"utf16 with mark", Utf16Le(u"Caption =\"M\u00E4rz \u20AC\"\r\n"),
       "Caption =\"M\xE4rz \x80\"\r\n", TextEncoding::Utf16LeBom},
      {"utf16 without mark", Utf16Le(u"Begin Form\r\n", false), "Begin Form\r\n",
       TextEncoding::Utf16Le},
      {"utf8 with mark",
       "\xEF\xBB\xBF"
       "Caption =\"Gr\xC3\xBC\xC3\x9F"
       "e\"\n",
       "Caption =\"Gr\xFC\xDF"
       "e\"\n",
       TextEncoding::Utf8Bom},
      {"utf8 without mark", "x = \"\xE2\x80\x9Cq\xE2\x80\x9D\"", "x = \"\x93q\x94\"",
       TextEncoding::Utf8},
      {"ansi", "Caption =\"M\xE4rz\"\r", "Caption =\"M\xE4rz\"\r", TextEncoding::Windows1252},
      {"not utf8 after all", "caf\xE9 \xC3", "caf\xE9 \xC3", TextEncoding::Windows1252},
      {"empty", "", "", TextEncoding::Windows1252},
  };
  for (const auto& c : cases) {
    DecodedText out;
    std::string err;
    ASSERT_EQ(DecodeToWindows1252(c.Bytes, &out, &err), DecodeStatus::Ok) << c.Label << err;
    EXPECT_EQ(out.Text, c.Expected) << c.Label;
    EXPECT_EQ(out.Encoding, c.Encoding) << c.Label;
    EXPECT_EQ(out.Unmappable, 0) << c.Label;
  }
}

TEST(EncodingTest, CharactersWithoutWindows1252FormBecomePlainLettersOrQuestionMarks) {
  DecodedText out;
  std::string err;
  ASSERT_EQ(DecodeToWindows1252(Utf16Le(u"a\r\nb\u4E2Dc\n\u0391\U0001F600"), &out, &err),
            DecodeStatus::Ok);
  EXPECT_EQ(out.Text, "a\r\nb?c\n??");
  EXPECT_EQ(out.Unmappable, 3);
  EXPECT_EQ(out.FirstUnmappableLine, 2);

  ASSERT_EQ(DecodeToWindows1252("x\xE2\x86\x92y", &out, &err), DecodeStatus::Ok);
  EXPECT_EQ(out.Text, "x?y");
  EXPECT_EQ(out.FirstUnmappableLine, 1);

  // Accented Latin letters outside Windows-1252 keep their plain letter, so
  // that a Latvian or Vietnamese name stays a name; those inside keep theirs.
  ASSERT_EQ(DecodeToWindows1252("Pils\xC4\x93ta_\xC5\xA1\xC4\xB7\xC5\x82 \xE1\xBB\x87 \xC5\x89",
                                &out, &err),
            DecodeStatus::Ok);
  EXPECT_EQ(out.Text, "Pilseta_\x9Akl e n");
  EXPECT_EQ(out.Unmappable, 5);
}

TEST(EncodingTest, BrokenUtf16AndBinaryAreRefused) {
  DecodedText out;
  std::string err;
  EXPECT_EQ(DecodeToWindows1252(Utf16Le(u"ab") + "c", &out, &err), DecodeStatus::Invalid);
  EXPECT_NE(err.find("odd"), std::string::npos) << err;

  // A high surrogate followed by a plain character, on the third line.
  std::string lone = Utf16Le(u"a\r\nb\nc") + std::string("\x00\xD8", 2) + Utf16Le(u"d", false);
  err.clear();
  EXPECT_EQ(DecodeToWindows1252(lone, &out, &err), DecodeStatus::Invalid);
  EXPECT_NE(err.find("line 3"), std::string::npos) << err;

  std::string loneLow = Utf16Le(u"a") + std::string("\x00\xDC", 2);
  EXPECT_EQ(DecodeToWindows1252(loneLow, &out, &err), DecodeStatus::Invalid);

  EXPECT_EQ(DecodeToWindows1252(std::string("MZ\x90\0\x03\0\0\0", 8), &out, &err),
            DecodeStatus::Binary);
  EXPECT_TRUE(LooksBinary(std::string("PK\x03\x04\0\0", 6)));
  EXPECT_FALSE(LooksBinary(Utf16Le(u"Begin Form")));
  EXPECT_FALSE(LooksBinary(Utf16Le(u"Begin Form", false)));
}

TEST(EncodingTest, CodePointTable) {
  EXPECT_EQ(Windows1252FromCodePoint(U'A'), 'A');
  EXPECT_EQ(Windows1252FromCodePoint(0x20AC), 0x80);
  EXPECT_EQ(Windows1252FromCodePoint(0x0178), 0x9F);
  EXPECT_EQ(Windows1252FromCodePoint(0x00FF), 0xFF);
  EXPECT_EQ(Windows1252FromCodePoint(0x00A0), 0xA0);
  // C1 controls have no Windows-1252 form: those bytes are other characters.
  EXPECT_EQ(Windows1252FromCodePoint(0x0080), 0);
  EXPECT_EQ(Windows1252FromCodePoint(0x0081), 0);
  EXPECT_EQ(Windows1252FromCodePoint(0x0100), 0);
}

TEST(EncodingTest, ReadExportLinesSplitsAnyLineEndAndNamesBadFiles) {
  test::TempDir dir;
  test::WriteFile(dir / "a.txt", Utf16Le(u"one\r\ntwo\nthree\rfour\r\n"));
  std::vector<std::string> lines;
  std::string err;
  ASSERT_TRUE(ReadExportLines(dir / "a.txt", &lines, &err)) << err;
  EXPECT_EQ(lines, (std::vector<std::string>{"one", "two", "three", "four"}));

  test::WriteFile(dir / "bad.txt", Utf16Le(u"x") + "y");
  EXPECT_FALSE(ReadExportLines(dir / "bad.txt", &lines, &err));
  EXPECT_NE(err.find("bad.txt"), std::string::npos) << err;

  test::WriteFile(dir / "bin.txt", std::string("ab\0cd", 5));
  EXPECT_FALSE(ReadExportLines(dir / "bin.txt", &lines, &err));
  EXPECT_NE(err.find("bin.txt"), std::string::npos) << err;
  EXPECT_NE(err.find("binary"), std::string::npos) << err;
}

}  // namespace
}  // namespace morvane

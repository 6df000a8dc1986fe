// The SaveAsText parser: values of every kind, nesting, code after the
// design, and malformed input that must give a clear "file:line:" error.
#include "platform/export_parser.h"

#include <gtest/gtest.h>

#include "platform/text_file.h"

namespace morvane {
namespace {

std::vector<std::string> Lines(const std::string& text) { return SplitLines(text); }

ExportDocument ParseOk(const std::string& text) {
  ExportDocument doc;
  std::string err;
  EXPECT_TRUE(ParseExport(Lines(text), "frm.txt", &doc, &err)) << err;
  return doc;
}

std::string ParseError(const std::vector<std::string>& lines) {
  ExportDocument doc;
  std::string err;
  EXPECT_FALSE(ParseExport(lines, "Form_X.txt", &doc, &err));
  return err;
}

TEST(ExportParser, ValuesOfEveryKind) {
  ExportDocument doc = ParseOk(
      "Version =20\n"
      "VersionRequired =20\n"
      "Begin Form\n"
      "    Left =-1440\n"
      "    ForeTint =90.5\n"
      "    Visible = NotDefault\n"
      "    Caption =\"Say \\\"hi\\\" \\\\ there\"\n"
      "    Tag =\"old \"\"style\"\" quotes\"\n"
      "    Empty =\"\"\n"
      "    RowSource =\"SELECT a \"\n"
      "        \"FROM b;\"\n"
      "    Multi =\"one\\015\\012two\"\n"
      "    PictureData = Begin\n"
      "        0x0aff10 ,\n"
      "        0x20\n"
      "    End\n"
      "    Nothing = Begin\n"
      "    End\n"
      "    RowSourceType =Table\n"
      "End\n");
  ASSERT_EQ(doc.Header.size(), 2u);
  EXPECT_EQ(doc.Header[0].Key, "Version");
  ASSERT_EQ(doc.Blocks.size(), 1u);
  const ExportBlock& f = doc.Blocks[0];
  EXPECT_EQ(f.Type, "Form");
  EXPECT_EQ(f.Line, 3);

  struct Row {
    const char* key;
    ExportValueKind kind;
    std::string value;
    int line;
  };
  const Row rows[] = {
      {"Left", ExportValueKind::Number, "-1440", 4},
      {"ForeTint", ExportValueKind::Number, "90.5", 5},
      {"Visible", ExportValueKind::NotDefault, "", 6},
      {"Caption", ExportValueKind::Text, "Say \"hi\" \\ there", 7},
      {"Tag", ExportValueKind::Text, "old \"style\" quotes", 8},
      {"Empty", ExportValueKind::Text, "", 9},
      {"RowSource", ExportValueKind::Text, "SELECT a FROM b;", 10},
      {"Multi", ExportValueKind::Text, "one\r\ntwo", 12},
      {"PictureData", ExportValueKind::Binary, std::string("\x0a\xff\x10\x20", 4), 13},
      {"Nothing", ExportValueKind::Binary, "", 17},
      {"RowSourceType", ExportValueKind::Word, "Table", 19},
  };
  for (const Row& r : rows) {
    const ExportProperty* p = f.Find(r.key);
    ASSERT_NE(p, nullptr) << r.key;
    EXPECT_EQ(p->Kind, r.kind) << r.key;
    EXPECT_EQ(p->Value, r.value) << r.key;
    EXPECT_EQ(p->Line, r.line) << r.key;
  }
  EXPECT_EQ(f.Properties.size(), std::size(rows));
}

TEST(ExportParser, LastValueWinsInFirstPlaceAndKeysIgnoreCase) {
  ExportDocument doc =
      ParseOk("Begin Form\n    Width =100\n    Caption =\"a\"\n    width =200\nEnd\n");
  const ExportBlock& f = doc.Blocks[0];
  ASSERT_EQ(f.Properties.size(), 2u);
  EXPECT_EQ(f.Properties[0].Value, "200");
  EXPECT_EQ(f.Properties[0].Line, 4);
  EXPECT_EQ(f.Find("WIDTH")->Value, "200");
}

TEST(ExportParser, NestingTypedAndBareBlocksWithIndentationIgnored) {
  ExportDocument doc = ParseOk(
      "Begin Form\n"
      "Begin\n"
      "  Begin Label\n"
      "BackStyle =0\n"
      "  End\n"
      "  Begin Section\n"
      "    Begin\n"
      "      Begin TextBox\n"
      "        Name =\"t\"\n"
      "        Begin\n"
      "          Begin Label\n"
      "            Name =\"l\"\n"
      "          End\n"
      "        End\n"
      "      End\n"
      "    End\n"
      "  End\n"
      "End\n"
      "End\n");
  const ExportBlock& bare = doc.Blocks[0].Children.at(0);
  EXPECT_TRUE(bare.Type.empty());
  ASSERT_EQ(bare.Children.size(), 2u);
  EXPECT_EQ(bare.Children[0].Type, "Label");
  const ExportBlock& text = bare.Children[1].Children.at(0).Children.at(0);
  EXPECT_EQ(text.Type, "TextBox");
  EXPECT_EQ(text.Line, 8);
  EXPECT_EQ(text.Children.at(0).Children.at(0).Find("Name")->Value, "l");
}

TEST(ExportParser, EmbeddedMacroKeptAsItsLinesAndUnknownBlocksSkipped) {
  ExportDocument doc = ParseOk(
      "Begin Form\n"
      "    OnClickEmMacro = Begin\n"
      "        Version =196611\n"
      "        Begin\n"
      "            Action =\"Close\"\n"
      "            Comment =\"a\"\n"
      "                \"b\"\n"
      "        End\n"
      "    End\n"
      "    Odd = {0B2A} Begin\n"
      "        Begin\n"
      "        End\n"
      "        whatever text\n"
      "    End\n"
      "    Caption =\"after\"\n"
      "End\n");
  const ExportBlock& f = doc.Blocks[0];
  const ExportProperty* m = f.Find("OnClickEmMacro");
  ASSERT_NE(m, nullptr);
  EXPECT_EQ(m->Kind, ExportValueKind::Block);
  EXPECT_EQ(m->Value,
            "Version =196611\r\nBegin\r\nAction =\"Close\"\r\nComment =\"a\"\r\n\"b\"\r\nEnd");
  EXPECT_EQ(f.Find("Odd"), nullptr);
  ASSERT_EQ(doc.Skipped.size(), 1u);
  EXPECT_EQ(doc.Skipped[0].Line, 10);
  EXPECT_EQ(f.Find("Caption")->Value, "after");
}

TEST(ExportParser, CodeAfterCodeBehindFormIsKeptAsWritten) {
  ExportDocument doc = ParseOk(
      "Version =20\nBegin Form\nEnd\nCodeBehindForm\nAttribute VB_Exposed = False\n"
      "Option Compare Database\n\nPrivate Sub X()\n  Begin = 1\nEnd Sub\n");
  EXPECT_TRUE(doc.HasCode);
  EXPECT_EQ(doc.CodeLine, 4);
  ASSERT_EQ(doc.Code.size(), 6u);
  EXPECT_EQ(doc.Code[2], "");
  EXPECT_EQ(doc.Code[4], "  Begin = 1");
  EXPECT_EQ(doc.Code[5], "End Sub");
}

TEST(ExportParser, QuotedPieceDecoding) {
  struct Row {
    std::string in;
    bool closes;
    std::string out;
    size_t end;
  };
  const Row rows[] = {
      {"\"abc\" rest", true, "abc", 5},  {"\"\"", true, "", 2},
      {"\"a\\\"b\"", true, "a\"b", 6},   {"\"a\"\"b\"", true, "a\"b", 6},
      {"\"\\\\\"", true, "\\", 4},       {"\"\\011x\"", true, "\tx", 7},
      {"\"\\(999\"", true, "\\(999", 7}, {"\"open", false, "", 0},
      {"\"ends in \\\"", false, "", 0},
  };
  for (const Row& r : rows) {
    std::string out;
    size_t end = 0;
    EXPECT_EQ(DecodeQuotedPiece(r.in, &out, &end), r.closes) << r.in;
    EXPECT_EQ(out, r.out) << r.in;
    EXPECT_EQ(end, r.end) << r.in;
  }
}

TEST(ExportParser, DoubledQuoteTextWithTrailingBackslashStillReads) {
  // A tool that doubles quotes leaves a path's last backslash bare.
  ExportDocument doc = ParseOk("Begin Form\n    Tag =\"C:\\\"\nEnd\n");
  EXPECT_EQ(doc.Blocks[0].Find("Tag")->Value, "C:\\");
}

TEST(ExportParser, MalformedInputNamesFileAndLine) {
  struct Row {
    const char* name;
    std::string text;
    std::string error;
  };
  const Row rows[] = {
      {"truncated", "Version =20\nBegin Form\n    Begin\n        Begin Label\n",
       "Form_X.txt:4: the file ends inside \"Begin Label\" opened at line 4 (3 block(s) not "
       "closed by \"End\")"},
      {"end without begin", "Begin Form\nEnd\nEnd\n",
       "Form_X.txt:3: \"End\" without a matching \"Begin\""},
      {"garbage", "Begin Form\n  \x01\x02garbage\nEnd\n",
       "Form_X.txt:2: expected \"Key =value\", \"Begin\" or \"End\", found \"??garbage\""},
      {"bad key", "Begin Form\n  =5\nEnd\n",
       "Form_X.txt:2: expected \"Key =value\", \"Begin\" or \"End\", found \"=5\""},
      {"open string", "Begin Form\n  Caption =\"abc\nEnd\n",
       "Form_X.txt:2: a quoted value is not closed on its line"},
      {"open continuation", "Begin Form\n  Caption =\"abc\"\n  \"def\nEnd\n",
       "Form_X.txt:3: a quoted value is not closed on its line"},
      {"bad hex", "Begin Form\n  PictureData = Begin\n    0x0a\n    0xzz\n  End\nEnd\n",
       "Form_X.txt:4: the binary value of PictureData holds a line that is no hex data"},
      {"odd hex", "Begin Form\n  PictureData = Begin\n    0x0a1\n  End\nEnd\n",
       "Form_X.txt:3: the binary value of PictureData holds a line that is no hex data"},
      {"truncated hex", "Begin Form\n  PictureData = Begin\n    0x0a\n",
       "Form_X.txt:3: the file ends inside the value of PictureData begun at line 2"},
      {"truncated macro", "Begin Form\n  OnClickEmMacro = Begin\n    Begin\n    End\n",
       "Form_X.txt:4: the file ends inside the value of OnClickEmMacro begun at line 2"},
      {"code inside block", "Begin Form\nCodeBehindForm\nEnd\n",
       "Form_X.txt:2: expected \"Key =value\", \"Begin\" or \"End\", found \"CodeBehindForm\""},
  };
  for (const Row& r : rows) EXPECT_EQ(ParseError(Lines(r.text)), r.error) << r.name;
}

TEST(ExportParser, EmptyInputIsAnEmptyDocument) {
  ExportDocument doc = ParseOk("");
  EXPECT_TRUE(doc.Blocks.empty());
  EXPECT_FALSE(doc.HasCode);
}

TEST(ExportParser, TenMegabyteLineIsRefusedWhereverItStands) {
  const std::string huge(10 * 1024 * 1024, 'x');
  struct Row {
    const char* name;
    std::vector<std::string> lines;
    int line;
  };
  const Row rows[] = {
      {"design", {"Begin Form", "  Caption =\"" + huge + "\"", "End"}, 2},
      {"continuation", {"Begin Form", "  Caption =\"a\"", "\"" + huge + "\"", "End"}, 3},
      {"hex", {"Begin Form", "  PictureData = Begin", "0x" + huge, "  End", "End"}, 3},
      {"code", {"Begin Form", "End", "CodeBehindForm", "Option Explicit", huge}, 5},
      {"plain", {huge}, 1},
  };
  for (const Row& r : rows) {
    size_t length = r.lines[static_cast<size_t>(r.line - 1)].size();
    EXPECT_EQ(ParseError(r.lines), "Form_X.txt:" + std::to_string(r.line) + ": line is " +
                                       std::to_string(length) +
                                       " characters long; an export line has at most 65536")
        << r.name;
  }
}

TEST(ExportParser, NestingIsBoundedAtSixtyFourLevels) {
  std::vector<std::string> ok;
  for (int i = 0; i < kMaxExportDepth; ++i) ok.push_back("Begin");
  for (int i = 0; i < kMaxExportDepth; ++i) ok.push_back("End");
  ExportDocument doc;
  std::string err;
  EXPECT_TRUE(ParseExport(ok, "f", &doc, &err)) << err;

  std::vector<std::string> deep(100000, "Begin");
  EXPECT_EQ(ParseError(deep), "Form_X.txt:65: blocks are nested deeper than 64 levels");

  std::vector<std::string> deepMacro = {"Begin Form", "  OnClickEmMacro = Begin"};
  for (int i = 0; i < 100; ++i) deepMacro.push_back("Begin");
  EXPECT_EQ(ParseError(deepMacro), "Form_X.txt:66: blocks are nested deeper than 64 levels");
}

TEST(ExportParser, BinaryFileIsRefusedOnItsFirstLine) {
  std::string bytes("PK\x03\x04\x14\x00\x06\x00\x08\x00\x00\x00!\x00\xff\xfe\n\x01", 18);
  EXPECT_EQ(ParseError(Lines(bytes)),
            "Form_X.txt:1: expected \"Key =value\", \"Begin\" or \"End\", found \"PK" +
                std::string(10, '?') + "!?\xff\xfe\"");
}

}  // namespace
}  // namespace morvane

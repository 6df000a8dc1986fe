// The parser of Access's SaveAsText design text (forms and reports): nested
// Begin/End blocks, Key =value lines, binary values given as hex lines, and
// the module code that follows CodeBehindForm. Works on lines that are
// already Windows-1252; builds a plain tree that the design records read.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace morvane {

enum class ExportValueKind {
  Number,      // Left =1440, ForeTint =90.0; Value holds the text as written
  Text,        // Caption ="..."; Value holds the decoded text, pieces joined
  NotDefault,  // Visible = NotDefault: the boolean differs from its default
  Binary,      // PictureData = Begin 0x... End; Value holds the decoded bytes
  Block,       // OnClickEmMacro = Begin ... End; Value holds the inner lines
               // (leading blanks removed) joined by CR LF
  Word,        // an unquoted value that is no number, kept as written
};

struct ExportProperty {
  std::string Key;
  ExportValueKind Kind = ExportValueKind::Text;
  std::string Value;
  int Line = 0;  // 1-based line of the key
};

struct ExportBlock {
  std::string Type;  // "Form", "TextBox", ...; empty for a bare Begin
  int Line = 0;      // 1-based line of the Begin
  // In order of first appearance; a key written twice keeps its first place
  // and takes the last value.
  std::vector<ExportProperty> Properties;
  std::vector<ExportBlock> Children;

  // The property by key, without regard to case; null when absent.
  const ExportProperty* Find(std::string_view key) const;
};

struct ExportDocument {
  std::vector<ExportProperty> Header;  // Version =, VersionRequired =, Checksum = ...
  std::vector<ExportBlock> Blocks;     // the top-level blocks, normally one
  bool HasCode = false;                // a CodeBehindForm line was found
  int CodeLine = 0;                    // its 1-based line
  std::vector<std::string> Code;       // every line after it, as written
  // Keys whose value was an unknown "Key = {...} Begin" block, skipped, with
  // the line where each started.
  std::vector<ExportProperty> Skipped;
};

// Limits that keep malformed input from costing unbounded time or memory.
inline constexpr size_t kMaxExportLineLength = 65536;
inline constexpr int kMaxExportDepth = 64;

// Parses the lines of one export. On failure returns false and sets `err` to
// "<file>:<line>: <message>"; `out` is then unspecified.
bool ParseExport(std::span<const std::string_view> lines, std::string_view file,
                 ExportDocument* out, std::string* err);
bool ParseExport(const std::vector<std::string>& lines, std::string_view file, ExportDocument* out,
                 std::string* err);

// Decodes one quoted piece of a value: `text` starts at the opening quote.
// Access writes a quote inside as \" (older tools as ""), a backslash as two
// backslashes and a control character as a three-digit octal escape
// (\015\012 for CR LF).
// Returns false when the closing quote is missing; `*end` is then untouched,
// else it is set just past the closing quote.
bool DecodeQuotedPiece(std::string_view text, std::string* out, size_t* end);

}  // namespace morvane

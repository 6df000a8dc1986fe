// Turning the bytes of an export file into the system's Windows-1252 text.
// Exports come as UTF-16LE with a byte order mark (as Access writes them),
// UTF-8 with or without a mark (after version-control tools), or ANSI.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace morvane {

enum class TextEncoding { Windows1252, Utf8, Utf8Bom, Utf16Le, Utf16LeBom, Utf16BeBom };

enum class DecodeStatus {
  Ok,
  Binary,   // NUL bytes in a file that is not UTF-16: no text at all
  Invalid,  // UTF-16 that cannot be decoded (odd byte count, lone surrogate)
};

struct DecodedText {
  std::string Text;  // Windows-1252, line ends as in the file
  TextEncoding Encoding = TextEncoding::Windows1252;
  // Characters that have no Windows-1252 form; each became "?".
  int Unmappable = 0;
  int FirstUnmappableLine = 0;  // 1-based, 0 when there is none
};

// Detects the encoding of `bytes` and converts them. On Invalid, `err` says
// why and at which line (1-based) the decoding stopped.
DecodeStatus DecodeToWindows1252(std::string_view bytes, DecodedText* out, std::string* err);

// Whether the first bytes of a file show binary content: NUL bytes in a file
// that is not UTF-16. Lets discovery pass over large binaries unread.
bool LooksBinary(std::string_view head);

// The Windows-1252 byte for a Unicode code point, or 0 when it has none.
unsigned char Windows1252FromCodePoint(char32_t cp);

// Windows-1252 text as UTF-8, for file names on disk and the terminal.
std::string Windows1252ToUtf8(std::string_view text);
// Valid UTF-8 is converted (characters without a Windows-1252 form become
// "?"); anything else is taken to be Windows-1252 already.
std::string Utf8ToWindows1252(std::string_view text);
// The same for a name: a letter without a Windows-1252 form becomes its
// base letter (a macron or caron dropped), anything else a readable stand-in
// such as "u4E2D", so that two such names stay apart.
std::string Utf8NameToWindows1252(std::string_view text);

// Reads and decodes an export file and splits it into lines (CR LF, LF or CR).
// False with a message naming the file when it cannot be read, is binary or is
// not valid text.
bool ReadExportLines(const std::filesystem::path& file, std::vector<std::string>* lines,
                     std::string* err);

}  // namespace morvane

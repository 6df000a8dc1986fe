// Windows-1252 <-> UTF-8 for the command line.
#include "app/text_output.h"

#include "platform/encoding.h"

namespace morvane {

namespace {

// Unicode code points of the bytes 0x80 to 0x9F; the other bytes are
// Latin-1. Unassigned bytes map to themselves.
constexpr char32_t kHigh[32] = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178,
};

void AppendUtf8(std::string& out, char32_t cp) {
  if (cp < 0x80) {
    out += static_cast<char>(cp);
  } else if (cp < 0x800) {
    out += static_cast<char>(0xC0 | (cp >> 6));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  } else {
    out += static_cast<char>(0xE0 | (cp >> 12));
    out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  }
}

}  // namespace

std::string Windows1252ToUtf8(std::string_view text) {
  std::string out;
  for (unsigned char c : text) {
    char32_t cp = (c >= 0x80 && c < 0xA0) ? kHigh[c - 0x80] : c;
    AppendUtf8(out, cp);
  }
  return out;
}

std::string Utf8ToWindows1252(std::string_view text) {
  DecodedText decoded;
  std::string err;
  if (DecodeToWindows1252(text, &decoded, &err) != DecodeStatus::Ok) return std::string(text);
  return decoded.Text;
}

}  // namespace morvane

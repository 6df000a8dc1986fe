// Encoding detection and conversion to Windows-1252. iconv decodes UTF-8 and
// UTF-16 to code points (and rejects what is not valid in them); the step to
// Windows-1252 is a table, so that a character without a Windows-1252 form
// becomes its plain letter (or "?") and is counted instead of stopping the
// conversion.
#include "platform/encoding.h"

#include <errno.h>
#include <iconv.h>

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "platform/text_file.h"

namespace morvane {

namespace {

struct SpecialChar {
  char32_t CodePoint;
  unsigned char Byte;
};

// Windows-1252 differs from Latin-1 only in 0x80..0x9F; these are its
// characters there (0x81, 0x8D, 0x8F, 0x90 and 0x9D are unassigned).
constexpr SpecialChar kSpecials[] = {
    {0x20AC, 0x80}, {0x201A, 0x82}, {0x0192, 0x83}, {0x201E, 0x84}, {0x2026, 0x85}, {0x2020, 0x86},
    {0x2021, 0x87}, {0x02C6, 0x88}, {0x2030, 0x89}, {0x0160, 0x8A}, {0x2039, 0x8B}, {0x0152, 0x8C},
    {0x017D, 0x8E}, {0x2018, 0x91}, {0x2019, 0x92}, {0x201C, 0x93}, {0x201D, 0x94}, {0x2022, 0x95},
    {0x2013, 0x96}, {0x2014, 0x97}, {0x02DC, 0x98}, {0x2122, 0x99}, {0x0161, 0x9A}, {0x203A, 0x9B},
    {0x0153, 0x9C}, {0x017E, 0x9E}, {0x0178, 0x9F},
};
static_assert(std::size(kSpecials) == 27);

// The plain letter of each accented Latin letter that Windows-1252 lacks
// (U+0100..U+017F, then U+1E00..U+1EFF), "?" where there is none. Names
// written in Latvian, Polish, Czech or Vietnamese then stay names Visual
// Basic reads, and the same letter gives the same name wherever it is used.
constexpr std::string_view kLatinExtendedA =
    "AaAaAaCcCcCcCcDdDdEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIiIiJjKkkLlLlLlLlLlNnNnNnnNnOoOoOo??"
    "RrRrRrSsSsSs"
    "SsTtTtTtUuUuUuUuUuUuWwYyYZzZzZzs";
constexpr std::string_view kLatinExtendedAdditional =
    "AaBbBbBbCcDdDdDdDdDdEeEeEeEeEeFfGgHhHhHhHhHhIiIiKkKkKkLlLlLlLlMmMmMmNnNnNnNnOoOoOoOoPpPpRrRrRr"
    "Rr"
    "SsSsSsSsSsTtTtTtTtUuUuUuUuUuVvVvWwWwWwWwWwXxXxYyZzZzZzhtwy??????"
    "AaAaAaAaAaAaAaAaAaAaAaAaEeEeEeEe"
    "EeEeEeEeIiIiOoOoOoOoOoOoOoOoOoOoOoOoUuUuUuUuUuUuUuYyYyYyYy??????";
static_assert(kLatinExtendedA.size() == 0x80 && kLatinExtendedAdditional.size() == 0x100);

// The nearest Windows-1252 byte of a character that has no form there: its
// plain letter, else "?".
unsigned char NearestWindows1252(char32_t cp) {
  if (cp >= 0x100 && cp < 0x180) return static_cast<unsigned char>(kLatinExtendedA[cp - 0x100]);
  if (cp >= 0x1E00 && cp < 0x1F00)
    return static_cast<unsigned char>(kLatinExtendedAdditional[cp - 0x1E00]);
  return '?';
}

const char* IconvName(TextEncoding e) {
  switch (e) {
    case TextEncoding::Utf8:
    case TextEncoding::Utf8Bom:
      return "UTF-8";
    case TextEncoding::Utf16Le:
    case TextEncoding::Utf16LeBom:
      return "UTF-16LE";
    case TextEncoding::Utf16BeBom:
      return "UTF-16BE";
    case TextEncoding::Windows1252:
      break;
  }
  return "WINDOWS-1252";
}

bool IsUtf16(TextEncoding e) {
  return e == TextEncoding::Utf16Le || e == TextEncoding::Utf16LeBom ||
         e == TextEncoding::Utf16BeBom;
}

// UTF-16LE without a mark: ASCII-heavy text has a zero in every odd byte.
bool LooksLikeUtf16Le(std::string_view bytes) {
  if (bytes.size() < 4 || bytes.size() % 2 != 0) return false;
  size_t n = std::min<size_t>(bytes.size(), 512);
  size_t oddZeros = 0, evenZeros = 0;
  for (size_t i = 0; i + 1 < n; i += 2) {
    if (bytes[i] == 0) ++evenZeros;
    if (bytes[i + 1] == 0) ++oddZeros;
  }
  return evenZeros == 0 && oddZeros * 4 >= (n / 2) * 3;
}

// Tools that add a byte order mark to text that already has one write it
// twice (or more): every leading mark is skipped.
TextEncoding Detect(std::string_view bytes, size_t* skip) {
  *skip = 0;
  auto marks = [&](std::string_view mark) {
    while (bytes.substr(*skip, mark.size()) == mark) *skip += mark.size();
    return *skip > 0;
  };
  if (marks("\xEF\xBB\xBF")) return TextEncoding::Utf8Bom;
  if (marks("\xFF\xFE")) return TextEncoding::Utf16LeBom;
  if (marks("\xFE\xFF")) return TextEncoding::Utf16BeBom;
  if (LooksLikeUtf16Le(bytes)) return TextEncoding::Utf16Le;
  bool ascii = std::all_of(bytes.begin(), bytes.end(),
                           [](char c) { return static_cast<unsigned char>(c) < 0x80; });
  return ascii ? TextEncoding::Windows1252 : TextEncoding::Utf8;
}

int LineOf(const std::u32string& decoded) {
  int line = 1;
  for (size_t i = 0; i < decoded.size(); ++i) {
    if (decoded[i] == U'\n') ++line;
    if (decoded[i] == U'\r' && (i + 1 >= decoded.size() || decoded[i + 1] != U'\n')) ++line;
  }
  return line;
}

// Decodes `bytes` in `from` to code points. False with `why` (and the
// decoded prefix in `out`) when the input is not valid in that encoding.
bool ToCodePoints(std::string_view bytes, const char* from, std::u32string* out, std::string* why) {
  iconv_t cd = iconv_open("UTF-32LE", from);
  if (cd == reinterpret_cast<iconv_t>(-1)) {
    *why = std::string("no converter from ") + from;
    return false;
  }
  std::string buffer(bytes.size() * 4 + 16, '\0');
  char* in = const_cast<char*>(bytes.data());
  size_t inLeft = bytes.size();
  char* outPtr = buffer.data();
  size_t outLeft = buffer.size();
  bool ok = true;
  if (iconv(cd, &in, &inLeft, &outPtr, &outLeft) == static_cast<size_t>(-1)) {
    ok = false;
    if (errno == EINVAL)
      *why = "text ends inside a character";
    else
      *why = "invalid character at byte " + std::to_string(in - bytes.data());
  }
  iconv_close(cd);
  size_t produced = (buffer.size() - outLeft) / 4;
  out->resize(produced);
  for (size_t i = 0; i < produced; ++i) {
    const unsigned char* p = reinterpret_cast<const unsigned char*>(buffer.data()) + i * 4;
    (*out)[i] = static_cast<char32_t>(p[0] | (p[1] << 8) | (p[2] << 16) |
                                      (static_cast<uint32_t>(p[3]) << 24));
  }
  return ok;
}

// Most exports need no iconv: UTF-8 that is plain ASCII, and UTF-16 whose
// every unit has a Windows-1252 form, convert unit by unit. False sends the
// text the long way, which also counts what has no Windows-1252 form.
bool QuickDecode(std::string_view body, TextEncoding enc, std::string* out) {
  if (enc == TextEncoding::Utf8 || enc == TextEncoding::Utf8Bom) {
    for (char c : body)
      if (static_cast<unsigned char>(c) >= 0x80) return false;
    out->assign(body);
    return true;
  }
  if (!IsUtf16(enc)) return false;
  const bool big = enc == TextEncoding::Utf16BeBom;
  out->clear();
  out->reserve(body.size() / 2);
  for (size_t i = 0; i + 1 < body.size(); i += 2) {
    const auto lo = static_cast<unsigned char>(body[i + (big ? 1 : 0)]);
    const auto hi = static_cast<unsigned char>(body[i + (big ? 0 : 1)]);
    const char32_t unit = lo | (static_cast<char32_t>(hi) << 8);
    if (unit < 0x80) {
      out->push_back(static_cast<char>(unit));
      continue;
    }
    const unsigned char b = Windows1252FromCodePoint(unit);
    if (b == 0) return false;
    out->push_back(static_cast<char>(b));
  }
  return true;
}

}  // namespace

bool LooksBinary(std::string_view head) {
  size_t skip = 0;
  TextEncoding enc = Detect(head, &skip);
  return !IsUtf16(enc) && head.find('\0') != std::string_view::npos;
}

unsigned char Windows1252FromCodePoint(char32_t cp) {
  if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) return static_cast<unsigned char>(cp);
  for (const auto& s : kSpecials)
    if (s.CodePoint == cp) return s.Byte;
  return 0;
}

DecodeStatus DecodeToWindows1252(std::string_view bytes, DecodedText* out, std::string* err) {
  size_t skip = 0;
  TextEncoding enc = Detect(bytes, &skip);
  out->Encoding = enc;
  out->Unmappable = 0;
  out->FirstUnmappableLine = 0;
  std::string_view body = bytes.substr(skip);

  if (!IsUtf16(enc) && body.find('\0') != std::string_view::npos) return DecodeStatus::Binary;
  if (IsUtf16(enc) && body.size() % 2 != 0) {
    if (err) *err = "invalid UTF-16 text: odd number of bytes";
    return DecodeStatus::Invalid;
  }
  if (enc == TextEncoding::Windows1252) {
    out->Text.assign(body);
    return DecodeStatus::Ok;
  }
  if (QuickDecode(body, enc, &out->Text)) return DecodeStatus::Ok;

  std::u32string cps;
  std::string why;
  if (!ToCodePoints(body, IconvName(enc), &cps, &why)) {
    if (!IsUtf16(enc)) {
      // Not UTF-8 after all: bytes of an ANSI file.
      out->Encoding = TextEncoding::Windows1252;
      out->Text.assign(body);
      return DecodeStatus::Ok;
    }
    if (err) *err = "invalid UTF-16 text at line " + std::to_string(LineOf(cps)) + ": " + why;
    return DecodeStatus::Invalid;
  }
  if (IsUtf16(enc) && std::find(cps.begin(), cps.end(), U'\0') != cps.end())
    return DecodeStatus::Binary;

  out->Text.clear();
  out->Text.reserve(cps.size());
  int line = 1;
  size_t first = 0;
  while (first < cps.size() && cps[first] == U'\uFEFF') ++first;
  for (size_t i = first; i < cps.size(); ++i) {
    char32_t cp = cps[i];
    if (cp == U'\n' || (cp == U'\r' && (i + 1 >= cps.size() || cps[i + 1] != U'\n'))) ++line;
    unsigned char b = Windows1252FromCodePoint(cp);
    if (b == 0 && cp != 0) {
      b = NearestWindows1252(cp);
      if (out->Unmappable++ == 0) out->FirstUnmappableLine = line;
    }
    out->Text.push_back(static_cast<char>(b));
  }
  return DecodeStatus::Ok;
}

bool ReadExportLines(const std::filesystem::path& file, std::vector<std::string>* lines,
                     std::string* err) {
  std::string bytes;
  if (!ReadFileBytes(file, &bytes, err)) return false;
  DecodedText text;
  std::string why;
  switch (DecodeToWindows1252(bytes, &text, &why)) {
    case DecodeStatus::Ok:
      *lines = SplitLines(text.Text);
      return true;
    case DecodeStatus::Binary:
      if (err) *err = file.string() + ": binary file, not an Access export";
      return false;
    case DecodeStatus::Invalid:
      break;
  }
  if (err) *err = file.string() + ": " + why;
  return false;
}

namespace {

// Code points of the bytes 0x80 to 0x9F; the other bytes are Latin-1.
// Unassigned bytes map to themselves.
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
  out.reserve(text.size());
  for (unsigned char c : text) AppendUtf8(out, (c >= 0x80 && c < 0xA0) ? kHigh[c - 0x80] : c);
  return out;
}

std::string Utf8ToWindows1252(std::string_view text) {
  DecodedText decoded;
  std::string err;
  if (DecodeToWindows1252(text, &decoded, &err) != DecodeStatus::Ok) return std::string(text);
  return decoded.Text;
}

std::string Utf8NameToWindows1252(std::string_view text) {
  std::u32string cps;
  std::string why;
  if (!ToCodePoints(text, "UTF-8", &cps, &why)) return Utf8ToWindows1252(text);
  std::string out;
  for (char32_t cp : cps) {
    if (cp == 0xFEFF) continue;
    if (const unsigned char b = Windows1252FromCodePoint(cp); b != 0 || cp == 0) {
      out += static_cast<char>(b);
    } else if (const unsigned char letter = NearestWindows1252(cp); letter != '?') {
      out += static_cast<char>(letter);
    } else {
      char buf[16];
      std::snprintf(buf, sizeof buf, "u%04X", static_cast<unsigned>(cp));
      out += buf;
    }
  }
  return out;
}

}  // namespace morvane

// Picture extraction: the PictureData bytes of a form, report or control (a
// device-independent bitmap, a metafile or an enhanced metafile, without a
// file header) become a picture record appended to the form's .frx or the
// report's .dsx. The bytes pass through tblPict of the support database on
// their way, as the analysis expects a picture in hand there; the kind and
// the size limit are read from the bytes themselves.
#include "forms/picture_extraction.h"

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <optional>

#include "design/design_store.h"
#include "design/form_design.h"
#include "forms/form_writer.h"
#include "platform/support_db.h"
#include "session/conversion_session.h"
#include "session/naming.h"
#include "session/user_interface.h"

namespace morvane {

namespace {

// A picture larger than this is not carried over; an enhanced metafile
// counts half its bytes.
constexpr size_t kPictureLimit = 64000;

enum class PictureKind { None = 0, Bitmap = 1, Metafile = 2, EnhancedMetafile = 3 };

// The first byte of PictureData tells the kind: the size of a bitmap info
// header, the type word of a metafile's head, the record type of an
// enhanced metafile's header.
struct PictureKindRow {
  unsigned char FirstByte;
  PictureKind Kind;
};

constexpr PictureKindRow kPictureKinds[] = {
    {40, PictureKind::Bitmap},
    {3, PictureKind::Metafile},
    {14, PictureKind::EnhancedMetafile},
};

// "lt\0\0": the mark of a picture record.
constexpr unsigned char kPictureMark[4] = {0x6C, 0x74, 0x00, 0x00};
// The class of a stored picture in a .dsx, {0BE35204-8F91-11CE-9DE3-00AA004BB851}.
constexpr unsigned char kPictureClass[16] = {0x04, 0x52, 0xE3, 0x0B, 0x91, 0x8F, 0xCE, 0x11,
                                             0x9D, 0xE3, 0x00, 0xAA, 0x00, 0x4B, 0xB8, 0x51};
// The placeable metafile header: key 9AC6CDD7, handle 0, the box -8, -8,
// 2168, 2024, 575 units an inch, reserved 0, checksum 5ABE. The box is the
// same for every picture.
constexpr unsigned char kPlaceableHeader[22] = {0xD7, 0xCD, 0xC6, 0x9A, 0x00, 0x00, 0xF8, 0xFF,
                                                0xF8, 0xFF, 0x78, 0x08, 0xE8, 0x07, 0x3F, 0x02,
                                                0x00, 0x00, 0x00, 0x00, 0xBE, 0x5A};
// Zero bytes behind a metafile record's payload, part of the record.
constexpr size_t kMetafileTrailer = 26;
// The head of a metafile as Access keeps it, dropped from the record.
constexpr size_t kMetafileHead = 24;
// Where the metafile bytes of an enhanced metafile start.
constexpr size_t kEnhancedStart = 144;

PictureKind ProbePictureType(const std::string& data) {
  if (data.empty()) return PictureKind::None;
  const auto first = static_cast<unsigned char>(data[0]);
  for (const PictureKindRow& row : kPictureKinds)
    if (row.FirstByte == first) return row.Kind;
  return PictureKind::None;
}

bool PictureFitsLimit(const std::string& data) {
  if (ProbePictureType(data) == PictureKind::EnhancedMetafile)
    return data.size() / 2.0 <= kPictureLimit;
  return data.size() <= kPictureLimit;
}

void PutLong(std::string& out, uint32_t v) {
  for (int i = 0; i < 4; ++i) out += static_cast<char>((v >> (8 * i)) & 0xFF);
}

template <size_t n>
void PutBytes(std::string& out, const unsigned char (&bytes)[n]) {
  out.append(reinterpret_cast<const char*>(bytes), n);
}

// The prefix of a record whose payload the prefix gives as `n` bytes; a
// .dsx names the picture's class as well. The first field counts the bytes
// that follow it, the class included, as Visual Basic's designers read it.
std::string RecordPrefix(uint32_t n, bool dsx) {
  std::string out;
  PutLong(out, n + 8 + (dsx ? sizeof kPictureClass : 0));
  if (dsx) PutBytes(out, kPictureClass);
  PutBytes(out, kPictureMark);
  PutLong(out, n);
  return out;
}

uint32_t LongAt(const std::string& data, size_t at) {
  uint32_t v = 0;
  for (int i = 3; i >= 0; --i) v = (v << 8) | static_cast<unsigned char>(data[at + i]);
  return v;
}

// A bitmap becomes a whole BMP file: the file header in front of the bytes,
// with the offset of the pixels taken from the image size in the header.
std::optional<std::string> BitmapRecord(const std::string& data, bool dsx) {
  if (data.size() < 24) return std::nullopt;
  const auto n = static_cast<uint32_t>(data.size() + 14);
  const uint32_t imageSize = LongAt(data, 20);
  std::string out = RecordPrefix(n, dsx);
  out += "BM";
  PutLong(out, n);
  PutLong(out, 0);
  PutLong(out, n - imageSize);
  out += data;
  return out;
}

// A metafile becomes a placeable metafile. The prefix counts 12 bytes more
// than the payload written, and 26 zero bytes follow it.
std::optional<std::string> MetafileRecord(const std::string& data, PictureKind kind, bool dsx) {
  std::string bytes;
  if (kind == PictureKind::Metafile) {
    if (data.size() < kMetafileHead) return std::nullopt;
    bytes = data.substr(kMetafileHead);
  } else {
    const size_t half = data.size() / 2;
    if (half < kEnhancedStart) return std::nullopt;
    bytes = data.substr(kEnhancedStart, half - kEnhancedStart);
  }
  const auto n = static_cast<uint32_t>(sizeof kPlaceableHeader + bytes.size() + 12);
  std::string out = RecordPrefix(n, dsx);
  PutBytes(out, kPlaceableHeader);
  out += bytes;
  out.append(kMetafileTrailer, '\0');
  return out;
}

// tblPict holds the picture on its way. Without a support database the bytes
// go to the writers directly.
bool StagePicture(ConversionSession& s, const std::string& bytes) {
  return !s.SupportDb || s.SupportDb->StagePicture(bytes);
}

std::optional<std::string> StagedPicture(ConversionSession& s, const std::string& bytes) {
  if (!s.SupportDb) return bytes;
  return s.SupportDb->StagedPicture();
}

// The picture bytes of the form or report `name`, or of its control.
std::optional<std::string> PictureBytes(FormWriter& w, const std::string& name,
                                        const std::string& controlName, bool isReport) {
  const FormDesign* design =
      w.Store().Open(isReport ? AccessObjectKind::Report : AccessObjectKind::Form, name, nullptr);
  if (!design) return std::nullopt;
  if (controlName.empty()) return design->Bytes("PictureData");
  const ControlDesign* control = design->Control(controlName);
  if (!control) return std::nullopt;
  return control->Bytes("PictureData");
}

}  // namespace

std::optional<std::string> PictureRecord(const std::string& data, bool dsx) {
  if (!PictureFitsLimit(data)) return std::nullopt;
  const PictureKind kind = ProbePictureType(data);
  switch (kind) {
    case PictureKind::None:
      return std::nullopt;
    case PictureKind::Bitmap:
      return BitmapRecord(data, dsx);
    case PictureKind::Metafile:
    case PictureKind::EnhancedMetafile:
      return MetafileRecord(data, kind, dsx);
  }
  return std::nullopt;
}

// Upper-case hexadecimal, at least four digits; an offset past 65535 keeps
// all its digits, as the bindings records of the same file do.
std::string PictureOffsetText(std::uintmax_t offset) {
  char buf[24];
  std::snprintf(buf, sizeof buf, "%04jX", offset);
  return buf;
}

std::string ExtractPicture(FormWriter& w, const std::string& holder, const std::string& controlName,
                           bool isReport) {
  ConversionSession& s = w.Session();
  if (s.OptionWordLength != 11) return std::string();
  auto bytes = PictureBytes(w, holder, controlName, isReport);
  if (!bytes || !StagePicture(s, *bytes)) return std::string();
  auto data = StagedPicture(s, *bytes);
  if (!data || !PictureFitsLimit(*data)) return std::string();

  // The records go to the binary file of the form or report being
  // converted; a picture of a subform's control goes to the top form's.
  std::string& target = s.Form().Binary;
  const std::uintmax_t offset = target.size();

  std::optional<std::string> record = PictureRecord(*data, isReport);
  if (!record) return std::string();
  target += *record;
  if (s.SupportDb) s.SupportDb->ClearStagedPicture();
  w.Text().PictureReference = PictureOffsetText(offset);
  return w.Text().PictureReference;
}

}  // namespace morvane

// Text between the system and Qt: the system's names and messages are
// Windows-1252, file names UTF-8, and a message may carry both.
#pragma once

#include <QString>
#include <QStringDecoder>
#include <string>

#include "platform/encoding.h"
#include "session/strings.h"

namespace morvane {

// Text the system made, for showing: valid UTF-8 is taken as such (a path),
// anything else as Windows-1252.
inline QString FromSystem(const std::string& text) {
  QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  QString decoded = utf8.decode(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
  if (!utf8.hasError()) return decoded;
  return QString::fromStdString(Windows1252ToUtf8(text));
}

// A name typed or picked in the window, as the system writes it.
inline std::string ToSystem(const QString& text) { return Utf8ToWindows1252(text.toStdString()); }

// A caption of the string table.
inline QString Caption(StringId id) { return FromSystem(Text(id)); }

}  // namespace morvane

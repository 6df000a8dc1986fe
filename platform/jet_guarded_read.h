// Reading a Jet file without trusting it. libmdb follows the file's own
// lengths and page pointers, and a damaged file can send it into an endless
// loop or a crash. So the reading runs in a child process under a time limit
// and sends its result back through a pipe; a child that dies or overruns the
// limit becomes a one-line error about the file.
#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <string_view>

#include "platform/jet_reader.h"

namespace morvane {

// Ample for reading the catalog of any real database, which takes well under
// a second; only a file that keeps libmdb going round in circles reaches it.
inline constexpr std::chrono::milliseconds kJetReadTimeLimit{30000};

bool ReadJetContentsGuarded(const std::filesystem::path& file, std::chrono::milliseconds limit,
                            JetContents* out, std::string* err);

// The contents as bytes for the pipe, and back. Decoding checks every length,
// so a cut-off message is refused rather than read past its end.
std::string EncodeJetContents(const JetContents& contents);
bool DecodeJetContents(std::string_view bytes, JetContents* out);

}  // namespace morvane

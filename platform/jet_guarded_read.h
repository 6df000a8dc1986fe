// Reading a Jet file without trusting it. libmdb follows the file's own
// lengths and page pointers, and a damaged file can send it into an endless
// loop, a crash or an allocation without end. So the reading runs in a child
// process under a time limit and a memory limit and sends its result back
// through a pipe; a child that dies or overruns a limit becomes a one-line
// error about the file.
#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

#include "platform/jet_reader.h"

namespace morvane {

// Ample for reading the catalog of any real database, which takes well under
// a second; only a file that keeps libmdb going round in circles reaches it.
inline constexpr std::chrono::milliseconds kJetReadTimeLimit{30000};

// The memory the child may take on top of what it starts with (its address
// space is the caller's, copied). A real catalog needs a few megabytes; a
// damaged file can make libmdb allocate without end, and then the child's
// allocations fail here instead of taking the machine's memory.
inline constexpr size_t kJetReadMemoryLimit = size_t{1} << 30;

bool ReadJetContentsGuarded(const std::filesystem::path& file, std::chrono::milliseconds limit,
                            JetContents* out, std::string* err);

// The same with the reader and the memory limit given, for tests of the guard.
using JetContentsReader = bool (*)(const std::filesystem::path& file, JetContents* out,
                                   std::string* err);
bool ReadJetContentsGuarded(const std::filesystem::path& file, std::chrono::milliseconds limit,
                            size_t memoryLimit, JetContentsReader reader, JetContents* out,
                            std::string* err);

// The contents as bytes for the pipe, and back. Decoding checks every length,
// so a cut-off message is refused rather than read past its end.
std::string EncodeJetContents(const JetContents& contents);
bool DecodeJetContents(std::string_view bytes, JetContents* out);

}  // namespace morvane

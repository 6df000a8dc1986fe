// Reading and writing the system's text files: Windows-1252 bytes, CR LF line
// ends on output, any of CR LF, LF or CR accepted on input.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace morvane {

// The position of the first CR or LF at or after `from`; npos when none.
size_t FindLineBreak(std::string_view text, size_t from = 0);

// Splits text at CR LF, LF or lone CR. A final line end does not start an
// extra empty line.
std::vector<std::string> SplitLines(std::string_view text);
// The same lines as views into `text`, which must outlive them.
std::vector<std::string_view> SplitLineViews(std::string_view text);

// Joins lines with CR LF after each one.
std::string JoinCrLf(const std::vector<std::string>& lines);

bool ReadFileBytes(const std::filesystem::path& path, std::string* bytes, std::string* err);
bool WriteFileBytes(const std::filesystem::path& path, std::string_view bytes, std::string* err);
bool AppendFileBytes(const std::filesystem::path& path, std::string_view bytes, std::string* err);

bool ReadTextLines(const std::filesystem::path& path, std::vector<std::string>* lines,
                   std::string* err);
// Writes each line followed by CR LF, replacing the file.
bool WriteTextLines(const std::filesystem::path& path, const std::vector<std::string>& lines,
                    std::string* err);

}  // namespace morvane

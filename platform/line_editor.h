// Whole-line edits on text files, by full path: the operations the code
// generators use to add to procedures that may already be in a form text, and
// the re-indenter that runs over every finished file. Each call reads the file,
// edits it and writes it back with CR LF line ends; a call that finds no anchor
// leaves the file as it was. Nothing here shows anything or throws.
#pragma once

#include <filesystem>
#include <string>

namespace morvane {

int IsDuplicateLine(const std::filesystem::path& file, const std::string& line, int reserved = 0);
void InsertLine(const std::filesystem::path& file, const std::string& anchor,
                const std::string& newLine, int placement);
void ChangeLine2(const std::filesystem::path& file, const std::string& oldLine,
                 const std::string& newLine);
void ChangeLine(const std::filesystem::path& file, const std::string& line, int reserved = 0);
int AddToCtlArray(const std::filesystem::path& file, const std::string& arrayName,
                  const std::string& blockLine, const std::string& indexText);
void AddDataCtlEntry2(const std::filesystem::path& file, const std::string& dataControl,
                      const std::string& line);
void AddDataCtlEntry(const std::filesystem::path& file, const std::string& dataControl,
                     const std::string& line);
void SilentIndent(const std::filesystem::path& file);

}  // namespace morvane

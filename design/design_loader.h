// Loading the design of a form or report from its SaveAsText text: the
// parsed blocks become a FormDesign with its sections, controls (nesting
// gives Parent) and, for reports, group levels.
#pragma once

#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "design/form_design.h"

namespace morvane {

// From the lines of an export (already Windows-1252). `file` names the
// export in messages; `name` is the object's name (the text does not hold
// it). Null with "<file>:<line>: <message>" when the text cannot be read.
std::unique_ptr<FormDesign> LoadDesign(std::span<const std::string_view> lines,
                                       const std::string& file, const std::string& name,
                                       std::string* err);
std::unique_ptr<FormDesign> LoadDesign(const std::vector<std::string>& lines,
                                       const std::string& file, const std::string& name,
                                       std::string* err);

// Reads and decodes the file first (any of the encodings exports come in).
std::unique_ptr<FormDesign> LoadDesignFile(const std::filesystem::path& file,
                                           const std::string& name, std::string* err);

}  // namespace morvane

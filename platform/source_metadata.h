// Database-level facts that export tools write beside the objects: database
// properties (StartupForm, AppTitle, ...) and the project's references. Both
// come as JSON or as plain text; only the parts understood are taken.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/catalog.h"

namespace morvane {

enum class MetadataKind { None, Properties, References };

// By the file's name: "...propert..." and "...reference..." files with a
// .json, .txt or .ini extension.
MetadataKind MetadataKindOf(const std::filesystem::path& file);

// Properties from JSON (an object of names, each a value or an object with a
// "Value"; an "Items" object is looked into) or from text lines
// "Name = value" / "Name: value". False with `err` when the JSON is broken.
bool ParseProperties(std::string_view text, bool json, std::map<std::string, std::string>* out,
                     std::string* err);

// References from JSON (any object with a "GUID" member; name from "Name" or
// the member's key, version from "Major"/"Minor" or "Version" "4.2") or from
// text lines that hold a {GUID} followed by major and minor.
bool ParseReferences(std::string_view text, bool json, std::vector<ReferenceInfo>* out,
                     std::string* err);

}  // namespace morvane

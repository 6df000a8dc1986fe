// Opening a Jet file as a catalog: the first page is checked here, the rest is
// read by libmdb behind the guard, and property writes live in the overlay.
#include "platform/jet_catalog.h"

#include <cstring>
#include <fstream>

#include "platform/text_file.h"
#include "platform/text_fold.h"

namespace morvane {

namespace fs = std::filesystem;

namespace {

// The first page: bytes 0-3 are 00 01 00 00, then the engine's name; byte
// 0x14 is the file format (0 Jet 3, 1 Jet 4, 2 and up the ACE formats).
constexpr unsigned char kMagic[4] = {0x00, 0x01, 0x00, 0x00};
constexpr const char* kEngineNames[] = {"Standard Jet DB", "Standard ACE DB"};
constexpr size_t kEngineNameAt = 4;
constexpr size_t kFormatAt = 0x14;
constexpr size_t kJet3PageSize = 2048;
constexpr size_t kJet4PageSize = 4096;
// The first page, the page of libmdb's object table (MSysObjects) and at least
// one page of its rows.
constexpr size_t kMinimumPages = 3;

// libmdb trusts what it reads, so a foreign or cut-off file is refused by
// its first page and its size before libmdb sees it.
bool CheckHeader(const fs::path& file, int* version, std::string* err) {
  std::error_code ec;
  if (!fs::is_regular_file(file, ec)) {
    *err = file.string() + ": no such file";
    return false;
  }
  unsigned char head[0x20] = {};
  std::ifstream in(file, std::ios::binary);
  in.read(reinterpret_cast<char*>(head), sizeof head);
  bool known = false;
  for (const char* name : kEngineNames)
    known = known || std::memcmp(head + kEngineNameAt, name, std::strlen(name)) == 0;
  if (!in || std::memcmp(head, kMagic, sizeof kMagic) != 0 || !known) {
    *err = file.string() + ": not an Access database file";
    return false;
  }
  const int format = head[kFormatAt];
  *version = format + 3;
  const uintmax_t page = format == 0 ? kJet3PageSize : kJet4PageSize;
  const uintmax_t size = fs::file_size(file, ec);
  if (ec || size < kMinimumPages * page || size % page != 0) {
    *err = file.string() + ": the file is truncated or damaged";
    return false;
  }
  return true;
}

}  // namespace

std::string InvalidDatabaseMessage() {
  return "Invalid database file selected.  If this is a secured database, you must close and "
         "restart Morvane and fill in the Security Information section prior to choosing this "
         "database.  The user name selected must have design time permissions for the objects "
         "you wish to convert.  If this is an Access 2.0, Access 7.0 or an Access 8.0 database, "
         "convert it to an Access 2000 database and then run Morvane.";
}

std::string Access97Message() {
  return "The database you have chosen to open is opened exclusively by another user, or is not "
         "an Access 2000 or Access XP database. Close all sessions of the database, and rerun "
         "Morvane. If the database is an Access 97 database, it must be converted to the Access "
         "2000 file format before using Morvane 4.7.";
}

std::unique_ptr<JetCatalog> JetCatalog::Open(const fs::path& file, const fs::path& overlayFile,
                                             std::string* err,
                                             std::chrono::milliseconds timeLimit) {
  int version = 0;
  if (!CheckHeader(file, &version, err)) return nullptr;
  std::unique_ptr<JetCatalog> cat(new JetCatalog());
  if (!ReadJetContentsGuarded(file, timeLimit, &cat->contents_, err)) return nullptr;
  cat->version_ = version;
  for (const auto& [name, value] : cat->contents_.Properties)
    cat->properties_.emplace(text::Lower(name), std::make_pair(name, value));
  cat->overlayFile_ = overlayFile;
  cat->LoadOverlay();
  return cat;
}

std::vector<std::string> JetCatalog::ContainerDocuments(const std::string& container) const {
  for (const auto& [name, docs] : contents_.Containers)
    if (text::IEquals(name, container)) return docs;
  return {};
}

std::optional<std::string> JetCatalog::Property(const std::string& name) const {
  const std::string key = text::Lower(name);
  if (auto it = overlay_.find(key); it != overlay_.end()) return it->second.second;
  if (auto it = properties_.find(key); it != properties_.end()) return it->second.second;
  return std::nullopt;
}

void JetCatalog::SetProperty(const std::string& name, const std::string& value) {
  // A property the file has keeps the file's spelling of its name.
  const std::string key = text::Lower(name);
  const auto own = properties_.find(key);
  overlay_[key] = {own == properties_.end() ? name : own->second.first, value};
  SaveOverlay();
}

std::vector<std::pair<std::string, std::string>> JetCatalog::PropertyList() const {
  auto merged = properties_;
  for (const auto& [key, entry] : overlay_) merged[key] = entry;
  std::vector<std::pair<std::string, std::string>> out;
  for (const auto& [key, entry] : merged) out.push_back(entry);
  return out;
}

// The overlay is one "name=value" line per written property.
void JetCatalog::LoadOverlay() {
  std::vector<std::string> lines;
  if (overlayFile_.empty() || !ReadTextLines(overlayFile_, &lines, nullptr)) return;
  for (const auto& line : lines) {
    const size_t eq = line.find('=');
    if (eq == std::string::npos || eq == 0) continue;
    const std::string name = line.substr(0, eq);
    overlay_[text::Lower(name)] = {name, line.substr(eq + 1)};
  }
}

void JetCatalog::SaveOverlay() const {
  if (overlayFile_.empty()) return;
  std::vector<std::string> lines;
  for (const auto& [key, entry] : overlay_) lines.push_back(entry.first + "=" + entry.second);
  WriteTextLines(overlayFile_, lines, nullptr);
}

}  // namespace morvane

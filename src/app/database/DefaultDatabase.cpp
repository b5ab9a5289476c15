#include "app/database/DefaultDatabase.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <system_error>

#include <sys/stat.h>

#include "app/database/DatabaseAddress.h"
#include "app/database/Engines.h"
#include "util/Error.h"

namespace vantrel {

namespace {

namespace fs = std::filesystem;

// That specification says to ignore a path that is not absolute.
fs::path FolderOf(const char* pstrVariable) {
  const char* const value = std::getenv(pstrVariable);
  fs::path folder(value ? value : "");
  return folder.is_absolute() ? folder : fs::path();
}

fs::path DataFolder() {
  if (fs::path data = FolderOf("XDG_DATA_HOME"); !data.empty()) return data;
  if (const fs::path home = FolderOf("HOME"); !home.empty()) return home / ".local" / "share";
  throw std::runtime_error("no database: neither --db nor HOME nor XDG_DATA_HOME says where it is");
}

void MakeFolder(const fs::path& pobjFolder) {
  if (fs::exists(pobjFolder)) return;
  if (pobjFolder.has_relative_path()) MakeFolder(pobjFolder.parent_path());
  if (mkdir(pobjFolder.c_str(), S_IRWXU) == 0 || errno == EEXIST) return;
  throw std::runtime_error(pobjFolder.string() + ": cannot make the folder: " + std::generic_category().message(errno));
}

// An empty file, left by a process that ended before it had made the tables, counts as missing.
bool IsMade(const std::string& pstrPath) {
  std::error_code fault;
  const auto size = fs::file_size(pstrPath, fault);
  return fault ? fs::exists(pstrPath) : size > 0;
}

}  // namespace

std::string DefaultDatabasePath() { return (DataFolder() / "vantrel" / "vantrel.db").string(); }

void MakeDefaultFolder(const std::string& pstrPath) { MakeFolder(fs::path(pstrPath).parent_path()); }

void MakeDefaultDatabase(const std::string& pstrPath) {
  if (IsMade(pstrPath)) return;
  MakeDefaultFolder(pstrPath);
  try {
    CreateDatabase(DatabaseAddress(pstrPath));
  } catch (const Error&) {
    if (!IsMade(pstrPath)) throw;  // else another process was faster
  }
}

}  // namespace vantrel

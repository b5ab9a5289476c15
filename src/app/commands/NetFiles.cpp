#include "app/commands/NetFiles.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>
#include <system_error>

namespace vantrel {

namespace {

namespace fs = std::filesystem;

std::vector<std::string> FilesIn(const std::string& pstrFolder) {
  std::error_code fault;
  std::vector<std::string> files;
  for (fs::directory_iterator entry(pstrFolder, fault), end; !fault && entry != end; entry.increment(fault)) {
    std::error_code unknown;
    if (entry->path().extension() == ".pnml" && !entry->is_directory(unknown)) files.push_back(entry->path().string());
  }
  if (fault) throw std::runtime_error(pstrFolder + ": cannot read the folder: " + fault.message());
  if (files.empty()) throw std::runtime_error(pstrFolder + ": no file NAME.pnml in this folder");
  std::sort(files.begin(), files.end());
  return files;
}

}  // namespace

std::vector<std::string> NetFilesOf(const std::vector<std::string>& pcolPaths) {
  std::vector<std::string> files;
  for (const std::string& path : pcolPaths) {
    std::error_code unknown;
    if (!fs::is_directory(path, unknown)) {
      files.push_back(path);
      continue;
    }
    const auto inside = FilesIn(path);
    files.insert(files.end(), inside.begin(), inside.end());
  }
  return files;
}

}  // namespace vantrel

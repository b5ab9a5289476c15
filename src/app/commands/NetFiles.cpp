#include "app/commands/NetFiles.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

namespace vantrel {

namespace {

namespace fs = std::filesystem;

std::vector<NetFile> FilesIn(const std::string& pstrFolder) {
  std::error_code fault;
  std::vector<std::string> paths;
  for (fs::directory_iterator entry(pstrFolder, fault), end; !fault && entry != end; entry.increment(fault)) {
    std::error_code unknown;
    // Reading a pipe of that name would wait for ever for a writer.
    if (entry->path().extension() == ".pnml" && entry->is_regular_file(unknown)) paths.push_back(entry->path().string());
  }
  if (fault) return {{pstrFolder, "cannot read the folder: " + fault.message()}};
  if (paths.empty()) return {{pstrFolder, "no file NAME.pnml in this folder"}};
  std::sort(paths.begin(), paths.end());
  std::vector<NetFile> files;
  files.reserve(paths.size());
  for (std::string& path : paths) files.push_back({std::move(path), {}});
  return files;
}

}  // namespace

std::vector<NetFile> NetFilesOf(const std::vector<std::string>& pcolPaths) {
  std::vector<NetFile> files;
  for (const std::string& path : pcolPaths) {
    std::error_code unknown;
    if (!fs::is_directory(path, unknown)) {
      files.push_back({path, {}});
      continue;
    }
    const auto inside = FilesIn(path);
    files.insert(files.end(), inside.begin(), inside.end());
  }
  return files;
}

}  // namespace vantrel

#include "interchange/FileReplacement.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>
#include <system_error>

#include "interchange/PnmlError.h"

namespace vantrel {

namespace {

namespace fs = std::filesystem;

struct CloseFile {
  void operator()(std::FILE* pobjFile) const { std::fclose(pobjFile); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

[[noreturn]] void Fail(const std::string& pstrPath, const std::string& pstrReason) {
  throw PnmlError(pstrPath, "cannot be written: " + pstrReason);
}

void WriteAll(File pobjFile, std::string_view pstrBytes, const std::string& pstrPath) {
  errno = 0;
  const bool written = std::fwrite(pstrBytes.data(), 1, pstrBytes.size(), pobjFile.get()) == pstrBytes.size();
  const int problem = errno;
  errno = 0;
  const bool closed = std::fclose(pobjFile.release()) == 0;
  if (!written || !closed) Fail(pstrPath, std::strerror(written ? errno : problem));
}

/// A temporary file in the folder of the target. Removed at the end of the scope unless it has become the target.
class NeighbourFile {
 public:
  explicit NeighbourFile(const fs::path& pobjTarget) {
    constexpr int kMostTries = 1000;
    for (int number = 0; number < kMostTries && !mobjFile; ++number) {
      mobjPath = pobjTarget;
      mobjPath += ".new" + (number == 0 ? std::string() : std::to_string(number));
      mobjFile.reset(std::fopen(mobjPath.c_str(), "wbx"));
      if (!mobjFile && errno != EEXIST) break;
    }
    if (!mobjFile) Fail(pobjTarget.string(), std::strerror(errno));
  }
  NeighbourFile(const NeighbourFile&) = delete;
  NeighbourFile& operator=(const NeighbourFile&) = delete;
  ~NeighbourFile() {
    mobjFile.reset();
    std::error_code ignored;
    fs::remove(mobjPath, ignored);
  }

  void Become(const fs::path& pobjTarget, std::string_view pstrBytes) {
    WriteAll(std::move(mobjFile), pstrBytes, pobjTarget.string());
    std::error_code problem;
    const fs::file_status old = fs::status(pobjTarget, problem);
    if (!problem && fs::exists(old)) fs::permissions(mobjPath, old.permissions(), problem);
    fs::rename(mobjPath, pobjTarget, problem);
    if (problem) Fail(pobjTarget.string(), problem.message());
  }

 private:
  fs::path mobjPath;
  File mobjFile;
};

fs::path BehindLinks(const fs::path& pobjPath) {
  std::error_code problem;
  fs::path target = pobjPath;
  constexpr int kMostLinks = 40;
  for (int links = 0; links < kMostLinks && fs::is_symlink(target, problem); ++links) {
    const fs::path next = fs::read_symlink(target, problem);
    if (problem) break;
    target = next.is_absolute() ? next : target.parent_path() / next;
  }
  return target;
}

}  // namespace

void ReplaceFile(const std::string& pstrPath, std::string_view pstrBytes) {
  std::error_code ignored;
  const fs::path target = BehindLinks(pstrPath);
  const fs::file_status status = fs::status(target, ignored);
  if (fs::is_directory(status)) Fail(pstrPath, "is a directory");
  if (fs::exists(status) && !fs::is_regular_file(status)) {
    File device(std::fopen(target.c_str(), "wb"));
    if (!device) Fail(pstrPath, std::strerror(errno));
    WriteAll(std::move(device), pstrBytes, pstrPath);
    return;
  }
  NeighbourFile(target).Become(target, pstrBytes);
}

}  // namespace vantrel

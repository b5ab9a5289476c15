#include "interchange/PnmlFile.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "interchange/PnmlError.h"

namespace vantrel {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void RefuseSize(const std::string& pstrPath, std::size_t plngLimit) {
  constexpr std::size_t kMebibyte = 1024 * 1024;
  const bool whole = plngLimit >= kMebibyte && plngLimit % kMebibyte == 0;
  const std::string limit = whole ? std::to_string(plngLimit / kMebibyte) + " MiB" : std::to_string(plngLimit) + " bytes";
  throw PnmlError(pstrPath, "the file is larger than " + limit);
}

void CheckKindAndSize(const std::string& pstrPath, std::size_t plngLimit) {
  std::error_code problem;
  const fs::file_status status = fs::status(pstrPath, problem);
  if (status.type() == fs::file_type::not_found) throw PnmlError(pstrPath, "there is no such file");
  if (problem) throw PnmlError(pstrPath, "cannot be read: " + problem.message());
  if (fs::is_directory(status)) throw PnmlError(pstrPath, "is a directory");
  if (!fs::is_regular_file(status)) return;
  const auto size = fs::file_size(pstrPath, problem);
  if (!problem && size > plngLimit) RefuseSize(pstrPath, plngLimit);
}

}  // namespace

std::string ReadPnmlFile(const std::string& pstrPath, std::size_t plngLimit) {
  CheckKindAndSize(pstrPath, plngLimit);
  errno = 0;
  std::ifstream stream(pstrPath, std::ios::binary);
  if (!stream) throw PnmlError(pstrPath, std::string("cannot be read: ") + std::strerror(errno));

  std::string bytes;
  constexpr std::size_t kStep = 1024 * 1024;
  while (stream) {
    const std::size_t held = bytes.size();
    bytes.resize(held + kStep);
    stream.read(bytes.data() + held, kStep);
    bytes.resize(held + static_cast<std::size_t>(stream.gcount()));
    if (bytes.size() > plngLimit) RefuseSize(pstrPath, plngLimit);
  }
  if (stream.bad()) throw PnmlError(pstrPath, std::string("cannot be read: ") + std::strerror(errno));
  return bytes;
}

}  // namespace vantrel

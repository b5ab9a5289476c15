#include "database/sqlite/SqliteFileState.h"

#include <chrono>
#include <cstdio>
#include <thread>

namespace vantrel {

namespace {

// Times of files move in steps of the kernel's clock, at most this long.
constexpr auto kStep = std::chrono::milliseconds(20);

}  // namespace

SqliteFileState::Stamp SqliteFileState::StampOf(const std::string& pstrPath) {
  std::error_code none;
  Stamp stamp;
  stamp.Size = std::filesystem::file_size(pstrPath, none);
  stamp.Written = std::filesystem::last_write_time(pstrPath, none);
  stamp.IsThere = !none;
  return none ? Stamp() : stamp;
}

SqliteFileState::SqliteFileState(const std::string& pstrPath) : mFile(StampOf(pstrPath)), mLog(StampOf(pstrPath + "-wal")) {
  const auto age = std::filesystem::file_time_type::clock::now() - mFile.Written;
  if (age < std::filesystem::file_time_type::duration::zero() || age >= kStep) return;
  std::this_thread::sleep_for(kStep);
  mFile = StampOf(pstrPath);
  mLog = StampOf(pstrPath + "-wal");
}

bool UsesSqliteLog(const std::string& pstrPath) {
  constexpr long kReadVersion = 19;  // a byte of the header: 1 without, 2 with the log
  std::FILE* const file = std::fopen(pstrPath.c_str(), "rb");
  if (file == nullptr) return false;
  const bool isLog = std::fseek(file, kReadVersion, SEEK_SET) == 0 && std::fgetc(file) == 2;
  std::fclose(file);
  return isLog;
}

}  // namespace vantrel

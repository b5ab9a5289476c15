#include "app/commands/NetArgument.h"

#include <charconv>
#include <filesystem>
#include <system_error>

namespace vantrel {

std::optional<std::int32_t> StoredId(const std::string& pstrArgument) {
  std::int32_t id = 0;
  const char* const end = pstrArgument.data() + pstrArgument.size();
  const auto [stopped, fault] = std::from_chars(pstrArgument.data(), end, id);
  std::error_code unknown;
  if (fault != std::errc() || stopped != end || id < 1 || std::filesystem::exists(pstrArgument, unknown)) return std::nullopt;
  return id;
}

}  // namespace vantrel

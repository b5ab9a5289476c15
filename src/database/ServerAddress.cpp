#include "database/ServerAddress.h"

namespace vantrel {

namespace {

constexpr std::string_view kSchemes[] = {"postgresql://", "postgres://"};

std::size_t SchemeLength(std::string_view pstrAddress) {
  for (const auto scheme : kSchemes) {
    if (pstrAddress.starts_with(scheme)) return scheme.size();
  }
  return 0;
}

}  // namespace

bool IsServerAddress(std::string_view pstrAddress) { return SchemeLength(pstrAddress) != 0; }

std::string_view PasswordIn(std::string_view pstrAddress) {
  const auto colon = pstrAddress.find(':', SchemeLength(pstrAddress));
  const auto at = pstrAddress.rfind('@');
  if (colon == std::string_view::npos || at == std::string_view::npos || at < colon) return {};
  return pstrAddress.substr(colon, at - colon);
}

std::string ShownServerAddress(std::string_view pstrAddress) {
  const std::string_view password = PasswordIn(pstrAddress);
  std::string shown(pstrAddress);
  if (!password.empty()) shown.erase(static_cast<std::size_t>(password.data() - pstrAddress.data()), password.size());
  // A name such as "password" may be written with percent signs.
  const auto options = shown.find('?');
  if (options != std::string::npos && shown.find_first_of("%pP", options) != std::string::npos) shown.erase(options);
  return shown;
}

}  // namespace vantrel

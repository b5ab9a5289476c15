#include "app/database/DatabaseAddress.h"

#include <utility>

namespace vantrel {

namespace {

constexpr std::string_view kHidden = "***";

// "//user:secret@host" to "//user:***@host"; a password may hold anything but a slash.
void HideInAuthority(std::string& pstrAddress) {
  const std::size_t begin = pstrAddress.find("//") + 2;
  const std::size_t end = pstrAddress.find('/', begin);
  const std::size_t at = pstrAddress.rfind('@', end);
  const std::size_t colon = pstrAddress.find(':', begin);
  if (at == std::string::npos || at < begin || colon == std::string::npos || colon > at) return;
  pstrAddress.replace(colon + 1, at - colon - 1, kHidden);
}

// "?password=secret&..." to "?password=***&...".
void HideInParameters(std::string& pstrAddress) {
  constexpr std::string_view kParameter = "password=";
  for (std::size_t at = pstrAddress.find('?'); (at = pstrAddress.find(kParameter, at)) != std::string::npos;) {
    at += kParameter.size();
    pstrAddress.replace(at, pstrAddress.find('&', at) - at, kHidden);
  }
}

}  // namespace

DatabaseAddress::DatabaseAddress(std::string pstrText) : mstrText(std::move(pstrText)) {}

bool DatabaseAddress::IsServer() const { return mstrText.starts_with("postgresql://") || mstrText.starts_with("postgres://"); }

std::string DatabaseAddress::Shown() const {
  if (!IsServer()) return mstrText;
  std::string shown = mstrText;
  HideInAuthority(shown);
  HideInParameters(shown);
  return shown;
}

}  // namespace vantrel

// Addresses of database servers.
#pragma once

#include <string>
#include <string_view>

namespace vantrel {

/// True for an address of the form `postgresql://...` or `postgres://...`.
bool IsServerAddress(std::string_view pstrAddress);

/// The text from the colon before the password to the sign after it; empty without a password. In doubt it is too long, never too short.
std::string_view PasswordIn(std::string_view pstrAddress);

/// The address as messages may show it: without any password. Options that may hold one are left out.
std::string ShownServerAddress(std::string_view pstrAddress);

}  // namespace vantrel

// Addresses of database servers.
#pragma once

#include <string>
#include <string_view>

namespace vantrel {

/// True for an address of the form `postgresql://...` or `postgres://...`.
bool IsServerAddress(std::string_view pstrAddress);

/// From the colon before the password to the sign behind it; nothing where there is none. Takes in too much rather than too little.
std::string_view PasswordIn(std::string_view pstrAddress);

/// The address as messages may show it: without any password. Options that may hold one are left out.
std::string ShownServerAddress(std::string_view pstrAddress);

}  // namespace vantrel

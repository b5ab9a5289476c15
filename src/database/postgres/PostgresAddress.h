// Addresses of databases, and how they are shown.
#pragma once

#include <string>

namespace vantrel {

/// The address as messages may show it: without any password, even if the text is not an address.
std::string ShownAddress(const std::string& pstrAddress);

/// Throws Error vntErrDatabase for a text that is not the address of a PostgreSQL database, and for an ambiguous one: libpq would show a
/// piece of the password.
void CheckAddress(const std::string& pstrAddress);

}  // namespace vantrel

// Addresses of databases, and how they are shown.
#pragma once

#include <string>

namespace vantrel {

/// The address as messages may show it: without any password, even when the text is no address.
std::string ShownAddress(const std::string& pstrAddress);

/// Throws Error vntErrDatabase for a text that is no address of a PostgreSQL database, and for one whose parts cannot be told
/// apart for certain: libpq would say a piece of the password aloud.
void CheckAddress(const std::string& pstrAddress);

}  // namespace vantrel

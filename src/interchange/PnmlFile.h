#pragma once

#include <cstddef>
#include <string>

namespace vantrel {

/// The bytes of a file. A pipe or device is read like a file, up to the limit.
/// Throws PnmlError for a missing or unreadable file, a directory, and a file of more than plngLimit bytes, which is not even opened.
std::string ReadPnmlFile(const std::string& pstrPath, std::size_t plngLimit);

}  // namespace vantrel

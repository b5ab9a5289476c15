#pragma once

#include <string>
#include <string_view>

namespace vantrel {

/// Writes these bytes to a file. Writes an existing one beside itself first and then replaces it in one step: it keeps its permissions, and
/// a failure leaves it as it was. Follows a link. Writes to pipes and devices directly.
/// Throws PnmlError that names the file.
void ReplaceFile(const std::string& pstrPath, std::string_view pstrBytes);

}  // namespace vantrel

#pragma once

#include <string>
#include <string_view>

namespace vantrel {

/// Makes a file of these bytes. An existing one is replaced in one step once everything is written beside it, keeps its permissions, and
/// stays as it is when something fails; a link is followed. Pipes and devices are written to.
/// Throws PnmlError that names the file.
void ReplaceFile(const std::string& pstrPath, std::string_view pstrBytes);

}  // namespace vantrel

// An argument that names a net.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace vantrel {

/// The id of a stored workflow, when the text is a whole number above 0 and no file of that name exists; otherwise it names a file.
std::optional<std::int32_t> StoredId(const std::string& pstrArgument);

}  // namespace vantrel

// Texts of stored rows.
#pragma once

#include <string>

#include "util/Variant.h"

namespace vantrel {

/// The text of a column that may have no value.
inline std::string TextOrNone(const Variant& pvarValue) { return pvarValue.IsNull() ? std::string() : pvarValue.ToText(); }

}  // namespace vantrel

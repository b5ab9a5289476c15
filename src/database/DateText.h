// Dates as statements and engines write them.
#pragma once

#include <string_view>

#include "util/Date.h"

namespace vantrel {

/// Reads "YYYY-MM-DD", "YYYY-MM-DD HH:MM:SS" or the latter with a point and up to nine digits of a second, cut to whole
/// milliseconds. False for other texts and for days that do not exist.
[[nodiscard]] bool ParseDate(std::string_view pstrText, Date& pdtmValue);

}  // namespace vantrel

// What nlohmann's library leaves to its user.
#pragma once

#include <string>

#include <nlohmann/json_fwd.hpp>

namespace vantrel {

/// A number whose decimals read back as the same float or double: without a point when it is whole, null for NaN and infinity.
nlohmann::ordered_json Decimal(float psngNumber);
nlohmann::ordered_json Decimal(double pdblNumber);

/// The text on one line. Bytes that are not UTF-8 become the replacement character U+FFFD.
std::string OneLine(const nlohmann::ordered_json& pobjJson);

}  // namespace vantrel

#pragma once

#include <string>

namespace vantrel {

/// The text that a reader gets for a text written as a PNML label: without the blanks around it, with U+FFFD for what XML cannot contain
/// and every line end as a line feed.
std::string PnmlLabel(const std::string& pstrText);

/// True for a weight that PNML can say: a positive whole number, written as such.
bool IsPnmlWeight(const std::string& pstrWeight);

}  // namespace vantrel

#pragma once

#include <string>

namespace vantrel {

/// What a reader of the file gets for a text written as the text of a PNML label: without the blanks around it, and with U+FFFD for what
/// XML cannot carry.
std::string PnmlLabel(const std::string& pstrText);

/// True for a weight that PNML can say: a positive whole number, written as such.
bool IsPnmlWeight(const std::string& pstrWeight);

}  // namespace vantrel

// Text on a terminal.
#pragma once

#include <string>

namespace vantrel {

/// The text with blanks for control characters, so that it stays on one line and moves no cursor.
std::string OnOneLine(std::string pstrText);

}  // namespace vantrel

#pragma once

#include <string>

namespace vantrel {

/// Why no window can be shown here, in a line; empty when one can. Must be asked before there is a QCoreApplication.
std::string WhyNoDisplay();

}  // namespace vantrel

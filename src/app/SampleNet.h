#pragma once

#include <string_view>

namespace vantrel {

/// The text of data/order-handling.pnml.
std::string_view SampleNet();

}  // namespace vantrel

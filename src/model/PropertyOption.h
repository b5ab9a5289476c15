// One choice that a property record offers.
#pragma once

#include <string>

#include "util/Variant.h"

namespace vantrel {

/// What a property grid shows for a choice, and the value that the record gets when the user takes it.
struct PropertyOption {
  std::string Prompt;  ///< shown to the user; key in PropertyRecord::Options
  Variant Value;
};

}  // namespace vantrel

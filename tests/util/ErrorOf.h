#pragma once

#include <cstdint>
#include <functional>

#include "util/Error.h"

namespace vantrel::test {

/// The number of the Error that the action throws; 0 when it throws none.
inline std::int32_t ErrorOf(const std::function<void()>& pAction) {
  try {
    pAction();
  } catch (const Error& error) {
    return error.Number;
  }
  return 0;
}

}  // namespace vantrel::test

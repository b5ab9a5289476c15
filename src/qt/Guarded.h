// Keeps errors out of Qt's event loop.
#pragma once

#include <exception>
#include <utility>

#include "util/MsgBox.h"

namespace vantrel {

/// Does what the user asked for. What goes wrong is shown in a box: thrown on through an event handler or a slot of Qt, it would end
/// the process. The box runs an event loop, so whatever the caller belongs to may be gone afterwards.
template <class Work>
void Guarded(Work&& pWork) {
  try {
    std::forward<Work>(pWork)();
  } catch (const std::exception& failure) {
    MsgBox(failure.what());
  }
}

}  // namespace vantrel

// The program as a window.
#pragma once

#include <cstdint>
#include <string>

#include "app/database/DatabaseAddress.h"
#include "app/window/Display.h"
#include "interchange/PnmlReader.h"

namespace vantrel {

/// What the window begins with.
struct DesignRequest {
  DatabaseAddress Database;
  std::int32_t Id = 0;  ///< a stored workflow
  std::string File;     ///< or a PNML file; without both, what was open last, or a new workflow
  PnmlOptions FileOptions;
};

/// Shows the window until the user closes it. Returns an ExitStatus. Throws before there is a window when the database, workflow or file
/// asked for cannot be used, or when no window can be shown.
int RunDesigner(const DesignRequest& pobjRequest, DisplayQuestion& pobjDisplay);

}  // namespace vantrel

// Files named on the command line.
#pragma once

#include <string>
#include <vector>

namespace vantrel {

/// The paths, with every folder replaced by its files NAME.pnml in the order of their names, not those of folders inside it.
/// Throws std::runtime_error for a folder that has none or cannot be read.
std::vector<std::string> NetFilesOf(const std::vector<std::string>& pcolPaths);

}  // namespace vantrel

// Files named on the command line.
#pragma once

#include <string>
#include <vector>

namespace vantrel {

/// A file with nets, or a folder and why there is nothing in it to read.
struct NetFile {
  std::string Path;
  std::string Failure;
};

/// The paths, with every folder replaced by its files NAME.pnml in the order of their names, not those of folders inside it.
std::vector<NetFile> NetFilesOf(const std::vector<std::string>& pcolPaths);

}  // namespace vantrel

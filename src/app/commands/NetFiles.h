// Files named on the command line.
#pragma once

#include <string>
#include <vector>

namespace vantrel {

/// A file with nets, or a folder and the reason why it has nothing to read.
struct NetFile {
  std::string Path;
  std::string Failure;
};

/// The paths, with every folder replaced by its files NAME.pnml in the order of their names, without those of its subfolders.
std::vector<NetFile> NetFilesOf(const std::vector<std::string>& pcolPaths);

}  // namespace vantrel

// The database that is used when none is named.
#pragma once

#include <string>

namespace vantrel {

/// vantrel/vantrel.db in the user's data folder: $XDG_DATA_HOME, else ~/.local/share (XDG Base Directory Specification).
/// Throws std::runtime_error when the environment names no such folder.
std::string DefaultDatabasePath();

/// Makes the folders above the file, accessible to the user alone.
void MakeDefaultFolder(const std::string& pstrPath);
/// Makes the file with its tables if it is missing, after MakeDefaultFolder.
void MakeDefaultDatabase(const std::string& pstrPath);

}  // namespace vantrel

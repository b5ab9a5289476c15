// The database that serves where none is named.
#pragma once

#include <string>

namespace vantrel {

/// vantrel/vantrel.db in the user's data folder: $XDG_DATA_HOME, else ~/.local/share (XDG Base Directory Specification).
/// Throws std::runtime_error where the environment names no such folder.
std::string DefaultDatabasePath();

/// Makes the folders above the file, which are the user's alone.
void MakeDefaultFolder(const std::string& pstrPath);
/// Makes the file with its tables where it is missing, with MakeDefaultFolder.
void MakeDefaultDatabase(const std::string& pstrPath);

}  // namespace vantrel

// Stores nets of PNML files in a database.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "app/database/OpenDatabase.h"
#include "interchange/PnmlReader.h"

namespace vantrel {

/// The result for a file.
struct ImportOutcome {
  std::string File;
  std::int32_t Id = 0;             ///< of the new workflow; 0 when it was not stored
  std::string NetId, NetName;      ///< of the net that was read; empty if there was none
  std::string Failure;             ///< why it was not stored
  std::vector<std::string> Notes;  ///< what of it was not stored, a line each
};

/// Stores the net of a file with its sub-processes: all or nothing.
ImportOutcome ImportNet(OpenDatabase& pobjDatabase, const std::string& pstrFile, const PnmlOptions& pobjOptions);

/// One JSON object on one line; docs/command-line.md describes it.
std::string ImportJson(const std::vector<ImportOutcome>& pcolOutcomes);

}  // namespace vantrel

// From a PNML file to a workflow.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "interchange/InitialTokens.h"
#include "interchange/PnmlReader.h"
#include "model/Workflow.h"

namespace vantrel {

/// A workflow read from a file or a database, with what is known of it besides.
struct LoadedNet {
  std::shared_ptr<vantrel::Workflow> Workflow;
  std::string Id;
  std::string Name;                    ///< the net's name, or its id where it has none
  std::vector<InitialTokens> Marking;  ///< in the order of the places; places without tokens are left out
  std::vector<std::string> Skipped;    ///< one line for every arc left out, see PnmlOptions::SkipUnsupported
  std::int32_t SourcePlaces = 0;       ///< places without input arcs; one makes the start place
  std::int32_t SinkPlaces = 0;         ///< places without output arcs; one makes the end place
};

/// Reads a net and builds its workflow: keys in document order, the file's ids in HiddenTag, names unique per kind, pixels
/// of the file as twips (15 each), a layout where the file has none that is of use. Of a file that ExportPnml wrote it makes
/// the workflow that was written. Throws PnmlError, and then nothing was made.
LoadedNet ImportPnml(const std::string& pstrPath, const PnmlOptions& pobjOptions = {});

/// Builds the workflow of a net that has been read; sub-process nets become embedded workflows of their transitions.
LoadedNet BuildWorkflow(const PnmlNet& pobjNet);

}  // namespace vantrel

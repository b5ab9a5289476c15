#include "app/play/StoredNet.h"

#include <string>

namespace vantrel {

LoadedNet ReadStoredNet(OpenDatabase& pobjDatabase, std::int32_t plngId) {
  LoadedNet net;
  net.Workflow = pobjDatabase.ReadWorkflow(plngId);
  net.Id = std::to_string(plngId);
  net.Name = "workflow " + net.Id;
  for (const auto& place : net.Workflow->Places) {
    if (place->InArcs.IsEmpty()) ++net.SourcePlaces;
    if (place->OutArcs.IsEmpty()) ++net.SinkPlaces;
  }
  return net;
}

}  // namespace vantrel

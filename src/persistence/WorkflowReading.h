// Reads rows into a workflow.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <unordered_set>

#include "model/Workflow.h"
#include "persistence/DatabaseAccess.h"
#include "persistence/NestedReading.h"
#include "persistence/TokenPropertyStore.h"

namespace vantrel {

/// Fills one new workflow. Takes time in proportion to the rows.
class WorkflowReading {
 public:
  /// Transitions ask the nested reading for the workflows that they embed.
  WorkflowReading(DatabaseAccess& pobjAccess, const std::shared_ptr<Workflow>& pobjWorkflow, NestedReading& pobjNested)
      : mobjAccess(pobjAccess), mobjWorkflow(pobjWorkflow), mobjNested(pobjNested) {}

  /// False when there is no row with that id. Throws Error for a row that cannot be read; from the first arc on, leaves such rows out.
  bool Run(std::int32_t plngRecId);

 private:
  void ReadSettings(const Recordset& pobjRow);
  void ReadNotations();
  void ReadTransitions();
  void ReadPlaces();
  void ReadPlace(Place& pobjPlace, const Recordset& pobjRow);
  void ReadName(Place& pobjPlace, const std::string& pstrName);
  void ReadArcs();
  void ReadArc(const Recordset& pobjRow);
  void ReadPath(Arc& pobjArc);
  void ReadSegment(Vector& pobjVector, const Recordset& pobjRow);
  std::unique_ptr<Recordset> RowsOf(const char* pstrFrom);
  /// Runs a step that may fail.
  template <class Step>
  void Try(Step&& pStep);

  DatabaseAccess& mobjAccess;
  std::shared_ptr<Workflow> mobjWorkflow;
  NestedReading& mobjNested;
  std::unordered_set<std::string> mcolPlaceNames;
  // The first object of each id, as a search from the beginning would find it.
  std::unordered_map<std::int32_t, std::shared_ptr<Place>> mcolPlaces;
  std::unordered_map<std::int32_t, std::shared_ptr<Transition>> mcolTransitions;
};

}  // namespace vantrel

// Reads a workflow together with those embedded in it.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <utility>
#include <vector>

#include "model/Workflow.h"

namespace vantrel {

class WorkflowDatabase;

/// One reading of a workflow. Each workflow is read once, however many transitions embed it: these share the object, as they did when
/// it was saved. While the rows of one are read, those that it embeds are only noted, and read afterwards: no depth of embedding
/// needs more of the thread's stack.
class NestedReading {
 public:
  NestedReading() = default;
  NestedReading(const NestedReading&) = delete;
  NestedReading& operator=(const NestedReading&) = delete;

  /// Null when there is no workflow of that id. What it read last becomes gobjWorkflow. Throws Error 5 for a workflow that is embedded
  /// in itself.
  std::shared_ptr<Workflow> Run(WorkflowDatabase& pobjDatabase, std::int32_t plngId);

  /// The reading whose transition asks for its workflow now; null outside of one.
  static NestedReading* ThatAsks();
  /// The workflow of that id, whose rows will be read before Run returns.
  std::shared_ptr<Workflow> Embedded(WorkflowDatabase& pobjDatabase, std::int32_t plngId);

  /// Lets transitions ask for their workflows while it lives.
  class Asking {
   public:
    explicit Asking(NestedReading& pobjReading);
    ~Asking();
    Asking(const Asking&) = delete;
    Asking& operator=(const Asking&) = delete;

   private:
    NestedReading* mobjBefore;
  };

 private:
  struct Item {
    WorkflowDatabase* Database;
    std::int32_t Id;
    std::shared_ptr<vantrel::Workflow> Workflow;
    std::vector<Item*> Embeds;  // one for each transition with an embedded workflow, in their order
    bool IsFound = false;
  };

  Item& ItemOf(WorkflowDatabase& pobjDatabase, std::int32_t plngId);
  void Read(Item& pobjItem);
  void ReadAll(Item& pobjOutermost);
  void CheckCircle(const Item& pobjOuter, const Item& pobjInner) const;
  void TakeOutMissing();
  void MakeLastCurrent(Item& pobjOutermost);

  std::map<std::pair<WorkflowDatabase*, std::int32_t>, std::unique_ptr<Item>> mcolItems;
  std::vector<Item*> mcolWaiting;
  Item* mobjNow = nullptr;  // whose rows are being read
};

}  // namespace vantrel

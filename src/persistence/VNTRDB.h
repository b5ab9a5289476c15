// The database access object: what hosts call to read and save.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "database/Connection.h"
#include "model/Workflow.h"
#include "model/WorkflowReader.h"

namespace vantrel {

class WorkflowDatabase;

/// Reads and saves workflows, token property definitions, cases and tokens over a connection that the host opens and passes in. Never
/// creates or changes a table: the host does, with data/schema/. Every operation that writes runs in one transaction, inside the host's
/// if the host has begun one. For one thread.
///
/// Failing statements do not end an operation, as each says. They are shown in message boxes in their order when the operation is over:
/// nobody waits for a lock while a box is read.
class VNTRDB final : public Object, public WorkflowReader {
 public:
  /// The result of a save without a connection.
  static constexpr std::int32_t kNoConnection = 999;

  VNTRDB();
  ~VNTRDB() override;

  std::shared_ptr<vantrel::Connection> Connection;  ///< open; null until the host passes one in

  std::string Class() const override { return "VNTR.VNTRDB.1"; }

  /// The workflow with everything drawn in it and the workflows embedded in it, not shown yet; null when there is no such id, or no
  /// connection that can be used. Transitions that embed the same workflow share one object; two readings share nothing.
  /// Makes what it reads the process-wide current workflow (gobjWorkflow), even if it found nothing. Reads one state of the database.
  /// Throws Error for columns that cannot be read and Error 5 for a workflow that is embedded in itself; leaves out arcs that cannot
  /// be read.
  std::shared_ptr<Workflow> ReadWorkflow(std::int32_t plngRecId) override;

  /// Writes the whole chart of the workflow and removes rows whose objects are gone; new objects get their ids. Does not save
  /// token property definitions (SaveTokenProperties). 0 when the save ran, whatever was refused and shown on the way; 999
  /// without connection; the failure's number, which was shown, when the transaction could not begin, was given up or could not
  /// be committed: then nothing was saved and ids and dirty marks are what they were, so that the save can be repeated. A failing arc
  /// throws and ends the save with what was written before it.
  std::int32_t SaveWorkFlow(const std::shared_ptr<Workflow>& pobjWorkflow);
  /// Removes the rows of the chart; definitions, cases and tokens stay.
  void DeleteWorkflow(const Variant& pvarRecId);

  /// The next free id of a table whose ids the system gives: 1 for an empty one. While a write transaction is open no other program gets
  /// the same id; otherwise the host must ensure that.
  std::int32_t NextId(const std::string& pstrTableName);

  /// The definitions of a place in the order in which they were saved, with their options; never null.
  std::shared_ptr<PropertyCollection> ReadTokenProperties(std::int32_t plngPlaceRecId);
  /// The options of a stored definition; never null.
  std::shared_ptr<Collection<PropertyOption>> ReadPropertyOptions(std::int32_t plngPropertyRecId);
  /// Replaces the stored definitions of the place. The records in memory keep their old ids: read the workflow again before you save
  /// tokens with values of new definitions.
  void SaveTokenProperties(const std::shared_ptr<Place>& pobjPlace);

  /// 0 or the failure's number of the statement; 999 without connection; empty when nothing had to be written.
  Variant SaveWorkcase(const std::shared_ptr<WorkCase>& pobjWorkcase);
  /// Writes the new and changed tokens of the token's case (or those without case) in the token's workflow, with their values.
  /// Only the given token is marked clean. 0 or the number of the last statement; empty when nothing had to be written.
  Variant SaveToken(const std::shared_ptr<Token>& pobjToken);
  /// Writes the values that differ from their definitions' defaults, and those that have a row already; each remembers its row
  /// in its Id. Throws Error 5 for a value without definition.
  void SaveTokenPropertyValues(const std::shared_ptr<Token>& pobjToken);

  /// Puts the stored cases and tokens back into a workflow that was just read. Unconsumed tokens go into their places, in the order in
  /// which they were saved. Consumed ones go into Workflow::Tokens alone, and so do those in the end place, which releases its tokens
  /// unless history is kept. Enables transitions and fills the firing stack by the rules for that marking and the workflow's own case
  /// tracking; nothing fires. Returns the cases that have tokens, in order of their ids; Key and Name are "WorkCase" and the id.
  /// Throws Error 5 when the workflow already has tokens; after any Error it has none.
  std::vector<std::shared_ptr<WorkCase>> ReadCases(const std::shared_ptr<Workflow>& pobjWorkflow);

 private:
  template <class Work>
  auto Shown(Work&& pWork);
  void ShowReport();

  std::unique_ptr<WorkflowDatabase> mobjDatabase;
};

}  // namespace vantrel

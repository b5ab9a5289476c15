// A database that a command works with.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

#include "app/database/DatabaseAddress.h"
#include "model/DesignerState.h"
#include "persistence/WorkflowDatabase.h"

namespace vantrel {

/// A failure of work with a database; its text begins with the database's name.
class DatabaseFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// An open connection to a database that has the system's tables in the version of this program, or a host's, with what reads and saves
/// objects over it. While it lives, message boxes are answered with OK and become lines on standard error, or the text of a
/// DatabaseFailure.
class OpenDatabase {
 public:
  /// Throws DatabaseFailure, which says how to make a database that is not there.
  explicit OpenDatabase(const DatabaseAddress& pobjAddress);
  ~OpenDatabase() = default;
  OpenDatabase(const OpenDatabase&) = delete;
  OpenDatabase& operator=(const OpenDatabase&) = delete;

  /// The version of the tables at the address, where it is not newer than this program. Throws DatabaseFailure for other tables and
  /// for none.
  static std::int32_t VersionToUpgrade(const DatabaseAddress& pobjAddress);

  const std::string& Name() const { return mstrName; }
  vantrel::Connection& Connection() { return *mobjConnection; }
  WorkflowDatabase& Access() { return mAccess; }

  /// Does the work. Throws an Error that leaves it, and a failure that was only reported, as a DatabaseFailure.
  void Do(const std::function<void()>& pWork);

  /// Throws DatabaseFailure when there is none with that id.
  std::shared_ptr<Workflow> ReadWorkflow(std::int32_t plngId);
  /// Saves the workflow with those embedded in it, all or nothing; when it throws, ids and marks of change are what they were.
  void Save(const std::shared_ptr<Workflow>& pobjWorkflow);
  DatabaseFailure NoSuchWorkflow(std::int32_t plngId) const;

 private:
  void CheckTables();
  DatabaseFailure Failure(const std::string& pstrWhat) const;
  // In the words of the engine, most of which name the database.
  DatabaseFailure EngineFailure(const std::string& pstrDescription) const;

  std::string mstrName;
  DesignerStateScope mStateBefore;  // reading makes what it reads the current workflow
  std::shared_ptr<vantrel::Connection> mobjConnection;
  WorkflowDatabase mAccess{mobjConnection};
};

}  // namespace vantrel

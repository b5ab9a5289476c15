#include "app/database/OpenDatabase.h"

#include <filesystem>
#include <unordered_set>
#include <utility>
#include <vector>

#include "app/database/Engines.h"
#include "app/database/SchemaVersion.h"
#include "database/TransactionScope.h"
#include "persistence/ChartColor.h"
#include "persistence/WholeSave.h"
#include "util/Error.h"

namespace vantrel {

namespace {

std::string QuotedForShell(const std::string& pstrText) {
  if (pstrText.find_first_of(" \t\n'\"\\$`*?[]<>|&;()#~!{}") == std::string::npos) return pstrText;
  std::string quoted = "'";
  for (const char c : pstrText) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return quoted + "'";
}

DatabaseFailure FailureOf(const std::string& pstrName, const std::string& pstrWhat) { return DatabaseFailure(pstrName + ": " + pstrWhat); }

// In the words of the engine, most of which name the database.
DatabaseFailure EngineFailureOf(const std::string& pstrName, const std::string& pstrDescription) {
  return pstrDescription.find(pstrName) == std::string::npos ? FailureOf(pstrName, pstrDescription) : DatabaseFailure(pstrDescription);
}

std::shared_ptr<Connection> Connect(const DatabaseAddress& pobjAddress) {
  const std::string name = pobjAddress.Shown();
  if (!pobjAddress.IsServer() && !std::filesystem::exists(pobjAddress.Text())) {
    if (name.find("://") != std::string::npos) {
      throw FailureOf(name, "not an address of a database: that is a file, or postgresql://USER@HOST/NAME");
    }
    throw FailureOf(name, "no such database; `vantrel db create --db " + QuotedForShell(name) + "` makes it");
  }
  try {
    return OpenConnection(pobjAddress);
  } catch (const Error& error) {
    throw EngineFailureOf(name, error.Description);
  }
}

// Throws when the system's tables are missing or from a newer program.
SchemaVersion VersionOf(Connection& pobjConnection, const std::string& pstrName) {
  SchemaVersion version;
  try {
    version = FindSchemaVersion(pobjConnection);
  } catch (const Error& error) {
    throw EngineFailureOf(pstrName, error.Description);
  }
  if (version.Kind == SchemaKind::None && version.HasNames) {
    throw FailureOf(pstrName, "not a database of this system (" + version.Lack + ")");
  }
  if (version.Kind == SchemaKind::None) {
    throw FailureOf(pstrName, "a database without the tables of this system (" + version.Lack + "); `vantrel db create --db " +
                                  QuotedForShell(pstrName) + "` makes them");
  }
  if (version.Number > kSchemaVersion) {
    throw FailureOf(pstrName, "its tables have version " + std::to_string(version.Number) + ", this program knows " +
                                  std::to_string(kSchemaVersion) + "; a newer one is needed");
  }
  return version;
}

// Of the workflow and of all that are embedded in it.
void ReadColors(Connection& pobjConnection, const std::shared_ptr<Workflow>& pobjWorkflow) {
  std::vector<std::shared_ptr<Workflow>> found = {pobjWorkflow};
  std::unordered_set<const Workflow*> seen = {pobjWorkflow.get()};
  for (std::size_t i = 0; i < found.size(); ++i) {
    const auto workflow = found[i];  // the list grows
    workflow->ChartColor = ReadChartColor(pobjConnection, workflow->RecId);
    for (const auto& transition : workflow->Transitions) {
      const auto inner = transition->EmbeddedWorkflow();
      if (inner && seen.insert(inner.get()).second) found.push_back(inner);
    }
  }
}

}  // namespace

OpenDatabase::OpenDatabase(const DatabaseAddress& pobjAddress) : mstrName(pobjAddress.Shown()), mobjConnection(Connect(pobjAddress)) {
  CheckTables();
}

std::int32_t OpenDatabase::VersionToUpgrade(const DatabaseAddress& pobjAddress) {
  const auto connection = Connect(pobjAddress);
  const SchemaVersion version = VersionOf(*connection, pobjAddress.Shown());
  if (version.Kind == SchemaKind::Hosts)
    throw FailureOf(pobjAddress.Shown(), "its tables are not of this program: there is nothing to upgrade");
  return version.Number;
}

void OpenDatabase::CheckTables() {
  const SchemaVersion version = VersionOf(Connection(), mstrName);
  if (version.Kind == SchemaKind::Hosts || version.Number == kSchemaVersion) return;
  throw Failure("its tables have version " + std::to_string(version.Number) + ", this program needs " + std::to_string(kSchemaVersion) +
                "; `vantrel db upgrade --db " + QuotedForShell(mstrName) + "` brings them there");
}

void OpenDatabase::Do(const std::function<void()>& pWork) {
  mAccess.TakeReport();
  try {
    pWork();
    mAccess.Failed().ThrowFirst();
  } catch (const Error& error) {
    const Report report = mAccess.TakeReport();
    throw EngineFailure(report.IsClean() ? error.Description : report.Failures().front().Description);
  }
}

void OpenDatabase::Save(const std::shared_ptr<Workflow>& pobjWorkflow) {
  Do([&] { SaveWhole(mobjConnection, pobjWorkflow); });
}

std::shared_ptr<Workflow> OpenDatabase::ReadWorkflow(std::int32_t plngId) {
  std::shared_ptr<Workflow> workflow;
  Do([&] {
    TransactionScope moment(Connection(), Transaction::Read);
    workflow = mAccess.ReadWorkflow(plngId);
    if (workflow) ReadColors(Connection(), workflow);
    moment.Commit();  // a rollback would end the transaction around this one
  });
  if (workflow) return workflow;
  CheckTables();  // a lost connection would look the same
  throw NoSuchWorkflow(plngId);
}

DatabaseFailure OpenDatabase::NoSuchWorkflow(std::int32_t plngId) const {
  return Failure("no workflow " + std::to_string(plngId) + "; `vantrel list` says which there are");
}

DatabaseFailure OpenDatabase::Failure(const std::string& pstrWhat) const { return FailureOf(mstrName, pstrWhat); }

DatabaseFailure OpenDatabase::EngineFailure(const std::string& pstrDescription) const { return EngineFailureOf(mstrName, pstrDescription); }

}  // namespace vantrel

// What every engine must do. An engine's own test file instantiates ConnectionContract with a ContractEngine.
#pragma once

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "database/Connection.h"

namespace vantrel::test {

/// A new database with the tables, deleted with this object.
class ContractDatabase {
 public:
  ContractDatabase() = default;
  ContractDatabase(const ContractDatabase&) = delete;
  ContractDatabase& operator=(const ContractDatabase&) = delete;
  virtual ~ContractDatabase() = default;

  /// A new session each time.
  virtual std::shared_ptr<Connection> Connect() = 0;
};

struct ContractEngine {
  std::string Name;
  /// Null when the engine is not there: then the tests are skipped, with the reason below.
  std::function<std::unique_ptr<ContractDatabase>()> Make;
  std::string WhyMissing;

  friend std::ostream& operator<<(std::ostream& pobjStream, const ContractEngine& pEngine) { return pobjStream << pEngine.Name; }
};

class ConnectionContract : public testing::TestWithParam<ContractEngine> {
 protected:
  void SetUp() override;

  std::unique_ptr<ContractDatabase> mobjDatabase;
  std::shared_ptr<Connection> mobjConnection;
};

/// An open row set.
std::unique_ptr<Recordset> Opened(Connection& pobjConnection, const std::string& pstrSource);
/// The column of all rows as text; a Null as "NULL".
std::vector<std::string> Column(Connection& pobjConnection, const std::string& pstrSql, const std::string& pstrName);
/// Adds a row through a row set and returns its id.
using Assignments = std::vector<std::pair<std::string, Variant>>;
std::int32_t Add(Connection& pobjConnection, const std::string& pstrTable, const Assignments& pcolValues);
/// A workflow row.
void AddWorkflow(Connection& pobjConnection, std::int32_t plngId);
/// One of the workflow 1.
std::int32_t AddArc(Connection& pobjConnection, const char* pstrGuard);
/// A token property of the place 7.
void AddDefinition(Connection& pobjConnection, const std::string& pstrName, int plngIndex);
/// The number of the Error that the action throws; 0 when it throws none.
std::int32_t ErrorOf(const std::function<void()>& pobjAction, std::string* pstrDescription = nullptr);

}  // namespace vantrel::test

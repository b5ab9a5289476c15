#include "persistence/RecordingConnection.h"

#include <gtest/gtest.h>

#include "util/Error.h"

namespace vantrel::test {

namespace {

std::string Written(const Variant& pvarValue) {
  if (pvarValue.IsNull()) return "Null";
  return pvarValue.IsText() ? "'" + pvarValue.ToText() + "'" : pvarValue.ToText();
}

std::string Trimmed(const std::string& pstrText) {
  const auto first = pstrText.find_first_not_of(' ');
  return first == std::string::npos ? "" : pstrText.substr(first, pstrText.find_last_not_of(' ') - first + 1);
}

}  // namespace

class RecordedRows final : public Recordset {
 public:
  explicit RecordedRows(RecordingConnection& pobjConnection) : mobjConnection(pobjConnection) {}

  void Open(const std::string& pstrSource) override {
    EXPECT_EQ(ActiveConnection, &mobjConnection);
    EXPECT_EQ(CursorLocation, vntUseClient);
    EXPECT_EQ(CursorType, vntOpenForwardOnly);
    EXPECT_EQ(LockType, vntLockOptimistic);
    mobjConnection.Note("[" + std::to_string(mobjConnection.CursorLocation) + "] " + pstrSource);
    mobjConnection.FailIfTold(pstrSource);
    mcolRows = mobjConnection.RowsFor(pstrSource);
  }
  bool Eof() const override { return mAt >= mcolRows.size(); }
  void MoveNext() override {
    if (Eof()) throw Error(vntErrNoCurrentRow);
    ++mAt;
  }
  std::int32_t RecordCount() const override { return static_cast<std::int32_t>(mcolRows.size()); }
  Field Fields(std::string_view pstrName) const override {
    if (Eof()) throw Error(vntErrNoCurrentRow);
    const auto found = mcolRows[mAt].find(std::string(pstrName));
    if (found == mcolRows[mAt].end()) throw Error(vntErrNoSuchColumn);
    return {found->second};
  }
  void AddNew() override {
    mcolRows.emplace_back();
    mAt = mcolRows.size() - 1;
    mblnNew = true;
    mobjConnection.Log.insert(mobjConnection.Log.size() - 1, " -> new");
  }
  void Collect(std::string_view pstrName, const Variant& pvarValue) override {
    if (Eof()) throw Error(vntErrNoCurrentRow);
    mcolRows[mAt][std::string(pstrName)] = pvarValue;
    mstrAssigned += "  " + std::string(pstrName) + "=" + Written(pvarValue);
  }
  void Update() override {
    mobjConnection.Note(mstrAssigned);
    mobjConnection.FailIfTold(mstrAssigned);
    if (mblnNew) mcolRows[mAt]["Id"] = ++mobjConnection.mlngLastId;
  }

 private:
  RecordingConnection& mobjConnection;
  std::vector<RecordingConnection::Row> mcolRows;
  std::size_t mAt = 0;
  std::string mstrAssigned;
  bool mblnNew = false;
};

void RecordingConnection::FailIfTold(const std::string& pstrSql) {
  for (Failure& failure : Failures) {
    if (pstrSql.find(failure.Piece) == std::string::npos || failure.Passes-- > 0) continue;
    if (failure.LosesTransaction) mblnLost = true;
    throw Error(failure.Number, failure.Description);
  }
}

std::vector<RecordingConnection::Row> RecordingConnection::RowsFor(const std::string& pstrSql) const {
  const std::string sql = Trimmed(pstrSql);
  for (const auto& [start, rows] : Rows) {
    if (sql.starts_with(start)) return rows;
  }
  if (sql.starts_with("SELECT MAX")) return {{{"MaxId", Variant::Null}}};
  const std::string byId = " WHERE Id = ";
  const auto at = sql.find(byId);
  const std::string id = at == std::string::npos ? "0" : sql.substr(at + byId.size());
  if (id == "0" || !sql.starts_with("SELECT *")) return {};
  return {{{"Id", std::stoi(id)}}};
}

void RecordingConnection::Execute(const std::string& pstrSql, std::int32_t plngOptions) {
  EXPECT_EQ(plngOptions, kOptionsUnspecified);
  Note("[" + std::to_string(CursorLocation) + "] " + pstrSql);
  FailIfTold(pstrSql);
}

void RecordingConnection::Open(const std::string& pstrAddress, const std::string& pstrUserId, const std::string& pstrPassword,
                               std::int32_t plngOptions) {
  EXPECT_EQ(pstrAddress + pstrUserId + pstrPassword, "");
  EXPECT_EQ(plngOptions, kOptionsUnspecified);
  Note("reopen");
  if (!WhyNotReopened.empty()) throw Error(vntErrDatabase, WhyNotReopened);
}

std::unique_ptr<Recordset> RecordingConnection::NewRecordset() { return std::make_unique<RecordedRows>(*this); }

void RecordingConnection::BeginTrans(Transaction /*pTransaction*/) {
  if (!WhyNotBegun.empty()) throw Error(vntErrDatabase, WhyNotBegun);
  ++Transactions;
  ++mlngDepth;
}

void RecordingConnection::CommitTrans() {
  --mlngDepth;
  const bool lost = mblnLost;
  if (mlngDepth == 0) mblnLost = false;
  if (lost) throw Error(vntErrDatabase, "lost");
  if (!WhyNotCommitted.empty()) throw Error(vntErrDatabase, WhyNotCommitted);
  ++Commits;
}

void RecordingConnection::RollbackTrans() noexcept {
  ++Rollbacks;
  mblnLost = --mlngDepth > 0;
}

}  // namespace vantrel::test

#include "database/EngineRecordset.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "database/Dialect.h"
#include "database/SqlTokenizer.h"
#include "util/Error.h"

namespace vantrel {

namespace {

const Variant kNull = Variant::Null;

// The name, or nothing for a statement.
std::string_view TableNamedAlone(std::string_view pstrSource) {
  SqlTokenizer tokens(pstrSource);
  const SqlToken first = tokens.Next();
  const bool isName = first.Kind == SqlTokenKind::Word || first.Kind == SqlTokenKind::BracketedName;
  return isName && tokens.Peek().Kind == SqlTokenKind::End ? first.Text : std::string_view();
}

// The table of `SELECT * FROM table WHERE Id = number`, or nothing for another source.
std::string_view TableOfOneRow(std::string_view pstrSource) {
  SqlTokenizer tokens(pstrSource);
  if (!tokens.Next().IsWord(SqlWord::Select) || !tokens.Next().IsSymbol("*") || !tokens.Next().IsWord(SqlWord::From)) return {};
  const SqlToken table = tokens.Next();
  const bool isTable = table.Kind == SqlTokenKind::Word || table.Kind == SqlTokenKind::BracketedName;
  if (!isTable || !IsSameName(tokens.Next().Text, "WHERE") || !IsSameName(tokens.Next().Text, "Id")) return {};
  if (!tokens.Next().IsSymbol("=") || tokens.Next().Kind != SqlTokenKind::Number) return {};
  return tokens.Peek().Kind == SqlTokenKind::End ? table.Text : std::string_view();
}

bool IsNothing(const Variant& pvarValue) { return pvarValue.IsNull() || pvarValue.IsEmpty(); }

// Whether writing the one over the other changes nothing. Values of other kinds are converted by the column, so only it can tell.
bool IsStoredAs(const Variant& pvarStored, const Variant& pvarValue) {
  if (pvarStored.IsNumber() && pvarValue.IsNumber()) {
    const double stored = pvarStored.ToDouble(), value = pvarValue.ToDouble();
    return stored == value && std::signbit(stored) == std::signbit(value);
  }
  return pvarStored == pvarValue || (IsNothing(pvarStored) && IsNothing(pvarValue));
}

}  // namespace

EngineRecordset::EngineRecordset(EngineConnection& pobjConnection) : mobjConnection(pobjConnection) { ActiveConnection = &pobjConnection; }

void EngineRecordset::Open(const std::string& pstrSource) {
  if (ActiveConnection != &mobjConnection) throw Error(vntErrNoConnection);
  mlngHint = 0;
  mstrTable = TableNamedAlone(pstrSource);
  mblnWhole = !mstrTable.empty();
  if (!mblnWhole) mstrTable = TableOfOneRow(pstrSource);
  mstrSource = mblnWhole ? "SELECT * FROM [" + mstrTable + "]" : pstrSource;
  EngineRows rows;
  mblnFetched = !CanWait();
  if (mblnFetched) {
    mlngRowState = mobjConnection.RowState();
    rows = mobjConnection.Select(mstrSource);
    mcolColumns = std::make_shared<const std::vector<std::string>>(std::move(rows.Columns));
  }
  mcolValues = std::move(rows.Values);
  mlngRow = 0;
  ForgetAssigned();
}

// Asks for the columns of a table alone. Adding a row needs none of its rows.
bool EngineRecordset::CanWait() {
  if (mstrTable.empty()) return false;
  mcolColumns = mobjConnection.ColumnsOf(mstrTable);
  return mblnWhole || FindColumn("Id") != kNone;
}

void EngineRecordset::CheckOpen() const {
  if (!mcolColumns) throw Error(vntErrObjectClosed);
}

void EngineRecordset::CheckCurrent() const {
  if (Eof()) throw Error(vntErrNoCurrentRow);
}

void EngineRecordset::Fetch() const {
  if (mblnFetched) return;
  mlngRowState = mobjConnection.RowState();
  EngineRows rows = mobjConnection.Select(mstrSource);
  const std::vector<Variant> added = std::exchange(mcolValues, std::move(rows.Values));
  mblnFetched = true;
  const std::size_t current = mlngRow * Width(), id = FindColumn("Id");
  mlngRow = 0;
  if (current >= added.size() || id == kNone) return;
  while (mlngRow < RowCount() && mcolValues[mlngRow * Width() + id] != added[current + id]) ++mlngRow;
  if (mblnWhole || mlngRow < RowCount()) return;
  mlngRow += current / Width();
  mcolValues.insert(mcolValues.end(), added.begin(), added.end());
}

bool EngineRecordset::Eof() const {
  CheckOpen();
  if (mblnAdding) return false;
  if (mlngRow >= RowCount()) Fetch();
  return mlngRow >= RowCount();
}

void EngineRecordset::MoveNext() {
  CheckCurrent();
  Fetch();
  // A new row that was not written leaves the row before it current.
  if (!mblnAdding) ++mlngRow;
  ForgetAssigned();
}

std::int32_t EngineRecordset::RecordCount() const {
  CheckOpen();
  Fetch();
  return static_cast<std::int32_t>(RowCount());
}

std::size_t EngineRecordset::FindColumn(std::string_view pstrName) const {
  const std::vector<std::string>& columns = *mcolColumns;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (mlngHint >= columns.size()) mlngHint = 0;
    const std::size_t column = mlngHint++;
    if (IsSameName(columns[column], pstrName)) return column;
  }
  return kNone;
}

std::size_t EngineRecordset::ColumnOf(std::string_view pstrName) const {
  const std::size_t column = FindColumn(pstrName);
  if (column == kNone) throw Error(vntErrNoSuchColumn);
  return column;
}

Field EngineRecordset::Fields(std::string_view pstrName) const {
  CheckCurrent();
  const std::size_t column = ColumnOf(pstrName);
  if (!mcolSlots.empty() && mcolSlots[column] != kNone) return {mcolAssigned[mcolSlots[column]].Value};
  return {mblnAdding ? kNull : mcolValues[mlngRow * Width() + column]};
}

void EngineRecordset::AddNew() {
  CheckOpen();
  ForgetAssigned();
  mblnAdding = true;
}

void EngineRecordset::Collect(std::string_view pstrName, const Variant& pvarValue) {
  CheckCurrent();
  const std::size_t column = ColumnOf(pstrName);
  if (mcolSlots.empty()) mcolSlots.assign(Width(), kNone);
  std::size_t& slot = mcolSlots[column];
  if (slot != kNone) {
    mcolAssigned[slot].Value = pvarValue;
    return;
  }
  slot = mcolAssigned.size();
  mcolAssigned.push_back({column, pvarValue});
}

void EngineRecordset::Update() {
  CheckCurrent();
  if (!mblnAdding && HasAssigned()) return ForgetAssigned();
  std::vector<std::string> names;
  std::vector<Variant> values;
  names.reserve(mcolAssigned.size());
  values.reserve(mcolAssigned.size() + 1);
  for (const Assignment& assigned : mcolAssigned) {
    names.push_back((*mcolColumns)[assigned.Column]);
    values.push_back(assigned.Value);
  }
  if (mblnAdding) {
    WriteNew(names, std::move(values));
  } else if (!names.empty()) {
    WriteChanged(names, std::move(values));
  }
  ForgetAssigned();
}

void EngineRecordset::WriteNew(const std::vector<std::string>& pcolNames, std::vector<Variant> pcolValues) {
  const std::int32_t newId = mobjConnection.Insert(mobjConnection.Dialect().InsertRow(Table(), pcolNames, std::move(pcolValues)));
  mlngRow = RowCount();
  mcolValues.resize(mcolValues.size() + Width(), kNull);
  KeepAssigned(mlngRow);
  const std::size_t id = FindColumn("Id");
  if (id != kNone) mcolValues[mlngRow * Width() + id] = newId;
}

void EngineRecordset::WriteChanged(const std::vector<std::string>& pcolNames, std::vector<Variant> pcolValues) {
  const std::size_t id = FindColumn("Id");
  if (id == kNone) throw Error(vntErrStatement, "A row without an Id cannot be changed.");
  const std::int32_t rowId = mcolValues[mlngRow * Width() + id].ToInt32();
  const auto statement = mobjConnection.Dialect().UpdateRow(Table(), pcolNames, std::move(pcolValues), rowId);
  if (mobjConnection.Run(statement) == 0) {
    throw Error(vntErrNoCurrentRow, "Row cannot be located for updating. Some values may have been changed since it was last read.");
  }
  KeepAssigned(mlngRow);
}

const std::string& EngineRecordset::Table() {
  if (mstrTable.empty()) mstrTable = Dialect::TableOf(mstrSource);
  if (mstrTable.empty()) throw Error(vntErrStatement, "Rows that come from more than one table cannot be changed.");
  return mstrTable;
}

bool EngineRecordset::HasAssigned() const {
  if (mlngRowState == 0 || mlngRowState != mobjConnection.RowState() || mobjConnection.IsTransactionLost()) return false;
  return std::all_of(mcolAssigned.begin(), mcolAssigned.end(), [&](const Assignment& pobjAssigned) {
    return IsStoredAs(mcolValues[mlngRow * Width() + pobjAssigned.Column], pobjAssigned.Value);
  });
}

void EngineRecordset::KeepAssigned(std::size_t plngRow) {
  for (Assignment& assigned : mcolAssigned) mcolValues[plngRow * Width() + assigned.Column] = std::move(assigned.Value);
}

void EngineRecordset::ForgetAssigned() {
  mcolAssigned.clear();
  mcolSlots.clear();
  mblnAdding = false;
}

}  // namespace vantrel

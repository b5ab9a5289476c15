#include "database/sqlite/SqliteStatement.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>

#include "database/DateText.h"

namespace vantrel {

namespace {

constexpr double kLargestExactWhole = 9007199254740992.0;  // 2 to the 53rd

// Binds whole numbers as integers, whatever the variant's kind. Columns of reals convert them.
bool IsWhole(double pdblValue) {
  return std::abs(pdblValue) <= kLargestExactWhole && std::trunc(pdblValue) == pdblValue && !(pdblValue == 0 && std::signbit(pdblValue));
}

// The shortest text of the largest single is a little more than that single.
constexpr double kBeyondSingles = 3.40282356779733661637539395458e38;
float ToSingle(double pdblValue) {
  constexpr double kLargest = std::numeric_limits<float>::max();
  return static_cast<float>(std::clamp(pdblValue, -kLargest, kLargest));
}

template <class Integer>
bool Holds(std::int64_t plngValue) {
  return plngValue >= std::numeric_limits<Integer>::min() && plngValue <= std::numeric_limits<Integer>::max();
}

}  // namespace

SqliteStatement::SqliteStatement(sqlite3* pobjDatabase, const std::string& pstrText, bool pblnKept, int& plngResult) {
  if (pstrText.size() >= static_cast<std::size_t>(std::numeric_limits<int>::max())) {
    plngResult = SQLITE_TOOBIG;
    return;
  }
  sqlite3_stmt* statement = nullptr;
  plngResult = sqlite3_prepare_v3(pobjDatabase, pstrText.c_str(), static_cast<int>(pstrText.size() + 1),
                                  pblnKept ? SQLITE_PREPARE_PERSISTENT : 0, &statement, nullptr);
  mobjStatement.reset(statement);
}

int SqliteStatement::Run(const std::vector<Variant>& pcolParameters, EngineRows* pobjRows) {
  struct Reset {
    sqlite3_stmt* Statement;
    ~Reset() {
      sqlite3_reset(Statement);
      sqlite3_clear_bindings(Statement);
    }
  } const reset{mobjStatement.get()};

  for (std::size_t i = 0; i < pcolParameters.size(); ++i) {
    const int result = Bind(static_cast<int>(i + 1), pcolParameters[i]);
    if (result != SQLITE_OK) return result;
  }
  int result = sqlite3_step(mobjStatement.get());
  if (pobjRows != nullptr && (result == SQLITE_ROW || result == SQLITE_DONE)) {
    // After the first step, which prepares the statement again when the tables have changed.
    ReadKinds();
    for (std::size_t i = 0; i < mcolKinds.size(); ++i) {
      pobjRows->Columns.emplace_back(sqlite3_column_name(mobjStatement.get(), static_cast<int>(i)));
    }
  }
  while (result == SQLITE_ROW) {
    if (pobjRows != nullptr) AppendRow(*pobjRows);
    result = sqlite3_step(mobjStatement.get());
  }
  return result == SQLITE_DONE ? SQLITE_OK : result;
}

int SqliteStatement::Bind(int plngIndex, const Variant& pvarValue) {
  sqlite3_stmt* const statement = mobjStatement.get();
  if (pvarValue.IsNull() || pvarValue.IsEmpty()) return sqlite3_bind_null(statement, plngIndex);
  if (pvarValue.IsBoolean()) return sqlite3_bind_int(statement, plngIndex, pvarValue.ToBoolean() ? 1 : 0);
  if (pvarValue.IsNumber()) {
    const double value = pvarValue.ToDouble();
    if (IsWhole(value)) return sqlite3_bind_int64(statement, plngIndex, static_cast<sqlite3_int64>(value));
    return sqlite3_bind_double(statement, plngIndex, value);
  }
  const std::string text = pvarValue.ToText();
  return sqlite3_bind_text64(statement, plngIndex, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
}

void SqliteStatement::ReadKinds() {
  sqlite3_stmt* const statement = mobjStatement.get();
  const auto width = static_cast<std::size_t>(sqlite3_column_count(statement));
  if (mcolKinds.size() == width) return;
  mcolKinds.assign(width, Kind::Unknown);
  for (std::size_t i = 0; i < width; ++i) {
    const char* const declared = sqlite3_column_decltype(statement, static_cast<int>(i));
    const std::string_view word = declared != nullptr ? declared : "";
    if (word == "BOOLEAN") mcolKinds[i] = Kind::Boolean;
    if (word == "SMALLINT") mcolKinds[i] = Kind::Int16;
    if (word == "REAL" || word == "SINGLE") mcolKinds[i] = Kind::Single;
    if (word == "DATETIME") mcolKinds[i] = Kind::Date;
  }
}

void SqliteStatement::AppendRow(EngineRows& pobjRows) {
  for (std::size_t i = 0; i < mcolKinds.size(); ++i) pobjRows.Values.push_back(Value(static_cast<int>(i)));
}

Variant SqliteStatement::Value(int plngColumn) const {
  const Kind kind = mcolKinds[static_cast<std::size_t>(plngColumn)];
  switch (sqlite3_column_type(mobjStatement.get(), plngColumn)) {
    case SQLITE_NULL:
      return Variant::Null;
    case SQLITE_INTEGER:
      return WholeNumber(plngColumn);
    case SQLITE_FLOAT: {
      const double value = sqlite3_column_double(mobjStatement.get(), plngColumn);
      if (kind == Kind::Single && std::abs(value) < kBeyondSingles) return ToSingle(value);
      return value;
    }
    default: {
      std::string text = Text(plngColumn);
      Date date;
      if (kind == Kind::Date && ParseDate(text, date)) return date;
      return text;
    }
  }
}

Variant SqliteStatement::WholeNumber(int plngColumn) const {
  const std::int64_t value = sqlite3_column_int64(mobjStatement.get(), plngColumn);
  const Kind kind = mcolKinds[static_cast<std::size_t>(plngColumn)];
  if (kind == Kind::Boolean) return value != 0;
  if (kind == Kind::Int16 && Holds<std::int16_t>(value)) return static_cast<std::int16_t>(value);
  if (Holds<std::int32_t>(value)) return static_cast<std::int32_t>(value);
  return static_cast<double>(value);
}

std::string SqliteStatement::Text(int plngColumn) const {
  const void* const bytes = sqlite3_column_blob(mobjStatement.get(), plngColumn);
  const auto size = static_cast<std::size_t>(sqlite3_column_bytes(mobjStatement.get(), plngColumn));
  return bytes != nullptr ? std::string(static_cast<const char*>(bytes), size) : std::string();
}

}  // namespace vantrel

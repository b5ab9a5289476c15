#include "database/postgres/PostgresValues.h"

#include <charconv>
#include <chrono>
#include <limits>
#include <string_view>

#include <libpq-fe.h>

#include "util/Error.h"

namespace vantrel {

namespace {

// As in the server's catalogue, whose header is not for clients.
enum TypeId : Oid {
  kBool = 16,
  kInt8 = 20,
  kInt2 = 21,
  kInt4 = 23,
  kFloat4 = 700,
  kFloat8 = 701,
  kDate = 1082,
  kTimestamp = 1114,
  kTimestampWithZone = 1184,
  kNumeric = 1700
};

using Reader = Variant (*)(std::string_view);

Variant ReadText(std::string_view pstrText) { return pstrText; }

Variant ReadBoolean(std::string_view pstrText) { return pstrText == "t"; }

// A number too large for the type here stays the text that the server gave.
template <class Number>
Variant ReadNumber(std::string_view pstrText) {
  Number number{};
  const auto [end, problem] = std::from_chars(pstrText.data(), pstrText.data() + pstrText.size(), number);
  if (problem != std::errc{} || end != pstrText.data() + pstrText.size()) return pstrText;
  return number;
}

// Counts and sums have a wider type than the column.
Variant ReadWide(std::string_view pstrText) {
  const Variant narrow = ReadNumber<std::int32_t>(pstrText);
  return narrow.IsText() ? ReadNumber<double>(pstrText) : narrow;
}

/// Takes numbers, each followed by one sign, off the front of a text.
class Numbers {
 public:
  explicit Numbers(std::string_view pstrText) : mRest(pstrText) {}

  int Next(char pSign) {
    int number = 0;
    const auto [end, problem] = std::from_chars(mRest.data(), mRest.data() + mRest.size(), number);
    mGood = mGood && problem == std::errc{};
    mRest.remove_prefix(static_cast<std::size_t>(end - mRest.data()));
    if (mRest.starts_with(pSign)) mRest.remove_prefix(1);
    return number;
  }
  // Thousandths, for any number of digits.
  int Fraction() {
    int thousandths = 0;
    for (int weight = 100; !mRest.empty() && mRest.front() >= '0' && mRest.front() <= '9'; weight /= 10) {
      thousandths += weight * (mRest.front() - '0');
      mRest.remove_prefix(1);
    }
    return thousandths;
  }
  bool IsGood() const { return mGood; }
  std::string_view Rest() const { return mRest; }

 private:
  std::string_view mRest;
  bool mGood = true;
};

// "2026-11-23 14:05:09.25", followed by "+00" if the column has a zone: the session's zone is universal time.
Variant ReadDate(std::string_view pstrText) {
  using namespace std::chrono;
  Numbers numbers(pstrText);
  const int y = numbers.Next('-'), m = numbers.Next('-'), d = numbers.Next(' ');
  if (!numbers.IsGood() || y < 1 || y > 9999) return pstrText;  // "infinity", or a year out of range
  milliseconds time{0};
  if (!numbers.Rest().empty() && numbers.Rest() != "BC") {
    time += hours(numbers.Next(':'));
    time += minutes(numbers.Next(':'));
    time += seconds(numbers.Next('.'));
    time += milliseconds(numbers.Fraction());
  }
  if (!numbers.IsGood() || numbers.Rest().ends_with("BC")) return pstrText;
  const sys_days day = year_month_day(year(y), month(static_cast<unsigned>(m)), std::chrono::day(static_cast<unsigned>(d)));
  constexpr sys_days kZero = year_month_day(year(1899), December, std::chrono::day(30));
  return Date::FromMilliseconds((milliseconds(day - kZero) + time).count());
}

Reader ReaderOf(Oid pType) {
  switch (pType) {
    case kBool:
      return ReadBoolean;
    case kInt2:
      return ReadNumber<std::int16_t>;
    case kInt4:
      return ReadNumber<std::int32_t>;
    case kInt8:
      return ReadWide;
    case kFloat4:
      return ReadNumber<float>;
    case kFloat8:
    case kNumeric:
      return ReadNumber<double>;
    case kDate:
    case kTimestamp:
    case kTimestampWithZone:
      return ReadDate;
    default:
      return ReadText;
  }
}

}  // namespace

PostgresParameters::PostgresParameters(const std::vector<Variant>& pcolValues) {
  if (pcolValues.size() > kMostParameters) throw Error(vntErrStatement, "The statement has more values than the server takes.");
  mTexts.reserve(pcolValues.size());
  mPointers.reserve(pcolValues.size());
  for (const auto& value : pcolValues) {
    if (value.IsNull() || value.IsEmpty()) {
      mPointers.push_back(nullptr);
      continue;
    }
    const std::string& text = mTexts.emplace_back(value.ToText());
    if (text.find('\0') != std::string::npos) throw Error(vntErrStatement, "A text contains a NUL character.");
    mPointers.push_back(text.c_str());
  }
}

EngineRows ReadRows(const pg_result* pobjResult) {
  const int columns = PQnfields(pobjResult), rows = PQntuples(pobjResult);
  EngineRows read;
  std::vector<Reader> readers;
  for (int column = 0; column < columns; ++column) {
    read.Columns.emplace_back(PQfname(pobjResult, column));
    readers.push_back(ReaderOf(PQftype(pobjResult, column)));
  }
  read.Values.reserve(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns));
  for (int row = 0; row < rows; ++row) {
    for (int column = 0; column < columns; ++column) {
      if (PQgetisnull(pobjResult, row, column)) {
        read.Values.emplace_back(Variant::Null);
        continue;
      }
      const auto length = static_cast<std::size_t>(PQgetlength(pobjResult, row, column));
      read.Values.push_back(readers[static_cast<std::size_t>(column)]({PQgetvalue(pobjResult, row, column), length}));
    }
  }
  return read;
}

}  // namespace vantrel

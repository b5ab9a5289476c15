#include "util/Date.h"

#include <chrono>
#include <cmath>
#include <cstdio>
#include <ctime>

#include "util/Error.h"

namespace vantrel {

namespace {

constexpr std::int64_t kMillisecondsPerDay = 86'400'000;
constexpr std::int64_t kDaysToUnixEpoch = 25'569;  // from 1899-12-30 to 1970-01-01

std::int64_t UnixMilliseconds() {
#ifdef CLOCK_REALTIME_COARSE
  // Takes a third of the exact clock's time. A firing dates every token that it makes and consumes.
  std::timespec time{};
  if (clock_gettime(CLOCK_REALTIME_COARSE, &time) == 0) {
    return std::int64_t{time.tv_sec} * 1000 + time.tv_nsec / 1'000'000;
  }
#endif
  using namespace std::chrono;
  return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

// Rounds down, for a positive divisor.
std::int64_t Quotient(std::int64_t plngValue, std::int64_t plngBy) { return plngValue / plngBy - (plngValue % plngBy < 0 ? 1 : 0); }
std::int64_t Remainder(std::int64_t plngValue, std::int64_t plngBy) {
  const std::int64_t remainder = plngValue % plngBy;
  return remainder < 0 ? remainder + plngBy : remainder;
}

}  // namespace

Date Date::Now() { return FromMilliseconds(UnixMilliseconds() + kDaysToUnixEpoch * kMillisecondsPerDay); }

Date Date::FromDays(double pdblDays) {
  const double milliseconds = std::round(pdblDays * static_cast<double>(kMillisecondsPerDay));
  constexpr double kLimit = 0x1p63;
  if (!(milliseconds >= -kLimit && milliseconds < kLimit)) throw Error(vntErrOverflow);
  return FromMilliseconds(static_cast<std::int64_t>(milliseconds));
}

double Date::Days() const { return static_cast<double>(mMilliseconds) / static_cast<double>(kMillisecondsPerDay); }

std::string Date::ToText() const {
  // The calendar repeats every 400 years, and std::chrono knows only years of 16 bits.
  constexpr std::int64_t kDaysPerCycle = 146'097;
  const std::int64_t sinceEpoch = Quotient(mMilliseconds, kMillisecondsPerDay) - kDaysToUnixEpoch;
  const std::int64_t seconds = Remainder(mMilliseconds, kMillisecondsPerDay) / 1000;
  const std::chrono::sys_days day{std::chrono::days{Remainder(sinceEpoch, kDaysPerCycle)}};
  const std::chrono::year_month_day civil{day};
  const long long year = int{civil.year()} + 400 * Quotient(sinceEpoch, kDaysPerCycle);
  char text[40];
  std::snprintf(text, sizeof text, "%0*lld-%02u-%02u %02lld:%02lld:%02lld", year < 0 ? 5 : 4, year, unsigned{civil.month()},
                unsigned{civil.day()}, static_cast<long long>(seconds / 3600), static_cast<long long>(seconds / 60 % 60),
                static_cast<long long>(seconds % 60));
  return text;
}

}  // namespace vantrel

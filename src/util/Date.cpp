#include "util/Date.h"

#include <chrono>
#include <cmath>
#include <cstdio>
#include <ctime>

namespace vantrel {

namespace {

constexpr std::int64_t kMillisecondsPerDay = 86'400'000;
constexpr std::int64_t kDaysToUnixEpoch = 25'569;  // from 1899-12-30 to 1970-01-01

std::int64_t UnixMilliseconds() {
#ifdef CLOCK_REALTIME_COARSE
  // A third of the price of the exact clock; a firing reads it for every token it makes and takes.
  std::timespec time{};
  if (clock_gettime(CLOCK_REALTIME_COARSE, &time) == 0) {
    return std::int64_t{time.tv_sec} * 1000 + time.tv_nsec / 1'000'000;
  }
#endif
  using namespace std::chrono;
  return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

std::int64_t FloorDivide(std::int64_t plngValue, std::int64_t plngBy) {
  const std::int64_t quotient = plngValue / plngBy;
  return plngValue % plngBy < 0 ? quotient - 1 : quotient;
}

}  // namespace

Date Date::Now() { return FromMilliseconds(UnixMilliseconds() + kDaysToUnixEpoch * kMillisecondsPerDay); }

Date Date::FromDays(double pdblDays) { return FromMilliseconds(std::llround(pdblDays * static_cast<double>(kMillisecondsPerDay))); }

double Date::Days() const { return static_cast<double>(mMilliseconds) / static_cast<double>(kMillisecondsPerDay); }

std::string Date::ToText() const {
  const std::int64_t days = FloorDivide(mMilliseconds, kMillisecondsPerDay);
  const std::int64_t seconds = (mMilliseconds - days * kMillisecondsPerDay) / 1000;
  const std::chrono::sys_days day{std::chrono::days{days - kDaysToUnixEpoch}};
  const std::chrono::year_month_day civil{day};
  char text[40];
  std::snprintf(text, sizeof text, "%04d-%02u-%02u %02d:%02d:%02d", static_cast<int>(civil.year()), static_cast<unsigned>(civil.month()),
                static_cast<unsigned>(civil.day()), static_cast<int>(seconds / 3600), static_cast<int>(seconds / 60 % 60),
                static_cast<int>(seconds % 60));
  return text;
}

}  // namespace vantrel

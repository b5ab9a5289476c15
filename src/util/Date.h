// A point in time with the zero that databases and hosts of this system use: 1899-12-30 00:00:00.
#pragma once

#include <compare>
#include <cstdint>
#include <string>

namespace vantrel {

/// A point in time, universal time, in whole milliseconds. The zero date stands for "not set".
class Date {
 public:
  constexpr Date() = default;

  /// The moment of the call; resolution of a few milliseconds, cheap enough for every token of a running net.
  static Date Now();
  /// Days since the zero date; the fraction is the time of day. Throws Error 6 for NaN and for days beyond 64 bits of
  /// milliseconds.
  static Date FromDays(double pdblDays);
  static constexpr Date FromMilliseconds(std::int64_t plngMilliseconds) {
    Date date;
    date.mMilliseconds = plngMilliseconds;
    return date;
  }

  constexpr std::int64_t Milliseconds() const { return mMilliseconds; }
  double Days() const;
  constexpr bool IsZero() const { return mMilliseconds == 0; }

  /// "YYYY-MM-DD HH:MM:SS" of ISO 8601 with a blank for the T; milliseconds are cut off. Years beyond four digits get as
  /// many as they need, years before 0 a minus.
  std::string ToText() const;

  constexpr auto operator<=>(const Date&) const = default;

 private:
  std::int64_t mMilliseconds = 0;  // since 1899-12-30 00:00:00
};

}  // namespace vantrel

#include "database/DateText.h"

#include <chrono>
#include <cstddef>

namespace vantrel {

namespace {

constexpr std::size_t kDaySize = 10;      // YYYY-MM-DD
constexpr std::size_t kInstantSize = 19;  // YYYY-MM-DD HH:MM:SS
constexpr std::chrono::sys_days kZeroDay = std::chrono::year{1899} / 12 / 30;

// The form holds a 0 for each digit.
bool HasForm(std::string_view pstrText, std::string_view pstrForm) {
  if (pstrText.size() != pstrForm.size()) return false;
  for (std::size_t i = 0; i < pstrText.size(); ++i) {
    const bool isDigit = pstrText[i] >= '0' && pstrText[i] <= '9';
    if (pstrForm[i] == '0' ? !isDigit : pstrText[i] != pstrForm[i]) return false;
  }
  return true;
}

int NumberAt(std::string_view pstrText, std::size_t plngStart, std::size_t plngSize) {
  int number = 0;
  for (const char digit : pstrText.substr(plngStart, plngSize)) number = number * 10 + (digit - '0');
  return number;
}

bool ParseTime(std::string_view pstrText, std::int64_t& plngMilliseconds) {
  const int hour = NumberAt(pstrText, 11, 2), minute = NumberAt(pstrText, 14, 2), second = NumberAt(pstrText, 17, 2);
  if (hour > 23 || minute > 59 || second > 59) return false;
  plngMilliseconds = ((std::int64_t{hour} * 60 + minute) * 60 + second) * 1000;
  return true;
}

bool ParseFraction(std::string_view pstrText, std::int64_t& plngMilliseconds) {
  constexpr std::string_view kForm = ".000000000";
  if (pstrText.empty()) return true;
  if (pstrText.size() < 2 || pstrText.size() > kForm.size() || !HasForm(pstrText, kForm.substr(0, pstrText.size()))) return false;
  int scale = 100;
  for (const char digit : pstrText.substr(1)) {
    plngMilliseconds += (digit - '0') * scale;
    scale /= 10;
  }
  return true;
}

}  // namespace

bool ParseDate(std::string_view pstrText, Date& pdtmValue) {
  constexpr std::string_view kForm = "0000-00-00 00:00:00";
  const bool hasTime = pstrText.size() > kDaySize;
  const std::string_view whole = pstrText.substr(0, hasTime ? kInstantSize : kDaySize);
  if (!HasForm(whole, kForm.substr(0, hasTime ? kInstantSize : kDaySize))) return false;

  const std::chrono::year_month_day day{std::chrono::year{NumberAt(whole, 0, 4)},
                                        std::chrono::month{static_cast<unsigned>(NumberAt(whole, 5, 2))},
                                        std::chrono::day{static_cast<unsigned>(NumberAt(whole, 8, 2))}};
  if (!day.ok() || day.year() < std::chrono::year{1}) return false;
  std::int64_t time = 0;
  if (hasTime && !(ParseTime(whole, time) && ParseFraction(pstrText.substr(kInstantSize), time))) return false;

  using namespace std::chrono;
  pdtmValue = Date::FromMilliseconds(duration_cast<milliseconds>(sys_days{day} - kZeroDay).count() + time);
  return true;
}

}  // namespace vantrel

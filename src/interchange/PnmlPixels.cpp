#include "interchange/PnmlPixels.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "interchange/PnmlNumbers.h"

namespace vantrel {

namespace {

constexpr double kFarthestPixel = 1e7;  // what ParseCoordinate takes
constexpr int kMostDecimals = 17;

double Pixels(float psngTwips, float psngOrigin) {
  if (std::isnan(psngTwips)) return 0;
  const double pixels = (static_cast<double>(psngTwips) + static_cast<double>(psngOrigin)) / static_cast<double>(kFilePixel);
  return std::clamp(pixels, -kFarthestPixel, kFarthestPixel);
}

std::string Fixed(double psngNumber, int plngDecimals) {
  std::array<char, 64> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), psngNumber, std::chars_format::fixed, plngDecimals).ptr;
  const std::string result(text.data(), end);
  return result == "-0" ? "0" : result;
}

}  // namespace

float TwipsOfPixels(double psngPixels, float psngOrigin) {
  return static_cast<float>(psngPixels * static_cast<double>(kFilePixel) - static_cast<double>(psngOrigin));
}

std::string PixelText(float psngTwips, float psngOrigin) {
  const double pixels = Pixels(psngTwips, psngOrigin);
  for (int decimals = 0; decimals <= kMostDecimals; ++decimals) {
    std::string text = Fixed(pixels, decimals);
    const auto read = ParseCoordinate(text);
    if (read && TwipsOfPixels(*read, psngOrigin) == psngTwips) return text;
  }
  return Fixed(pixels, 0);
}

bool IsPixelOf(double psngPixels, float psngTwips, float psngOrigin) {
  return ParseCoordinate(PixelText(psngTwips, psngOrigin)) == psngPixels;
}

bool IsExactInPixels(float psngTwips, float psngOrigin) {
  const double pixels = Pixels(psngTwips, psngOrigin);
  // Most are whole, and making their texts took a fifth of writing a net.
  if (pixels == std::trunc(pixels)) return TwipsOfPixels(pixels, psngOrigin) == psngTwips;
  return TwipsOfPixels(ParseCoordinate(PixelText(psngTwips, psngOrigin)).value_or(0), psngOrigin) == psngTwips;
}

}  // namespace vantrel

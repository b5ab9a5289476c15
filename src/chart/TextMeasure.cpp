#include "chart/TextMeasure.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace vantrel {

namespace {

constexpr float kTwipsPerPoint = 20;
constexpr float kUnitsPerEm = 1000;
constexpr float kLineHeight = 1.15F;  // ascent and descent of the face, in em
constexpr int kUsualSize = 8;

// Advance widths of U+0020 to U+007E in thousandths of an em.
constexpr std::array<std::int16_t, 95> kWidths = {
    278, 278, 355, 556, 556, 889, 667, 191, 333,  333, 389, 584, 278, 333, 278, 278, 556, 556, 556, 556, 556, 556, 556, 556,
    556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667, 611, 778, 722, 278, 500, 667, 556, 833, 722, 778,
    667, 778, 722, 667, 611, 722, 667, 944, 667,  667, 611, 278, 278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278, 556,
    556, 222, 222, 500, 222, 833, 556, 556, 556,  556, 333, 500, 278, 556, 500, 722, 500, 500, 500, 334, 260, 334, 584};

// Steps over one character of UTF-8; a stray byte counts as a character.
char32_t NextCharacter(std::string_view pstrText, std::size_t& plngAt) {
  const auto lead = static_cast<unsigned char>(pstrText[plngAt++]);
  const int more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
  char32_t character = lead;
  if (more > 0) character = static_cast<char32_t>(lead & (0x3F >> more));
  for (int i = 0; i < more && plngAt < pstrText.size() && (pstrText[plngAt] & 0xC0) == 0x80; ++i) {
    character = character << 6 | static_cast<char32_t>(pstrText[plngAt++] & 0x3F);
  }
  return character;
}

float AdvanceOf(char32_t pCharacter) {
  if (pCharacter >= 0x20 && pCharacter < 0x7F) return kWidths[pCharacter - 0x20];
  const bool wide = (pCharacter >= 0x1100 && pCharacter <= 0x115F) || (pCharacter >= 0x2E80 && pCharacter <= 0xA4CF) ||
                    (pCharacter >= 0xAC00 && pCharacter <= 0xD7A3) || (pCharacter >= 0xF900 && pCharacter <= 0xFAFF) ||
                    (pCharacter >= 0xFE30 && pCharacter <= 0xFE6F) || (pCharacter >= 0xFF00 && pCharacter <= 0xFF60) ||
                    pCharacter >= 0x1F300;
  return wide ? kUnitsPerEm : 600;
}

}  // namespace

TextSize BuiltInTextMeasure::Measure(std::string_view pstrText, const Font& pobjFont) const {
  const float em = kTwipsPerPoint * static_cast<float>(pobjFont.Size > 0 ? pobjFont.Size : kUsualSize);
  const float boldness = pobjFont.Bold ? 1.08F : 1.0F;
  float widest = 0, line = 0, lines = 1;
  for (std::size_t at = 0; at < pstrText.size();) {
    const char32_t character = NextCharacter(pstrText, at);
    if (character == '\n') {
      line = 0;
      ++lines;
    } else if (character != '\r') {
      line += AdvanceOf(character) / kUnitsPerEm * em * boldness;
      widest = std::max(widest, line);
    }
  }
  return {widest, lines * kLineHeight * em};
}

}  // namespace vantrel

// An element that shows text.
#pragma once

#include <string>

#include "chart/Element.h"
#include "chart/Font.h"
#include "util/Color.h"

namespace vantrel {

/// A text in a box. With AutoSize on, the box takes the size of its text, measured by the surface's TextMeasure; Alignment says
/// what stays in place: the left side, the right side or the centre.
class Label final : public BoxElement {
 public:
  std::string Class() const override { return "VNTR.Label.1"; }

  const std::string& Caption() const { return mCaption; }
  void Caption(const std::string& pstrCaption);
  const vantrel::Font& Font() const { return mFont; }
  void Font(const vantrel::Font& pobjFont);
  void FontSize(std::int32_t plngPoints);

  bool AutoSize() const { return mAutoSize; }
  void AutoSize(bool pblnOn);
  std::int16_t Alignment() const { return mAlignment; }  ///< 0 left, 1 right, 2 centred
  void Alignment(std::int16_t pintAlignment) { Set(mAlignment, pintAlignment); }
  std::int16_t Appearance() const { return mAppearance; }  ///< 0 flat, 1 three-dimensional
  void Appearance(std::int16_t pintAppearance) { Set(mAppearance, pintAppearance); }
  std::int16_t BackStyle() const { return mBackStyle; }  ///< 0 transparent, 1 opaque
  void BackStyle(std::int16_t pintBackStyle) { Set(mBackStyle, pintBackStyle); }
  Color BackColor() const { return mBackColor; }
  void BackColor(Color plngColor) { Set(mBackColor, plngColor); }
  Color ForeColor() const { return mForeColor; }
  void ForeColor(Color plngColor) { Set(mForeColor, plngColor); }

  /// Its object is chosen; views show that.
  bool Marked() const { return mMarked; }
  void Marked(bool pblnOn) { Set(mMarked, pblnOn); }

  void CopySettings(const Label& pobjTemplate);

 private:
  void FitText();

  std::string mCaption;
  vantrel::Font mFont;
  Color mBackColor = kWhite;
  Color mForeColor = kBlack;
  std::int16_t mAlignment = 0;
  std::int16_t mAppearance = 0;
  std::int16_t mBackStyle = 0;
  bool mAutoSize = false;
  bool mMarked = false;
};

}  // namespace vantrel

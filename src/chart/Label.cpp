#include "chart/Label.h"

#include "chart/ChartSurface.h"

namespace vantrel {

namespace {

const TextMeasure& MeasureOf(const ChartSurface* pobjSurface) {
  static const BuiltInTextMeasure builtIn;
  return pobjSurface ? pobjSurface->Measure() : builtIn;
}

}  // namespace

void Label::FitText() {
  const TextSize size = MeasureOf(Surface()).Measure(mCaption, mFont);
  const float spare = Width() - size.Width;
  if (mAlignment == 1) Left(Left() + spare);
  if (mAlignment == 2) Left(Left() + spare / 2);
  Resize(size.Width, size.Height);
}

void Label::Caption(const std::string& pstrCaption) {
  Set(mCaption, pstrCaption);
  if (mAutoSize) FitText();
}

void Label::Font(const vantrel::Font& pobjFont) {
  Set(mFont, pobjFont);
  if (mAutoSize) FitText();
}

void Label::FontSize(std::int32_t plngPoints) {
  vantrel::Font font = mFont;
  font.Size = plngPoints;
  Font(font);
}

void Label::AutoSize(bool pblnOn) {
  mAutoSize = pblnOn;
  if (pblnOn) FitText();
}

void Label::CopySettings(const Label& pobjTemplate) {
  mAutoSize = false;
  Resize(pobjTemplate.Width(), pobjTemplate.Height());
  Caption(pobjTemplate.Caption());
  Font(pobjTemplate.Font());
  Alignment(pobjTemplate.Alignment());
  Appearance(pobjTemplate.Appearance());
  BackStyle(pobjTemplate.BackStyle());
  BorderStyle(pobjTemplate.BorderStyle());
  BackColor(pobjTemplate.BackColor());
  ForeColor(pobjTemplate.ForeColor());
  AutoSize(pobjTemplate.AutoSize());
}

}  // namespace vantrel

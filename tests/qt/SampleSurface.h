// Elements on a surface, without a model.
#pragma once

#include <memory>
#include <string>

#include "chart/ChartSurface.h"

namespace vantrel {

inline std::shared_ptr<Image> AddImage(ChartSurface& pobjSurface, const char* pstrKey, float psngLeft, float psngTop) {
  static const ImageList pictures = ImageList::VantrelImages();
  auto image = pobjSurface.ctlImage.New();
  image->Picture(pictures.Find(pstrKey));
  image->MoveTo(psngLeft, psngTop);
  image->Visible(true);
  return image;
}

inline std::shared_ptr<Label> AddLabel(ChartSurface& pobjSurface, const std::string& pstrCaption, float psngLeft, float psngTop) {
  auto label = pobjSurface.ctlLabel.New();
  label->AutoSize(true);
  label->Caption(pstrCaption);
  label->AutoSize(false);
  label->MoveTo(psngLeft, psngTop);
  label->Visible(true);
  return label;
}

inline std::shared_ptr<Line> AddLine(ChartSurface& pobjSurface, float psngX1, float psngY1, float psngX2, float psngY2) {
  auto line = pobjSurface.ctlLine.New();
  line->Place(psngX1, psngY1, psngX2, psngY2);
  line->Visible(true);
  return line;
}

}  // namespace vantrel

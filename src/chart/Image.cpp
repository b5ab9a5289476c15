#include "chart/Image.h"

namespace vantrel {

void Image::Picture(const std::shared_ptr<const vantrel::Picture>& pobjPicture) {
  if (!pobjPicture || mPicture == pobjPicture) return;
  Set(mPicture, pobjPicture);
  Resize(pobjPicture->Width, pobjPicture->Height);
}

void Image::CopySettings(const Image& pobjTemplate) {
  Picture(pobjTemplate.Picture());
  Resize(pobjTemplate.Width(), pobjTemplate.Height());
  BorderStyle(pobjTemplate.BorderStyle());
  mblnAcceptsDrops = pobjTemplate.mblnAcceptsDrops;
}

}  // namespace vantrel

// An element that shows a picture.
#pragma once

#include <memory>

#include "chart/Element.h"
#include "chart/Picture.h"

namespace vantrel {

/// Shows one picture in its natural size; without a picture it keeps the size that it was given.
class Image final : public BoxElement {
 public:
  std::string Class() const override { return "VNTR.Image.1"; }

  const std::shared_ptr<const vantrel::Picture>& Picture() const { return mPicture; }
  /// Takes the picture and its size. Null keeps the old picture: a list without that key must not blank the chart.
  void Picture(const std::shared_ptr<const vantrel::Picture>& pobjPicture);

  /// Whether the image takes what the host drags.
  bool AcceptsDrops() const { return mblnAcceptsDrops; }
  void AcceptsDrops(bool pblnOn) { mblnAcceptsDrops = pblnOn; }

  void CopySettings(const Image& pobjTemplate);

 private:
  std::shared_ptr<const vantrel::Picture> mPicture;
  bool mblnAcceptsDrops = false;
};

}  // namespace vantrel

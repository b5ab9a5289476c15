#include "qt/Pictures.h"

#include <QPainter>
#include <QSvgRenderer>
#include <utility>

#include "qt/PictureArt.h"

namespace vantrel {

namespace {

constexpr std::size_t kSizesKept = 6;  // of one picture: two screens and a few steps of zoom

struct Gallery {
  std::unordered_map<std::string, std::unique_ptr<QSvgRenderer>> Renderers;
  int Edition = 1;

  Gallery() {
    for (const auto& picture : DesignerPictures()) {
      const QByteArray svg(picture.Svg.data(), static_cast<qsizetype>(picture.Svg.size()));
      Renderers.emplace(picture.Key, std::make_unique<QSvgRenderer>(svg));
    }
  }
};

Gallery& TheGallery() {
  static Gallery gallery;
  return gallery;
}

QPixmap Rendered(const std::string& pstrKey, QSize pobjSize) {
  QPixmap pixmap(pobjSize);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  const bool isKnown = Pictures::Render(painter, pstrKey, QRectF(QPointF(), pobjSize));
  painter.end();
  return isKnown ? pixmap : QPixmap();
}

}  // namespace

bool Pictures::Install(const std::string& pstrKey, const QByteArray& pstrSvg) {
  auto renderer = std::make_unique<QSvgRenderer>(pstrSvg);
  if (!renderer->isValid()) return false;
  Gallery& gallery = TheGallery();
  gallery.Renderers.insert_or_assign(pstrKey, std::move(renderer));
  ++gallery.Edition;
  return true;
}

bool Pictures::Render(QPainter& pobjPainter, const std::string& pstrKey, const QRectF& pobjTarget) {
  const auto& renderers = TheGallery().Renderers;
  const auto found = renderers.find(pstrKey);
  if (found == renderers.end()) return false;
  found->second->render(&pobjPainter, pobjTarget);
  return true;
}

const QPixmap& Pictures::Pixmap(const std::shared_ptr<const Picture>& pobjPicture, QSize pobjSize) {
  if (std::exchange(mlngEdition, TheGallery().Edition) != TheGallery().Edition) mEntries.clear();
  Entry& entry = mEntries[pobjPicture.get()];
  entry.Keeper = pobjPicture;
  for (const Sized& sized : entry.Sizes) {
    if (sized.Size == pobjSize) return sized.Pixmap;
  }
  const QPixmap pixmap = Rendered(pobjPicture->Key, pobjSize);
  if (entry.Sizes.size() < kSizesKept) return entry.Sizes.emplace_back(Sized{pobjSize, pixmap}).Pixmap;
  Sized& replaced = entry.Sizes[entry.Oldest];
  entry.Oldest = (entry.Oldest + 1) % kSizesKept;
  replaced = {pobjSize, pixmap};
  return replaced.Pixmap;
}

}  // namespace vantrel

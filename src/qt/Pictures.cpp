#include "qt/Pictures.h"

#include <QPainter>
#include <QSvgRenderer>
#include <utility>

#include "qt/PictureArt.h"

namespace vantrel {

namespace {

constexpr std::size_t kSizesKept = 8;  // of one picture: for two zooms or screens, each with a pixel more or less from rounding

// The colours of the designer's pictures, and what replaces them on a dark ground.
constexpr std::pair<const char*, const char*> kOnDark[] = {
    {"#1e293b", "#e2e8f0"},                                                  // edges
    {"#ffffff", "#0f172a"},                                                  // paper, and the gap round connectors
    {"#e8edf3", "#334155"},                                                  // a transition
    {"#dcfce7", "#14532d"},                                                  // what is green: ground, edge, sign
    {"#15803d", "#4ade80"}, {"#14532d", "#dcfce7"}, {"#1d4ed8", "#93c5fd"},  // handles
};

QByteArray OnDark(QByteArray pstrSvg) {
  constexpr qsizetype kLength = 7;
  for (qsizetype at = pstrSvg.indexOf('#'); at >= 0; at = pstrSvg.indexOf('#', at + 1)) {
    for (const auto& [light, dark] : kOnDark) {
      if (pstrSvg.mid(at, kLength) != light) continue;
      pstrSvg.replace(at, kLength, dark);
      break;
    }
  }
  return pstrSvg;
}

struct Drawing {
  std::unique_ptr<QSvgRenderer> Light, Dark;  // Dark may be null: then Light serves
};

struct Gallery {
  std::unordered_map<std::string, Drawing> Drawings;
  int Edition = 1;

  Gallery() {
    for (const auto& picture : DesignerPictures()) {
      const QByteArray svg(picture.Svg.data(), static_cast<qsizetype>(picture.Svg.size()));
      Drawings.emplace(picture.Key, Drawing{std::make_unique<QSvgRenderer>(svg), std::make_unique<QSvgRenderer>(OnDark(svg))});
    }
  }
};

Gallery& TheGallery() {
  static Gallery gallery;
  return gallery;
}

QPixmap Rendered(const std::string& pstrKey, QSize pobjSize, bool pblnOnDark) {
  QPixmap pixmap(pobjSize);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  const bool isKnown = Pictures::Render(painter, pstrKey, QRectF(QPointF(), pobjSize), pblnOnDark);
  painter.end();
  return isKnown ? pixmap : QPixmap();
}

}  // namespace

bool Pictures::Install(const std::string& pstrKey, const QByteArray& pstrSvg) {
  auto renderer = std::make_unique<QSvgRenderer>(pstrSvg);
  if (!renderer->isValid()) return false;
  Gallery& gallery = TheGallery();
  gallery.Drawings.insert_or_assign(pstrKey, Drawing{std::move(renderer), nullptr});
  ++gallery.Edition;
  return true;
}

bool Pictures::Render(QPainter& pobjPainter, const std::string& pstrKey, const QRectF& pobjTarget, bool pblnOnDark) {
  const auto& drawings = TheGallery().Drawings;
  const auto found = drawings.find(pstrKey);
  if (found == drawings.end()) return false;
  const Drawing& drawing = found->second;
  (pblnOnDark && drawing.Dark ? drawing.Dark : drawing.Light)->render(&pobjPainter, pobjTarget);
  return true;
}

const QPixmap& Pictures::Pixmap(const std::shared_ptr<const Picture>& pobjPicture, QSize pobjSize, bool pblnOnDark) {
  if (std::exchange(mlngEdition, TheGallery().Edition) != TheGallery().Edition) mEntries.clear();
  Entry& entry = mEntries[pobjPicture.get()];
  if (!entry.Keeper) entry.Keeper = pobjPicture;
  for (const Sized& sized : entry.Sizes) {
    if (sized.Size == pobjSize && sized.IsOnDark == pblnOnDark) return sized.Pixmap;
  }
  const QPixmap pixmap = Rendered(pobjPicture->Key, pobjSize, pblnOnDark);
  if (entry.Sizes.size() < kSizesKept) return entry.Sizes.emplace_back(Sized{pobjSize, pblnOnDark, pixmap}).Pixmap;
  Sized& replaced = entry.Sizes[entry.Oldest];
  entry.Oldest = (entry.Oldest + 1) % kSizesKept;
  replaced = {pobjSize, pblnOnDark, pixmap};
  return replaced.Pixmap;
}

}  // namespace vantrel

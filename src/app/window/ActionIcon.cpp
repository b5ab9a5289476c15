#include "app/window/ActionIcon.h"

#include <QApplication>
#include <QByteArray>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QStyle>
#include <QStyleOption>
#include <QSvgRenderer>
#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <utility>

#include "app/window/IconArt.h"
#include "qt/Pictures.h"

namespace vantrel {

namespace {

// Renders a size when it is asked for: most icons are shown in one size, many never.
class DrawnIcon final : public QIconEngine {
 public:
  using Drawing = std::function<void(QPainter& pobjPainter, const QRectF& pobjBox)>;

  explicit DrawnIcon(Drawing pDrawing) : mDrawing(std::move(pDrawing)) {}

  QIconEngine* clone() const override { return new DrawnIcon(mDrawing); }
  void paint(QPainter* pobjPainter, const QRect& pobjBox, QIcon::Mode pMode, QIcon::State pState) override {
    const double ratio = pobjPainter->device()->devicePixelRatioF();
    pobjPainter->drawPixmap(pobjBox, pixmap(pobjBox.size() * ratio, pMode, pState));
  }
  QPixmap pixmap(const QSize& pobjSize, QIcon::Mode pMode, QIcon::State) override {
    QPixmap& pixmap = mcolPixmaps[{pobjSize.width(), pobjSize.height()}];
    if (pixmap.isNull()) pixmap = Rendered(pobjSize);
    if (pMode == QIcon::Normal) return pixmap;
    QStyleOption option;
    option.palette = QApplication::palette();
    return QApplication::style()->generatedIconPixmap(pMode, pixmap, &option);
  }

 private:
  QPixmap Rendered(const QSize& pobjSize) const {
    QPixmap pixmap(pobjSize);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    mDrawing(painter, pixmap.rect());
    return pixmap;
  }

  Drawing mDrawing;
  std::map<std::pair<int, int>, QPixmap> mcolPixmaps;
};

QByteArray SvgInInk(std::string_view pstrName, const QColor& pobjInk) {
  const auto& icons = WindowIcons();
  const auto found = std::find_if(icons.begin(), icons.end(), [&](const IconArt& art) { return art.Name == pstrName; });
  if (found == icons.end()) return {};
  QByteArray svg(found->Svg.data(), static_cast<qsizetype>(found->Svg.size()));
  return svg.replace("#334155", pobjInk.name().toLatin1());
}

}  // namespace

QIcon ActionIcon(std::string_view pstrName, const QColor& pobjInk) {
  const QByteArray svg = SvgInInk(pstrName, pobjInk);
  if (svg.isEmpty()) return {};
  return QIcon(new DrawnIcon([svg](QPainter& painter, const QRectF& box) { QSvgRenderer(svg).render(&painter, box); }));
}

QIcon ProgramIcon() {
  return QIcon(new DrawnIcon([](QPainter& painter, const QRectF& box) {
    const double unit = box.width() / 32;
    Pictures::Render(painter, "Place", QRectF(1 * unit, 1 * unit, 19 * unit, 19 * unit));
    Pictures::Render(painter, "TransitionEnabled", QRectF(13 * unit, 13 * unit, 18 * unit, 18 * unit));
  }));
}

}  // namespace vantrel

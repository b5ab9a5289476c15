#include "app/window/ActionIcon.h"

#include <QByteArray>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <algorithm>

#include "app/window/IconArt.h"
#include "qt/Pictures.h"

namespace vantrel {

namespace {

constexpr int kSizes[] = {16, 20, 24, 32, 40, 48, 64};

QByteArray SvgInInk(std::string_view pstrName, const QColor& pobjInk) {
  const auto& icons = WindowIcons();
  const auto found = std::find_if(icons.begin(), icons.end(), [&](const IconArt& art) { return art.Name == pstrName; });
  if (found == icons.end()) return {};
  QByteArray svg(found->Svg.data(), static_cast<qsizetype>(found->Svg.size()));
  return svg.replace("#334155", pobjInk.name().toLatin1());
}

}  // namespace

QIcon ActionIcon(std::string_view pstrName, const QColor& pobjInk) {
  QSvgRenderer renderer;
  QIcon icon;
  if (!renderer.load(SvgInInk(pstrName, pobjInk))) return icon;
  for (const int size : kSizes) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    painter.end();
    icon.addPixmap(pixmap);
  }
  return icon;
}

QIcon ProgramIcon() {
  QIcon icon;
  for (const int size : kSizes) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    const double unit = size / 32.0;
    Pictures::Render(painter, "Place", QRectF(1 * unit, 1 * unit, 19 * unit, 19 * unit));
    Pictures::Render(painter, "TransitionEnabled", QRectF(13 * unit, 13 * unit, 18 * unit, 18 * unit));
    painter.end();
    icon.addPixmap(pixmap);
  }
  return icon;
}

}  // namespace vantrel

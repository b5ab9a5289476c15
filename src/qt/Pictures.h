// What pictures look like.
#pragma once

#include <QByteArray>
#include <QPixmap>
#include <QRectF>
#include <QSize>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "chart/Picture.h"

class QPainter;
class QSvgRenderer;

namespace vantrel {

/// Renders pictures of the chart by their keys, and keeps what it rendered in the sizes that were asked for last. The designer's
/// own pictures exist in light colours on dark, too, for charts whose ground is dark. Needs a QGuiApplication; a view has one of
/// its own.
class Pictures {
 public:
  /// Lets a host draw pictures of its own image lists: SVG text under the picture's key, from now on and for all views. One of
  /// the designer's pictures may be replaced. False when the text is no SVG; then nothing changes.
  static bool Install(const std::string& pstrKey, const QByteArray& pstrSvg);

  /// The picture in exactly so many device pixels. Null for a key that nobody has drawn.
  const QPixmap& Pixmap(const std::shared_ptr<const Picture>& pobjPicture, QSize pobjSize, bool pblnOnDark = false);
  /// Paints the picture as vectors. False for a key that nobody has drawn.
  static bool Render(QPainter& pobjPainter, const std::string& pstrKey, const QRectF& pobjTarget, bool pblnOnDark = false);

 private:
  struct Sized {
    QSize Size;
    bool IsOnDark = false;
    QPixmap Pixmap;
  };
  struct Entry {
    std::shared_ptr<const Picture> Keeper;  // its address is the key
    std::vector<Sized> Sizes;
    std::size_t Oldest = 0;
  };

  std::unordered_map<const Picture*, Entry> mEntries;
  int mlngEdition = 0;
};

}  // namespace vantrel

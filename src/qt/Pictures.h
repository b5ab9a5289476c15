// Renders pictures.
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

/// Renders pictures of the chart by their keys and keeps the sizes used last. The designer's own pictures exist in light colours, too,
/// for charts with a dark ground. Needs a QGuiApplication. Each view has its own.
class Pictures {
 public:
  /// Sets what a picture of a host's image list looks like, as SVG text under the picture's key, for all views. May replace one of
  /// the designer's pictures. Returns false, and changes nothing, when the text is not SVG.
  static bool Install(const std::string& pstrKey, const QByteArray& pstrSvg);

  /// The picture in exactly so many device pixels. Null for an unknown key.
  const QPixmap& Pixmap(const std::shared_ptr<const Picture>& pobjPicture, QSize pobjSize, bool pblnOnDark = false);
  /// Paints the picture as vectors. Returns false for an unknown key.
  static bool Render(QPainter& pobjPainter, const std::string& pstrKey, const QRectF& pobjTarget, bool pblnOnDark = false);

 private:
  struct Sized {
    QSize Size;
    bool IsOnDark = false;
    QPixmap Pixmap;
  };
  struct Entry {
    std::shared_ptr<const Picture> Keeper;  // keeps alive the picture whose address is the key
    std::vector<Sized> Sizes;
    std::size_t Oldest = 0;
  };

  std::unordered_map<const Picture*, Entry> mEntries;
  int mlngEdition = 0;
};

}  // namespace vantrel

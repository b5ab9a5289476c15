#include "qt/DraggedData.h"

#include <QMimeData>
#include <QUrl>

namespace vantrel {

DraggedData::DraggedData(const QMimeData& pobjData) : Text(pobjData.text().toStdString()) {
  const auto urls = pobjData.urls();
  for (const QUrl& url : urls) Urls.push_back(url.toString(QUrl::FullyEncoded).toStdString());
  const auto formats = pobjData.formats();
  for (const QString& format : formats) Formats[format.toStdString()] = pobjData.data(format).toStdString();
}

}  // namespace vantrel

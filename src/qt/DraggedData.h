// What the user drags in from elsewhere.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "util/Object.h"

class QMimeData;

namespace vantrel {

/// The DragObject of a drop from another program, or from a widget that did not set one.
class DraggedData final : public Object {
 public:
  explicit DraggedData(const QMimeData& pobjData);

  std::string Text;                            ///< plain text, UTF-8
  std::vector<std::string> Urls;               ///< files as file:// addresses
  std::map<std::string, std::string> Formats;  ///< everything as bytes, by MIME type

  std::string Class() const override { return "VNTR.DraggedData.1"; }
  /// The text, or the first address.
  std::string NameText() const override { return Text.empty() && !Urls.empty() ? Urls.front() : Text; }
};

}  // namespace vantrel

// The position of the next paste.
#pragma once

#include <memory>
#include <vector>

#include "model/ChartObject.h"

namespace vantrel {

class Vantrel;

/// With Comfort::PasteKeepsOriginals: beside the objects copied or pasted last, until the control's current position changes; then there.
class PastePlace {
 public:
  struct Corner {
    float Left, Top;  // twips
  };

  using Objects = std::vector<std::shared_ptr<ChartObject>>;

  /// The top-left corner of a group.
  static Corner CornerOf(const Objects& pcolObjects);
  /// Notes what was put on the clipboard.
  void Copied(const Vantrel& pobjControl, const Objects& pcolObjects) { Remember(pobjControl, CornerOf(pcolObjects)); }
  /// The top-left corner of the next copies.
  Corner Take(const Vantrel& pobjControl);

 private:
  void Remember(const Vantrel& pobjControl, const Corner& pobjCorner);

  Corner mobjPosition{}, mobjLast{};  // the control's position then, and the objects' corner
  bool mblnKnown = false;
};

}  // namespace vantrel

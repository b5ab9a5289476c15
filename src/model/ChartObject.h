// What places, transitions, arcs, segments, bend points and notes have in common.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "chart/Geometry.h"
#include "model/ModelObject.h"

namespace vantrel {

/// The class of a chart object, as a value to switch on.
enum class ChartKind : std::uint8_t { Place, Transition, Arc, Vector, Elbow, Notation };

/// An object that the chart shows and a user can choose. Owned by its workflow's collection; the chart owns its elements. Twips.
class ChartObject : public ModelObject, public std::enable_shared_from_this<ChartObject> {
 public:
  std::string Key;  ///< in the workflow's collection of its kind

  virtual ChartKind Kind() const = 0;
  virtual bool Selected() const = 0;
  virtual void Selected(bool pblnOn) = 0;
  /// The picture of a place or transition, the handle of a bend point, the box of a note; empty for arcs and segments.
  virtual std::optional<Rect> Bounds() const { return std::nullopt; }
  /// Moves the top-left corner of what has Bounds, and marks it dirty.
  virtual void MoveTo(float /*psngLeft*/, float /*psngTop*/) {}

 protected:
  std::shared_ptr<const void> KeepAlive() const override { return weak_from_this().lock(); }
};

/// A share in an object that is held by shared_ptr.
template <class T>
std::shared_ptr<T> ShareOf(T& pobjObject) {
  return std::static_pointer_cast<T>(pobjObject.shared_from_this());
}

}  // namespace vantrel

// Dragging a connector to another side of its object.
#pragma once

#include <cstdint>

#include "chart/Image.h"
#include "designer/gestures/Gesture.h"
#include "model/Node.h"
#include "util/Ref.h"

namespace vantrel {

class Vantrel;

/// The side of an image (ConnectorPosition) near enough to a point for dropping a connector there; 0 for none.
std::int16_t SideAt(const Image& pobjImage, float psngX, float psngY);

/// Begins with a left press on a connector. The connector follows the mouse; the pointer is a hand where it can be dropped. Released, it
/// snaps to the new side or back to the old one.
class ConnectorGesture final : public Gesture {
 public:
  ConnectorGesture(Vantrel& pobjControl, const std::shared_ptr<Node>& pobjNode, Image& pobjConnector, const PointerInput& pobjPress);

  void Move(const PointerInput& pobjInput) override;
  void Release(const PointerInput& pobjInput) override;
  void Cancel() override { Snap(); }

 private:
  bool IsShown() const;
  void Drop(Node& pobjNode, std::int16_t pintSide) const;
  void Snap() const;

  Vantrel& mobjControl;
  Ref<Node> mobjNode;
  Ref<Image> mobjConnector;
  float msngX, msngY;  // of the press, inside the connector
  bool mblnMoved = false;
};

}  // namespace vantrel

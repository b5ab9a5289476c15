#include "model/VNTRGlobal.h"

#include <cmath>

#include "model/DesignerState.h"
#include "model/Node.h"

namespace vantrel {

namespace {

constexpr float kInset = 16;  // twips that an arrow keeps from the far edge of a connector picture

float CentredX(const Image& pobjConnector) { return std::floor(pobjConnector.Left() + pobjConnector.Width() / 2) - kInset; }

}  // namespace

float OutputConnectorX(const Node& pobjNode) {
  const Image& connector = *pobjNode.OutConnector;
  switch (pobjNode.OutputPosition()) {
    case vntTop:
    case vntBottom:
      return CentredX(connector);
    case vntRight:
      return connector.Left() + connector.Width();
    case vntLeft:
      return connector.Left();
    default:
      return 0;
  }
}

float OutputConnectorY(const Node& pobjNode) {
  const Image& connector = *pobjNode.OutConnector;
  switch (pobjNode.OutputPosition()) {
    case vntTop:
      return connector.Top();
    case vntBottom:
      return connector.Top() + connector.Height();
    case vntRight:
    case vntLeft:
      return connector.Top() + connector.Height() / 2;
    default:
      return 0;
  }
}

float InputConnectorX(const Node& pobjNode) {
  const Image& connector = *pobjNode.InConnector;
  switch (pobjNode.InputPosition()) {
    case vntTop:
    case vntBottom:
      return CentredX(connector);
    case vntRight:
      return connector.Left() + connector.Width() - kInset;
    case vntLeft:
      return connector.Left();
    default:
      return 0;
  }
}

float InputConnectorY(const Node& pobjNode) {
  const Image& connector = *pobjNode.InConnector;
  switch (pobjNode.InputPosition()) {
    case vntTop:
      return connector.Top();
    case vntBottom:
      return connector.Top() + connector.Height() - kInset;
    case vntRight:
    case vntLeft:
      return connector.Top() + connector.Height() / 2;
    default:
      return 0;
  }
}

void FitLabel(Label& pobjLabel, DesignerHost& pobjHost) {
  const float left = pobjLabel.Left();
  pobjLabel.AutoSize(true);
  pobjLabel.AutoSize(false);
  pobjLabel.Left(left);
  pobjHost.FrameControl();
}

}  // namespace vantrel

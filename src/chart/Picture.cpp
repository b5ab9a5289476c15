#include "chart/Picture.h"

#include "chart/Geometry.h"

namespace vantrel {

ImageList ImageList::VantrelImages() {
  constexpr float kObject = 32 * kTwipsPerPixel;
  constexpr float kConnector = 8 * kTwipsPerPixel;
  constexpr float kHandle = 6 * kTwipsPerPixel;
  constexpr float kSign = 16 * kTwipsPerPixel;
  ImageList list;
  for (const char* key : {"Place", "PlaceGreen", "Transition", "TransitionEnabled", "Workflow"}) {
    list.Add(key, kObject, kObject);
  }
  for (const char* key : {"InputTop", "InputRight", "InputBottom", "InputLeft", "OutputVertical", "OutputHorizontal"}) {
    list.Add(key, kConnector, kConnector);
  }
  for (const char* key : {"HandPointer", "Expand", "Collapse"}) list.Add(key, kSign, kSign);
  list.Add("Handle", kHandle, kHandle);
  return list;
}

}  // namespace vantrel

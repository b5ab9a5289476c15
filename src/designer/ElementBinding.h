// Gives the objects of a workflow their elements on the chart.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "designer/Vantrel.h"

namespace vantrel {

/// Takes time in proportion to the object alone. Removes elements that the object already has on this chart.
class ElementBinding {
 public:
  explicit ElementBinding(Vantrel& pobjControl) : mobjControl(pobjControl), mobjSurface(pobjControl.ChartArea) {}

  /// Error 35601 when the image list lacks the place's picture. Call it before you change anything else for the place.
  void RequirePicture(const Place& pobjPlace) const;
  /// Throws only when the list lacks the usual picture as well, which a transition can show instead of its own.
  void RequirePicture(const Transition& pobjTransition) const;
  /// Throws as RequirePicture does, with nothing bound.
  void Bind(Place& pobjPlace);
  /// A transition with an unknown picture takes the usual ones.
  void Bind(Transition& pobjTransition);
  /// Also links the segments of an arc that was stored, and gives it its bend points.
  void Bind(Arc& pobjArc);
  void Bind(Notation& pobjNotation);

 private:
  using PicturePtr = std::shared_ptr<const Picture>;

  void BindNode(Node& pobjNode, const PicturePtr& pobjPicture);
  void BindLabels(Arc& pobjArc);
  void BindSegments(const std::vector<Vector*>& pcolChain);
  void BindBendPoint(Elbow& pobjElbow);
  Image& NewImage(Ref<Image>& pobjMember, const std::string& pstrKey, const PicturePtr& pobjPicture);
  Label& NewLabel(ElementFamily<Label>& pobjFamily, Ref<Label>& pobjMember, const std::string& pstrKey, const std::string& pstrCaption);
  template <class E>
  E& Renew(ElementFamily<E>& pobjFamily, Ref<E>& pobjMember, const std::string& pstrKey);

  Vantrel& mobjControl;
  ChartSurface& mobjSurface;
};

}  // namespace vantrel

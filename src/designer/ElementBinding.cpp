#include "designer/ElementBinding.h"

#include <algorithm>

#include "designer/ChartObjects.h"
#include "model/VNTRGlobal.h"
#include "util/Lookup.h"

namespace vantrel {

namespace {

constexpr std::int16_t kCentred = 2;

// A label that was never fitted, as in a net made without a chart, gets the size of its text.
void SizeLabel(Label& pobjLabel, float& psngWidth, float& psngHeight) {
  if (psngWidth <= 0 || psngHeight <= 0) {
    FitLabel(pobjLabel);
    psngWidth = pobjLabel.Width();
    psngHeight = pobjLabel.Height();
  }
  pobjLabel.Resize(psngWidth, psngHeight);
}

}  // namespace

template <class E>
E& ElementBinding::Renew(ElementFamily<E>& pobjFamily, Ref<E>& pobjMember, const std::string& pstrKey) {
  if (pobjMember && pobjMember->Surface() == &mobjSurface) pobjMember->Unload();
  const auto element = pobjFamily.New();
  element->Tag(pstrKey);
  pobjMember = element;
  return *element;
}

Image& ElementBinding::NewImage(Ref<Image>& pobjMember, const std::string& pstrKey, const PicturePtr& pobjPicture) {
  Image& image = Renew(mobjSurface.ctlImage, pobjMember, pstrKey);
  image.Picture(pobjPicture);
  return image;
}

Label& ElementBinding::NewLabel(ElementFamily<Label>& pobjFamily, Ref<Label>& pobjMember, const std::string& pstrKey,
                                const std::string& pstrCaption) {
  Label& label = Renew(pobjFamily, pobjMember, pstrKey);
  label.Caption(pstrCaption);
  label.Alignment(kCentred);
  return label;
}

void ElementBinding::BindNode(Node& pobjNode, const PicturePtr& pobjPicture) {
  Select(pobjNode, false);
  Image& image = NewImage(pobjNode.Image, pobjNode.Key, pobjPicture);
  image.MoveTo(pobjNode.Left(), pobjNode.Top());
  image.Visible(true);
  NewImage(pobjNode.InConnector, pobjNode.Key, mobjControl.ImageList->Find("InputLeft"));
  NewImage(pobjNode.OutConnector, pobjNode.Key, mobjControl.ImageList->Find("OutputHorizontal"));
  Label& caption = NewLabel(mobjSurface.ctlLabel, pobjNode.CaptionLabel, pobjNode.Key, pobjNode.Caption());
  SizeLabel(caption, pobjNode.CaptionWidth, pobjNode.CaptionHeight);
}

void ElementBinding::RequirePicture(const Place& pobjPlace) const {
  const std::string& key = pobjPlace.DisabledImageKey;
  if (!mobjControl.ImageList->Find(key)) throw Error(vntErrElementNotFound, "Element not found: the picture \"" + key + "\"");
}

void ElementBinding::RequirePicture(const Transition& pobjTransition) const {
  if (mobjControl.ImageList->Find(pobjTransition.DisabledImageKey) || mobjControl.ImageList->Find("Transition")) return;
  throw Error(vntErrElementNotFound);
}

void ElementBinding::Bind(Place& pobjPlace) {
  RequirePicture(pobjPlace);
  BindNode(pobjPlace, mobjControl.ImageList->Find(pobjPlace.DisabledImageKey));
  NewLabel(mobjSurface.lblCount, pobjPlace.CountLabel, pobjPlace.Key, "").AutoSize(true);
  pobjPlace.Image->BringToFront();
}

void ElementBinding::Bind(Transition& pobjTransition) {
  RequirePicture(pobjTransition);
  auto picture = mobjControl.ImageList->Find(pobjTransition.DisabledImageKey);
  if (!picture) {
    pobjTransition.DisabledImageKey = "Transition";
    pobjTransition.EnabledImageKey = "TransitionEnabled";
    picture = mobjControl.ImageList->Find(pobjTransition.DisabledImageKey);
  }
  BindNode(pobjTransition, picture);
  pobjTransition.Image->BringToFront();
}

void ElementBinding::BindLabels(Arc& pobjArc) {
  const std::string guard = pobjArc.Guard().empty() ? std::string() : "[" + pobjArc.Guard() + "]";
  Label& caption = NewLabel(mobjSurface.ctlLabel, pobjArc.CaptionLabel, pobjArc.Key, guard);
  caption.Resize(pobjArc.CaptionWidth(), pobjArc.CaptionHeight());
  Label& weight = NewLabel(mobjSurface.ctlLabel, pobjArc.WeightLabel, pobjArc.Key, pobjArc.Weight());
  float width = pobjArc.WeightWidth(), height = pobjArc.WeightHeight();
  SizeLabel(weight, width, height);
}

void ElementBinding::BindSegments(const std::vector<Vector*>& pcolChain) {
  for (Vector* segment : pcolChain) {
    Line& line = Renew(mobjSurface.ctlLine, segment->LineControl, segment->Key);
    line.BorderWidth(segment->LineWidth());
    segment->Draw();
  }
}

void ElementBinding::BindBendPoint(Elbow& pobjElbow) {
  pobjElbow.Selected(false);
  Image& handle = Renew(mobjSurface.ctlHandle, pobjElbow.Handle, pobjElbow.Key);
  pobjElbow.CentreHandle(pobjElbow.InVector()->X2(), pobjElbow.InVector()->Y2());
  pobjElbow.Visible(false);
  handle.BringToFront();
}

void ElementBinding::Bind(Arc& pobjArc) {
  Select(pobjArc, false);
  BindLabels(pobjArc);
  if (pobjArc.Segments().empty()) pobjArc.AddSegment();
  const auto chain = pobjArc.LinkSegments();
  BindSegments(chain);
  for (const Vector* segment : chain) {
    for (Elbow* elbow : segment->Elbows()) {
      if (elbow->InVector() == segment) BindBendPoint(*elbow);
    }
  }
}

void ElementBinding::Bind(Notation& pobjNotation) {
  Label& label = Renew(mobjSurface.ctlLabel, pobjNotation.TextControl, pobjNotation.Key);
  Select(pobjNotation, false);
  pobjNotation.Draw();
  label.Visible(true);
}

}  // namespace vantrel

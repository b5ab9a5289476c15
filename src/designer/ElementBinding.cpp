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

using PicturePtr = std::shared_ptr<const Picture>;

template <class E>
E& Renew(const ChartSurface& pobjSurface, ElementFamily<E>& pobjFamily, Ref<E>& pobjMember, const std::string& pstrKey) {
  if (pobjMember && pobjMember->Surface() == &pobjSurface) pobjMember->Unload();
  const auto element = pobjFamily.New();
  element->Tag(pstrKey);
  pobjMember = element;
  return *element;
}

Image& NewImage(ChartSurface& pobjSurface, Ref<Image>& pobjMember, const std::string& pstrKey, const PicturePtr& pobjPicture) {
  Image& image = Renew(pobjSurface, pobjSurface.ctlImage, pobjMember, pstrKey);
  image.Picture(pobjPicture);
  return image;
}

Label& NewLabel(ChartSurface& pobjSurface, ElementFamily<Label>& pobjFamily, Ref<Label>& pobjMember, const std::string& pstrKey,
                const std::string& pstrCaption) {
  Label& label = Renew(pobjSurface, pobjFamily, pobjMember, pstrKey);
  label.Caption(pstrCaption);
  label.Alignment(kCentred);
  return label;
}

void BindNode(Vantrel& pobjControl, Node& pobjNode, const PicturePtr& pobjPicture) {
  ChartSurface& chart = pobjControl.ChartArea;
  Select(pobjNode, false);
  Image& image = NewImage(chart, pobjNode.Image, pobjNode.Key, pobjPicture);
  image.MoveTo(pobjNode.Left(), pobjNode.Top());
  image.Visible(true);
  NewImage(chart, pobjNode.InConnector, pobjNode.Key, pobjControl.ImageList->Find("InputLeft"));
  NewImage(chart, pobjNode.OutConnector, pobjNode.Key, pobjControl.ImageList->Find("OutputHorizontal"));
  Label& caption = NewLabel(chart, chart.ctlLabel, pobjNode.CaptionLabel, pobjNode.Key, pobjNode.Caption());
  SizeLabel(caption, pobjNode.CaptionWidth, pobjNode.CaptionHeight);
}

void BindLabels(ChartSurface& pobjSurface, Arc& pobjArc) {
  const std::string guard = pobjArc.Guard().empty() ? std::string() : "[" + pobjArc.Guard() + "]";
  Label& caption = NewLabel(pobjSurface, pobjSurface.ctlLabel, pobjArc.CaptionLabel, pobjArc.Key, guard);
  caption.Resize(pobjArc.CaptionWidth(), pobjArc.CaptionHeight());
  Label& weight = NewLabel(pobjSurface, pobjSurface.ctlLabel, pobjArc.WeightLabel, pobjArc.Key, pobjArc.Weight());
  float width = pobjArc.WeightWidth(), height = pobjArc.WeightHeight();
  SizeLabel(weight, width, height);
}

void BindSegments(ChartSurface& pobjSurface, const std::vector<Vector*>& pcolChain) {
  for (Vector* segment : pcolChain) {
    Line& line = Renew(pobjSurface, pobjSurface.ctlLine, segment->LineControl, segment->Key);
    line.BorderWidth(segment->LineWidth());
    segment->Draw();
  }
}

void BindBendPoint(ChartSurface& pobjSurface, Elbow& pobjElbow) {
  pobjElbow.Selected(false);
  Image& handle = Renew(pobjSurface, pobjSurface.ctlHandle, pobjElbow.Handle, pobjElbow.Key);
  pobjElbow.CentreHandle(pobjElbow.InVector()->X2(), pobjElbow.InVector()->Y2());
  pobjElbow.Visible(false);
  handle.BringToFront();
}

}  // namespace

void RequirePicture(const Vantrel& pobjControl, const Place& pobjPlace) {
  const std::string& key = pobjPlace.DisabledImageKey;
  if (!pobjControl.ImageList->Find(key)) throw Error(vntErrElementNotFound, "Element not found: the picture \"" + key + "\"");
}

void RequirePicture(const Vantrel& pobjControl, const Transition& pobjTransition) {
  if (pobjControl.ImageList->Find(pobjTransition.DisabledImageKey) || pobjControl.ImageList->Find("Transition")) return;
  throw Error(vntErrElementNotFound);
}

void Bind(Vantrel& pobjControl, Place& pobjPlace) {
  RequirePicture(pobjControl, pobjPlace);
  ChartSurface& chart = pobjControl.ChartArea;
  BindNode(pobjControl, pobjPlace, pobjControl.ImageList->Find(pobjPlace.DisabledImageKey));
  NewLabel(chart, chart.lblCount, pobjPlace.CountLabel, pobjPlace.Key, "").AutoSize(true);
  pobjPlace.Image->BringToFront();
}

void Bind(Vantrel& pobjControl, Transition& pobjTransition) {
  RequirePicture(pobjControl, pobjTransition);
  auto picture = pobjControl.ImageList->Find(pobjTransition.DisabledImageKey);
  if (!picture) {
    pobjTransition.DisabledImageKey = "Transition";
    pobjTransition.EnabledImageKey = "TransitionEnabled";
    picture = pobjControl.ImageList->Find(pobjTransition.DisabledImageKey);
  }
  BindNode(pobjControl, pobjTransition, picture);
  pobjTransition.Image->BringToFront();
}

void Bind(Vantrel& pobjControl, Arc& pobjArc) {
  ChartSurface& chart = pobjControl.ChartArea;
  Select(pobjArc, false);
  BindLabels(chart, pobjArc);
  if (pobjArc.Segments().empty()) pobjArc.AddSegment();
  const auto chain = pobjArc.LinkSegments();
  BindSegments(chart, chain);
  for (const Vector* segment : chain) {
    for (Elbow* elbow : segment->Elbows()) {
      if (elbow->InVector() == segment) BindBendPoint(chart, *elbow);
    }
  }
}

void Bind(Vantrel& pobjControl, Notation& pobjNotation) {
  ChartSurface& chart = pobjControl.ChartArea;
  Label& label = Renew(chart, chart.ctlLabel, pobjNotation.TextControl, pobjNotation.Key);
  Select(pobjNotation, false);
  pobjNotation.Draw();
  label.Visible(true);
}

}  // namespace vantrel

#include "interchange/section/VantrelSection.h"

#include <utility>

#include "interchange/PnmlPixels.h"
#include "interchange/section/ArcPathText.h"
#include "interchange/section/PnmlLabel.h"
#include "interchange/section/SectionFields.h"
#include "interchange/section/SectionRecords.h"
#include "interchange/section/SectionWriter.h"

namespace vantrel {

namespace {

/// Tells whether SectionWriter would write anything.
class DifferenceFinder {
 public:
  template <class T>
  void Field(std::string_view /*pstrName*/, const T& pValue, const std::type_identity_t<T>& pUsual) {
    if (!(pValue == pUsual)) mFound = true;
  }
  template <class T, class Set>
  void Property(std::string_view pstrName, const T& pValue, const std::type_identity_t<T>& pUsual, Set&& /*pSet*/) {
    Field(pstrName, pValue, pUsual);
  }
  bool Found() const { return mFound; }

 private:
  bool mFound = false;
};

void WriteCoordinate(XmlWriter& pobjXml, const char* pstrName, float psngTwips, float psngOrigin) {
  if (!IsExactInPixels(psngTwips, psngOrigin)) pobjXml.Attribute(pstrName, ToSectionText(psngTwips));
}

}  // namespace

void VantrelSection::Open() {
  mXml.Open("toolspecific");
  mXml.Attribute("tool", kSectionTool);
  mXml.Attribute("version", kSectionVersion);
}

void VantrelSection::OpenSettings() {
  Open();
  mXml.Open("settings");
}

void VantrelSection::Write(const Workflow& pobjWorkflow) {
  SectionWriter writer(mXml);
  mXml.Open("settings");
  writer.Field("start", mIds.Of(pobjWorkflow.StartPlace.get()), {});
  writer.Field("end", mIds.Of(pobjWorkflow.EndPlace().get()), {});
  WorkflowFields(writer, pobjWorkflow);
  mXml.Close();
  for (const auto& note : pobjWorkflow.Notations) {
    mXml.Open("note");
    NoteFields(writer, std::as_const(*note));
    mXml.Close();
  }
}

void VantrelSection::WriteHiddenTag(const Object& pobjObject, const std::string& pstrHiddenTag) {
  SectionWriter(mXml).Field("hiddenTag", pstrHiddenTag, mIds.Of(&pobjObject));
}

void VantrelSection::WriteNode(const Node& pobjNode, const Node& pobjFresh) {
  SectionWriter writer(mXml);
  mXml.Attribute("name", EncodeText(pobjNode.Name()));
  writer.Field("caption", pobjNode.Caption(), PnmlLabel(pobjNode.Caption()));
  WriteHiddenTag(pobjNode, pobjNode.HiddenTag);
  WriteCoordinate(mXml, "left", pobjNode.Left(), kOfCentre);
  WriteCoordinate(mXml, "top", pobjNode.Top(), kOfCentre);
  WriteCoordinate(mXml, "captionOffsetLeft", pobjNode.CaptionOffsetLeft(), kOfCaption);
  WriteCoordinate(mXml, "captionOffsetTop", pobjNode.CaptionOffsetTop(), kOfCaption);
  NodeFields(writer, pobjNode, pobjFresh);
}

void VantrelSection::Write(const Place& pobjPlace) {
  OpenSettings();
  WriteNode(pobjPlace, mFreshPlace);
  SectionWriter writer(mXml);
  PlaceFields(writer, pobjPlace);
  if (pobjPlace.TokenProperties) WriteRecords(mXml, *pobjPlace.TokenProperties);
  mXml.Close();
  Close();
}

void VantrelSection::Write(const Transition& pobjTransition, const std::string& pstrEmbedded) {
  OpenSettings();
  WriteNode(pobjTransition, mFreshTransition);
  SectionWriter writer(mXml);
  TransitionFields(writer, pobjTransition);
  writer.Field("embeds", pstrEmbedded, {});
  if (pobjTransition.Roles) {
    mXml.Open("roles");
    WriteRecords(mXml, *pobjTransition.Roles);
    mXml.Close();
  }
  mXml.Close();
  Close();
}

void VantrelSection::Write(const Arc& pobjArc) {
  const std::string path = IsUsualPath(pobjArc) ? std::string() : ArcPathText(pobjArc);
  const std::string weight = IsPnmlWeight(pobjArc.Weight()) ? "1" : pobjArc.Weight();
  DifferenceFinder finder;
  ArcFields(finder, pobjArc);
  if (!finder.Found() && path.empty() && weight == "1" && pobjArc.HiddenTag == mIds.Of(&pobjArc)) return;
  OpenSettings();
  SectionWriter writer(mXml);
  WriteHiddenTag(pobjArc, pobjArc.HiddenTag);
  writer.Field("weight", weight, "1");
  ArcFields(writer, pobjArc);
  writer.Field("path", path, {});
  mXml.Close();
  Close();
}

}  // namespace vantrel

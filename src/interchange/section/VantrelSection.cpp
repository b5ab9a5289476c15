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

void WriteCoordinate(pugi::xml_node pobjSettings, const char* pstrName, float psngTwips, float psngOrigin) {
  if (!IsExactInPixels(psngTwips, psngOrigin)) pobjSettings.append_attribute(pstrName) = ToSectionText(psngTwips).c_str();
}

pugi::xml_node AppendSection(pugi::xml_node pobjElement) {
  pugi::xml_node section = pobjElement.append_child("toolspecific");
  section.append_attribute("tool") = kSectionTool;
  section.append_attribute("version") = kSectionVersion;
  return section;
}

pugi::xml_node AppendSettings(pugi::xml_node pobjElement) { return AppendSection(pobjElement).append_child("settings"); }

}  // namespace

pugi::xml_node VantrelSection::Write(pugi::xml_node pobjNet, const Workflow& pobjWorkflow) {
  pugi::xml_node section = AppendSection(pobjNet);
  SectionWriter writer(section.append_child("settings"));
  writer.Field("start", mIds.Of(pobjWorkflow.StartPlace.get()), {});
  writer.Field("end", mIds.Of(pobjWorkflow.EndPlace().get()), {});
  WorkflowFields(writer, pobjWorkflow);
  for (const auto& note : pobjWorkflow.Notations) {
    SectionWriter noteWriter(section.append_child("note"));
    NoteFields(noteWriter, std::as_const(*note));
  }
  return section;
}

void VantrelSection::WriteHiddenTag(pugi::xml_node pobjSettings, const Object& pobjObject, const std::string& pstrHiddenTag) {
  SectionWriter(pobjSettings).Field("hiddenTag", pstrHiddenTag, mIds.Of(&pobjObject));
}

void VantrelSection::WriteNode(pugi::xml_node pobjSettings, const Node& pobjNode, const Node& pobjFresh) {
  SectionWriter writer(pobjSettings);
  pobjSettings.append_attribute("name") = EncodeText(pobjNode.Name()).c_str();
  writer.Field("caption", pobjNode.Caption(), PnmlLabel(pobjNode.Caption()));
  WriteHiddenTag(pobjSettings, pobjNode, pobjNode.HiddenTag);
  WriteCoordinate(pobjSettings, "left", pobjNode.Left(), kOfCentre);
  WriteCoordinate(pobjSettings, "top", pobjNode.Top(), kOfCentre);
  WriteCoordinate(pobjSettings, "captionOffsetLeft", pobjNode.CaptionOffsetLeft(), kOfCaption);
  WriteCoordinate(pobjSettings, "captionOffsetTop", pobjNode.CaptionOffsetTop(), kOfCaption);
  NodeFields(writer, pobjNode, pobjFresh);
}

void VantrelSection::Write(pugi::xml_node pobjElement, const Place& pobjPlace) {
  const pugi::xml_node settings = AppendSettings(pobjElement);
  WriteNode(settings, pobjPlace, mFreshPlace);
  SectionWriter writer(settings);
  PlaceFields(writer, pobjPlace);
  if (pobjPlace.TokenProperties) WriteRecords(settings, *pobjPlace.TokenProperties);
}

void VantrelSection::Write(pugi::xml_node pobjElement, const Transition& pobjTransition, const std::string& pstrEmbedded) {
  pugi::xml_node settings = AppendSettings(pobjElement);
  WriteNode(settings, pobjTransition, mFreshTransition);
  SectionWriter writer(settings);
  TransitionFields(writer, pobjTransition);
  writer.Field("embeds", pstrEmbedded, {});
  if (pobjTransition.Roles) WriteRecords(settings.append_child("roles"), *pobjTransition.Roles);
}

void VantrelSection::Write(pugi::xml_node pobjElement, const Arc& pobjArc) {
  const std::string path = IsUsualPath(pobjArc) ? std::string() : ArcPathText(pobjArc);
  const std::string weight = IsPnmlWeight(pobjArc.Weight()) ? "1" : pobjArc.Weight();
  DifferenceFinder finder;
  ArcFields(finder, pobjArc);
  if (!finder.Found() && path.empty() && weight == "1" && pobjArc.HiddenTag == mIds.Of(&pobjArc)) return;
  const pugi::xml_node settings = AppendSettings(pobjElement);
  SectionWriter writer(settings);
  WriteHiddenTag(settings, pobjArc, pobjArc.HiddenTag);
  writer.Field("weight", weight, "1");
  ArcFields(writer, pobjArc);
  writer.Field("path", path, {});
}

}  // namespace vantrel

#include "interchange/section/VantrelSectionReader.h"

#include <string_view>

#include "interchange/PnmlPixels.h"
#include "interchange/section/ArcPathText.h"
#include "interchange/section/PnmlLabel.h"
#include "interchange/section/SectionFields.h"
#include "interchange/section/SectionReader.h"
#include "interchange/section/SectionRecords.h"
#include "interchange/section/VantrelSection.h"

namespace vantrel {

namespace {

pugi::xml_node Settings(PnmlSection pobjSection) { return ChildNamed(pugi::xml_node(pobjSection), "settings"); }

template <class Set>
void ReadCoordinate(const SectionReader& pobjReader, const char* pstrName, double psngPixels, float psngOrigin, Set&& pSet) {
  const auto twips = pobjReader.Value<float>(pstrName);
  if (twips && IsPixelOf(psngPixels, *twips, psngOrigin)) pSet(*twips);
}

void ReadGeometry(const SectionReader& pobjReader, const PnmlNode& pobjFrom, Node& pobjNode) {
  if (const auto& at = pobjFrom.Position) {
    ReadCoordinate(pobjReader, "left", at->X, kOfCentre, [&](float twips) { pobjNode.Left(twips); });
    ReadCoordinate(pobjReader, "top", at->Y, kOfCentre, [&](float twips) { pobjNode.Top(twips); });
  }
  if (const auto& at = pobjFrom.NameOffset) {
    ReadCoordinate(pobjReader, "captionOffsetLeft", at->X, kOfCaption, [&](float twips) { pobjNode.CaptionOffsetLeft(twips); });
    ReadCoordinate(pobjReader, "captionOffsetTop", at->Y, kOfCaption, [&](float twips) { pobjNode.CaptionOffsetTop(twips); });
  }
}

void ReadNode(SectionReader& pobjReader, const PnmlNode& pobjFrom, bool pblnExact, Node& pobjNode) {
  const auto caption = pobjReader.Value<std::string>("caption");
  if (caption && PnmlLabel(*caption) == PnmlLabel(pobjFrom.Name)) pobjNode.Caption(*caption);
  pobjReader.Field("hiddenTag", pobjNode.HiddenTag, {});
  if (pblnExact) ReadGeometry(pobjReader, pobjFrom, pobjNode);
  NodeFields(pobjReader, pobjNode, pobjNode);
}

bool FollowsBends(const std::vector<PathSegment>& pcolPath, const std::vector<PnmlPoint>& pcolBends) {
  if (pcolPath.size() != pcolBends.size() + 1) return false;
  for (std::size_t i = 0; i < pcolBends.size(); ++i) {
    if (!IsPixelOf(pcolBends[i].X, pcolPath[i].X2, kOfPoint) || !IsPixelOf(pcolBends[i].Y, pcolPath[i].Y2, kOfPoint)) return false;
  }
  return true;
}

void ReadPath(const SectionReader& pobjReader, const PnmlArc& pobjFrom, const Arc& pobjArc) {
  const auto text = pobjReader.Value<std::string>("path");
  if (!text) return;
  const auto path = ReadArcPath(*text);
  if (!path) pobjReader.Refuse("path");
  const auto segments = pobjArc.Segments();
  if (path->size() != segments.size() || !FollowsBends(*path, pobjFrom.Bends)) return;
  for (std::size_t i = 0; i < segments.size(); ++i) {
    segments[i]->Start((*path)[i].X1, (*path)[i].Y1);
    segments[i]->End((*path)[i].X2, (*path)[i].Y2);
  }
  for (Elbow* bendPoint : pobjArc.BendPoints()) bendPoint->CentreHandle(bendPoint->InVector()->X2(), bendPoint->InVector()->Y2());
}

}  // namespace

pugi::xml_node FindSection(const pugi::xml_node& pobjElement) {
  return pobjElement.find_child([](const pugi::xml_node& child) {
    return LocalName(child) == "toolspecific" && std::string_view(child.attribute("tool").value()) == kSectionTool &&
           std::string_view(child.attribute("version").value()) == kSectionVersion;
  });
}

bool HasSectionValue(PnmlSection pobjSection, const char* pstrName) { return Settings(pobjSection).attribute(pstrName) != nullptr; }

std::string SectionText(const PnmlXml& pobjXml, PnmlSection pobjSection, const char* pstrName) {
  return SectionReader(pobjXml, Settings(pobjSection)).Value<std::string>(pstrName).value_or("");
}

void ReadSection(const PnmlXml& pobjXml, const PnmlNode& pobjFrom, bool pblnExact, Place& pobjPlace) {
  const pugi::xml_node settings = Settings(pobjFrom.Section);
  SectionReader reader(pobjXml, settings);
  ReadNode(reader, pobjFrom, pblnExact, pobjPlace);
  PlaceFields(reader, pobjPlace);
  ReadRecords(pobjXml, settings, *pobjPlace.TokenProperties);
}

void ReadSection(const PnmlXml& pobjXml, const PnmlNode& pobjFrom, bool pblnExact, Transition& pobjTransition) {
  const pugi::xml_node settings = Settings(pobjFrom.Section);
  SectionReader reader(pobjXml, settings);
  ReadNode(reader, pobjFrom, pblnExact, pobjTransition);
  TransitionFields(reader, pobjTransition);
  if (const pugi::xml_node roles = ChildNamed(settings, "roles")) {
    pobjTransition.Roles = std::make_shared<PropertyCollection>();
    ReadRecords(pobjXml, roles, *pobjTransition.Roles);
  }
}

void ReadSection(const PnmlXml& pobjXml, const PnmlArc& pobjFrom, bool pblnExact, Arc& pobjArc) {
  SectionReader reader(pobjXml, Settings(pobjFrom.Section));
  const auto weight = reader.Value<std::string>("weight");
  if (weight && pobjFrom.Weight == "1") pobjArc.AssignWeight(*weight);
  reader.Field("hiddenTag", pobjArc.HiddenTag, {});
  ArcFields(reader, pobjArc);
  if (pblnExact) ReadPath(reader, pobjFrom, pobjArc);
}

void ReadSection(const PnmlXml& pobjXml, PnmlSection pobjSection, Workflow& pobjWorkflow) {
  SectionReader settings(pobjXml, Settings(pobjSection));
  WorkflowFields(settings, pobjWorkflow);
  for (const pugi::xml_node& child : pugi::xml_node(pobjSection).children()) {
    if (LocalName(child) != "note") continue;
    SectionReader reader(pobjXml, child);
    NoteFields(reader, *pobjWorkflow.NewNotation());
  }
}

}  // namespace vantrel

// The sections of the tool "Vantrel" in a file, as written.
#pragma once

#include <string>

#include <pugixml.hpp>

#include "interchange/ExportIds.h"
#include "model/Workflow.h"

namespace vantrel {

constexpr const char* kSectionTool = "Vantrel";
constexpr const char* kSectionVersion = "1";

/// Writes the sections of one document.
class VantrelSection {
 public:
  explicit VantrelSection(const ExportIds& pobjIds) : mIds(pobjIds) {}

  /// Appends the section of a net, with settings and notes, and returns it.
  pugi::xml_node Write(pugi::xml_node pobjNet, const Workflow& pobjWorkflow);
  /// These append a whole section. pstrEmbedded is the id of the net that is embedded in the transition, or empty.
  void Write(pugi::xml_node pobjElement, const Place& pobjPlace);
  void Write(pugi::xml_node pobjElement, const Transition& pobjTransition, const std::string& pstrEmbedded);
  /// Writes nothing where PNML says it all.
  void Write(pugi::xml_node pobjElement, const Arc& pobjArc);

 private:
  void WriteNode(pugi::xml_node pobjSettings, const Node& pobjNode, const Node& pobjFresh);
  void WriteHiddenTag(pugi::xml_node pobjSettings, const Object& pobjObject, const std::string& pstrHiddenTag);

  const ExportIds& mIds;
  Place mFreshPlace;
  Transition mFreshTransition;
};

}  // namespace vantrel

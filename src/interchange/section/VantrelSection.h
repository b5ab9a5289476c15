// The sections of the tool "Vantrel" in a file, as written.
#pragma once

#include <string>

#include "interchange/ExportIds.h"
#include "interchange/XmlWriter.h"
#include "model/Workflow.h"

namespace vantrel {

constexpr const char* kSectionTool = "Vantrel";
constexpr const char* kSectionVersion = "1";

/// Writes the sections of one document.
class VantrelSection {
 public:
  VantrelSection(XmlWriter& pobjXml, const ExportIds& pobjIds) : mXml(pobjXml), mIds(pobjIds) {}

  void Open();
  void Close() { mXml.Close(); }

  /// Writes settings and notes into the open section of a net.
  void Write(const Workflow& pobjWorkflow);
  /// A whole section. pstrEmbedded is the id of the net that is embedded in the transition, or empty.
  void Write(const Place& pobjPlace);
  void Write(const Transition& pobjTransition, const std::string& pstrEmbedded);
  /// Writes nothing where PNML says it all.
  void Write(const Arc& pobjArc);

 private:
  void OpenSettings();
  void WriteNode(const Node& pobjNode, const Node& pobjFresh);
  void WriteHiddenTag(const Object& pobjObject, const std::string& pstrHiddenTag);

  XmlWriter& mXml;
  const ExportIds& mIds;
  Place mFreshPlace;
  Transition mFreshTransition;
};

}  // namespace vantrel

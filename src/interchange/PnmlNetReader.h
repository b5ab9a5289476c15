#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "interchange/PnmlDocument.h"
#include "interchange/PnmlIds.h"
#include "interchange/PnmlXml.h"

namespace vantrel {

/// Reads one `net` element with all its pages. Every net within it gets its own reader. The recursion is as deep as the elements, and
/// PnmlXml limits that.
class PnmlNetReader {
 public:
  /// pobjXml must outlive the reader.
  PnmlNetReader(const PnmlXml& pobjXml, bool pblnSkipUnsupported);

  /// For one call. Throws PnmlError; see PnmlReader.
  PnmlNet Read(const pugi::xml_node& pobjNet);

 private:
  void ReadContents(const pugi::xml_node& pobjHolder);
  void ReadElement(const pugi::xml_node& pobjElement);
  void ReadPage(const pugi::xml_node& pobjPage);
  void ReadNode(const pugi::xml_node& pobjElement, PnmlKind plngKind);
  std::int32_t ReadMarking(const pugi::xml_node& pobjPlace) const;

  void ReadArc(const pugi::xml_node& pobjElement);
  std::string ReadWeight(const pugi::xml_node& pobjArc) const;
  const PnmlNode& ArcEnd(const pugi::xml_node& pobjArc, const char* pstrAttribute) const;

  void ReadSubnets();

  const PnmlXml& mXml;
  bool mSkipUnsupported;
  PnmlIds mIds;
  std::vector<pugi::xml_node> mArcs;          // read once all ids are known
  std::vector<pugi::xml_node> mSubprocesses;  // the pages
  PnmlNet mNet;
};

}  // namespace vantrel

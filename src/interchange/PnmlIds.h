#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "interchange/PnmlDocument.h"
#include "interchange/PnmlXml.h"

namespace vantrel {

/// The ids of one net: those of its places and transitions, and those of the reference nodes by which its pages share them. The keys live
/// in the element tree.
class PnmlIds {
 public:
  explicit PnmlIds(const PnmlXml& pobjXml) : mXml(pobjXml) {}

  /// plngNode is the node's index in PnmlNet::Nodes. Throws PnmlError for an element without an id and for an id already used.
  void AddNode(const pugi::xml_node& pobjElement, PnmlKind plngKind, std::size_t plngNode);

  /// Adds a referencePlace or referenceTransition. Throws PnmlError as above and for one that refers to nothing.
  void AddReference(const pugi::xml_node& pobjElement, PnmlKind plngKind);

  /// Finds the node of every reference, through any number of other references. Throws PnmlError for a reference to an unknown id or to a
  /// node of the other kind, and for references in a circle. Call it once, before Find.
  void Resolve();

  /// The index of the node that an id means, or nothing.
  std::optional<std::size_t> Find(std::string_view pstrId) const;

 private:
  struct Entry {
    pugi::xml_node Element;
    PnmlKind Kind;
    std::optional<std::size_t> Node;  // of a reference: known once it is resolved
    bool OnTheWay = false;            // within Follow
  };

  void Add(const Entry& pobjEntry);
  void Follow(Entry& pobjReference);
  Entry& Referred(const Entry& pobjReference);

  const PnmlXml& mXml;
  std::unordered_map<std::string_view, Entry> mEntries;
  std::vector<std::string_view> mReferences;  // in the order of the file
};

}  // namespace vantrel

#include "interchange/PnmlIds.h"

#include <string>

namespace vantrel {

namespace {

std::string_view IdOf(const pugi::xml_node& pobjElement) { return pobjElement.attribute("id").value(); }

}  // namespace

void PnmlIds::AddNode(const pugi::xml_node& pobjElement, PnmlKind plngKind, std::size_t plngNode) {
  Add({pobjElement, plngKind, plngNode});
}

void PnmlIds::AddReference(const pugi::xml_node& pobjElement, PnmlKind plngKind) {
  if (!pobjElement.attribute("ref")) {
    mXml.Fail("the reference " + QuotedForMessage(IdOf(pobjElement)) + " refers to nothing", pobjElement);
  }
  Add({pobjElement, plngKind, std::nullopt});
  mReferences.push_back(IdOf(pobjElement));
}

void PnmlIds::Add(const Entry& pobjEntry) {
  const std::string_view id = IdOf(pobjEntry.Element);
  if (id.empty()) mXml.Fail("a " + std::string(LocalName(pobjEntry.Element)) + " without an id", pobjEntry.Element);
  if (!mEntries.emplace(id, pobjEntry).second) {
    mXml.Fail("the id " + QuotedForMessage(id) + " is used twice", pobjEntry.Element);
  }
}

void PnmlIds::Resolve() {
  for (const std::string_view id : mReferences) Follow(mEntries.at(id));
}

PnmlIds::Entry& PnmlIds::Referred(const Entry& pobjReference) {
  const std::string_view target = pobjReference.Element.attribute("ref").value();
  const std::string reference = "the reference " + QuotedForMessage(IdOf(pobjReference.Element)) + " to " + QuotedForMessage(target);
  const auto found = mEntries.find(target);
  if (found == mEntries.end()) mXml.Fail(reference + " leads nowhere", pobjReference.Element);
  if (found->second.Kind != pobjReference.Kind) {
    mXml.Fail(reference + " takes a place for a transition or the other way round", pobjReference.Element);
  }
  if (found->second.OnTheWay) mXml.Fail(reference + " closes a circle of references", pobjReference.Element);
  return found->second;
}

void PnmlIds::Follow(Entry& pobjReference) {
  std::vector<Entry*> way;
  Entry* entry = &pobjReference;
  while (!entry->Node) {
    entry->OnTheWay = true;
    way.push_back(entry);
    entry = &Referred(*entry);
  }
  for (Entry* passed : way) {
    passed->Node = entry->Node;
    passed->OnTheWay = false;
  }
}

std::optional<std::size_t> PnmlIds::Find(std::string_view pstrId) const {
  const auto found = mEntries.find(pstrId);
  return found == mEntries.end() ? std::nullopt : found->second.Node;
}

}  // namespace vantrel

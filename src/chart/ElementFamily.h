// An indexed family of elements.
#pragma once

#include <memory>
#include <vector>

#include "chart/Element.h"

namespace vantrel {

class ChartSurface;

/// Elements of one kind, numbered from 0. Element 0 is the template: new elements copy its settings, and it is never removed. A new
/// element gets the index one above the highest in use; lower free indexes are not used again.
template <class E>
class ElementFamily {
 public:
  ElementFamily(ChartSurface& pobjSurface, ElementFamilyId pFamily) : mSurface(pobjSurface), mFamily(pFamily) { Append(); }

  /// A new hidden element, in front of all others. The family owns it.
  std::shared_ptr<E> New() {
    auto element = Append();
    element->CopySettings(*mElements.front());
    return element;
  }
  /// The element of an index, or null.
  std::shared_ptr<E> At(std::int32_t plngIndex) const {
    return plngIndex >= 0 && plngIndex <= UpperBound() ? mElements[static_cast<std::size_t>(plngIndex)] : nullptr;
  }
  E& Template() const { return *mElements.front(); }
  std::int32_t UpperBound() const { return static_cast<std::int32_t>(mElements.size()) - 1; }
  /// Elements in use, the template included.
  std::int32_t Count() const { return mCount; }

  /// Takes an element off the surface, as Element::Unload does. Nothing for the template and for an index without an element.
  void Remove(std::int32_t plngIndex) {
    if (const auto element = At(plngIndex)) element->Unload();
  }

  /// Tells all elements that the surface is gone.
  void Detach() {
    for (const auto& element : mElements) {
      if (element) element->mSurface = nullptr;
    }
  }

 private:
  friend class ChartSurface;
  std::shared_ptr<E> Append();
  void Drop(std::int32_t plngIndex) {
    mElements[static_cast<std::size_t>(plngIndex)] = nullptr;
    --mCount;
    while (!mElements.back()) mElements.pop_back();
  }

  ChartSurface& mSurface;
  std::vector<std::shared_ptr<E>> mElements;
  std::int32_t mCount = 0;
  ElementFamilyId mFamily;
};

}  // namespace vantrel

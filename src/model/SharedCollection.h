// Collections that an operation hands out anew.
#pragma once

#include <memory>
#include <utility>

namespace vantrel {

/// A shared_ptr to a collection. `*` on a temporary one returns the pointer itself, which can be walked like the collection: so
/// `for (const auto& record : *place->GetProperties())` keeps the records until the loop ends.
template <class C>
class SharedCollection : public std::shared_ptr<C> {
 public:
  using std::shared_ptr<C>::shared_ptr;
  SharedCollection(std::shared_ptr<C> pcolItems) : std::shared_ptr<C>(std::move(pcolItems)) {}

  C& operator*() const& { return *this->get(); }
  SharedCollection operator*() && { return std::move(*this); }
  operator C&() const { return *this->get(); }

  auto begin() const { return this->get()->begin(); }
  auto end() const { return this->get()->end(); }
};

}  // namespace vantrel

// Collections that an operation hands out anew.
#pragma once

#include <memory>
#include <utility>

namespace vantrel {

/// A share in a collection, used like the shared_ptr that it is. Following a temporary one gives the share itself, which walks
/// its collection: `for (const auto& record : *place->GetProperties())` keeps the records as long as the loop runs.
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

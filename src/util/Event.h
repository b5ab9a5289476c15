// Events that objects raise and hosts listen to.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace vantrel {

/// Keeps a listener connected as long as it lives. May outlive the event. For the thread of the event.
class Subscription {
 public:
  Subscription() = default;
  explicit Subscription(std::function<void()> pDisconnect) : mDisconnect(std::move(pDisconnect)) {}
  Subscription(Subscription&& pobjOther) noexcept : mDisconnect(std::exchange(pobjOther.mDisconnect, nullptr)) {}
  Subscription& operator=(Subscription&& pobjOther) noexcept {
    std::swap(mDisconnect, pobjOther.mDisconnect);
    return *this;
  }
  ~Subscription() { Disconnect(); }

  void Disconnect() {
    if (auto disconnect = std::exchange(mDisconnect, nullptr)) disconnect();
  }

 private:
  std::function<void()> mDisconnect;
};

/// Calls its listeners in the order in which they connected. A listener may connect and disconnect others and itself, and
/// raise the event again; one that connects meanwhile is called from the next time on. For one thread.
template <class... Args>
class Event {
 public:
  using Listener = std::function<void(Args...)>;

  [[nodiscard]] Subscription Connect(Listener pListener) {
    if (!mListeners) mListeners = std::make_shared<Listeners>();
    auto entry = std::make_shared<Listener>(std::move(pListener));
    mListeners->push_back(entry);
    return Subscription([entry, list = std::weak_ptr<Listeners>(mListeners)] {
      *entry = nullptr;
      if (const auto listeners = list.lock()) std::erase(*listeners, entry);
    });
  }

  bool HasListeners() const { return mListeners && !mListeners->empty(); }

  void Raise(Args... args) const {
    if (!HasListeners()) return;
    const Listeners listeners = *mListeners;
    for (const auto& listener : listeners) {
      const Listener call = *listener;  // it may disconnect itself, which empties its entry
      if (call) call(args...);
    }
  }

 private:
  using Listeners = std::vector<std::shared_ptr<Listener>>;
  std::shared_ptr<Listeners> mListeners;
};

}  // namespace vantrel

// One value of the current designer state, under a name of its own.
#pragma once

#include <type_traits>

namespace vantrel {

class DesignerState;

template <auto Member>
struct MemberOf;
template <class Value, Value DesignerState::*Member>
struct MemberOf<Member> {
  using Type = Value;
};

/// Stands for a member of DesignerState::Current(). Reads, assigns and compares as that member does.
template <auto Member>
class CurrentValue {
 public:
  using Value = typename MemberOf<Member>::Type;

  operator const Value&() const { return Get(); }
  template <class T>
  const CurrentValue& operator=(const T& pobjValue) const {
    Get() = pobjValue;
    return *this;
  }
  const Value& operator->() const { return Get(); }
  decltype(auto) operator*() const requires(!std::is_arithmetic_v<Value> && !std::is_enum_v<Value>) { return *Get(); }
  auto get() const requires std::is_class_v<Value> { return Get().get(); }
  explicit operator bool() const requires std::is_class_v<Value> { return Get().get() != nullptr; }
  template <class T>
  friend bool operator==(const CurrentValue& a, const T& b) {
    return a.Get() == b;
  }

 private:
  template <class State = DesignerState>
  static Value& Get() {
    return State::Current().*Member;
  }
};

}  // namespace vantrel

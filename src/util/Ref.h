// References back or across. They own nothing and know whether their object still exists.
#pragma once

#include <cstdint>
#include <memory>

#include "util/Error.h"

namespace vantrel {

/// What a Ref can point to. Has one counted mark, made for the first Ref, which outlives the object as long as a Ref uses it. For one
/// thread only: nothing here is atomic.
class Referable {
 public:
  Referable() = default;
  Referable(const Referable&) {}  // a copy is a new object without references
  // It copies nothing. NOLINTNEXTLINE(bugprone-unhandled-self-assignment)
  Referable& operator=(const Referable&) { return *this; }

 protected:
  ~Referable() {
    if (mMark) {
      mMark->Target = nullptr;
      mMark->Release();
    }
  }

 private:
  template <class T>
  friend class Ref;

  struct Mark {
    Referable* Target;
    std::uint32_t Users;

    void Release() {
      if (--Users == 0) delete this;
    }
  };

  Mark* TakeMark() {
    if (!mMark) mMark = new Mark{this, 1};
    ++mMark->Users;
    return mMark;
  }

  Mark* mMark = nullptr;
};

/// Points to a T or to nothing. Tests false once the object is gone; `->` and `*` then throw Error 91.
template <class T>
class Ref {
 public:
  Ref() = default;
  Ref(std::nullptr_t) {}
  Ref(T* pobjTarget) : mMark(pobjTarget ? Take(pobjTarget) : nullptr) {}
  template <class U>
  requires std::is_convertible_v<U*, T*> Ref(const std::shared_ptr<U>& pobjTarget) : Ref(static_cast<T*>(pobjTarget.get())) {}
  template <class U>
  requires(!std::is_same_v<U, T> && std::is_convertible_v<U*, T*>) Ref(const Ref<U>& pobjOther) : mMark(pobjOther.mMark) {
    if (mMark) ++mMark->Users;
  }
  Ref(const Ref& pobjOther) : mMark(pobjOther.mMark) {
    if (mMark) ++mMark->Users;
  }
  Ref(Ref&& pobjOther) noexcept : mMark(pobjOther.mMark) { pobjOther.mMark = nullptr; }
  ~Ref() {
    if (mMark) mMark->Release();
  }

  Ref& operator=(const Ref& pobjOther) {
    if (this == &pobjOther) return *this;
    if (pobjOther.mMark) ++pobjOther.mMark->Users;
    if (mMark) mMark->Release();
    mMark = pobjOther.mMark;
    return *this;
  }
  Ref& operator=(Ref&& pobjOther) noexcept {
    std::swap(mMark, pobjOther.mMark);
    return *this;
  }

  T* get() const { return mMark ? static_cast<T*>(mMark->Target) : nullptr; }
  explicit operator bool() const { return mMark && mMark->Target; }
  /// True when it points to an object or to one that is gone.
  bool IsSet() const { return mMark != nullptr; }
  /// True when it pointed to an object that is gone, false when it never pointed to any.
  bool Expired() const { return mMark && !mMark->Target; }

  T* operator->() const { return &Follow(); }
  T& operator*() const { return Follow(); }

  /// A shared_ptr to the object, or null. Needs a T that is held by shared_ptr.
  std::shared_ptr<T> Lock() const {
    T* const target = get();
    return target ? std::static_pointer_cast<T>(target->weak_from_this().lock()) : nullptr;
  }

  friend bool operator==(const Ref& a, const Ref& b) { return a.get() == b.get(); }
  friend bool operator==(const Ref& a, const T* b) { return a.get() == b; }
  friend bool operator==(const Ref& a, const std::shared_ptr<T>& b) { return a.get() == b.get(); }
  friend bool operator==(const Ref& a, std::nullptr_t) { return !a; }

 private:
  template <class U>
  friend class Ref;

  static Referable::Mark* Take(T* pobjTarget) { return static_cast<Referable*>(pobjTarget)->TakeMark(); }

  T& Follow() const {
    T* const target = get();
    if (!target) throw Error(vntErrObjectNotSet);
    return *target;
  }

  Referable::Mark* mMark = nullptr;
};

}  // namespace vantrel

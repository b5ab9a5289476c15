// A token's tie to its case, and the mark that its case can go on.
#pragma once

#include <memory>
#include <utility>

#include "model/WorkCase.h"

namespace vantrel {

class Token;

/// Reads and assigns like a std::shared_ptr<WorkCase>, in half the memory: the case itself counts its links and keeps itself alive for
/// them. A token's link tells the token's place of every assignment; a copy of it is a plain value.
class CaseLink {
 public:
  CaseLink() = default;
  explicit CaseLink(const Token* pobjToken) : mobjToken(pobjToken) {}
  CaseLink(const CaseLink& pobjOther) { Begin(pobjOther); }
  CaseLink& operator=(const CaseLink& pobjOther) {
    if (this != &pobjOther) *this = static_cast<const std::shared_ptr<WorkCase>&>(pobjOther);
    return *this;
  }
  CaseLink& operator=(const std::shared_ptr<WorkCase>& pobjCase) {
    // The caller's may be the share that Release gives up. NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
    const auto keeper = pobjCase;
    Release();
    Begin(keeper);
    if (mobjToken) Report();
    return *this;
  }
  ~CaseLink() { Release(); }

  /// The first assignment, while the token is in no place that could be told.
  void Begin(const std::shared_ptr<WorkCase>& pobjCase) {
    mobjCase = pobjCase.get();
    if (mobjCase && mobjCase->mTies.Links++ == 0) mobjCase->mTies.Keeper = pobjCase;
  }

  operator const std::shared_ptr<WorkCase>&() const { return mobjCase ? mobjCase->mTies.Keeper : kNone; }
  explicit operator bool() const { return mobjCase != nullptr; }
  WorkCase* get() const { return mobjCase; }
  WorkCase* operator->() const { return mobjCase; }
  WorkCase& operator*() const { return *mobjCase; }

  friend bool operator==(const CaseLink& a, const CaseLink& b) { return a.mobjCase == b.mobjCase; }
  friend bool operator==(const CaseLink& a, const std::shared_ptr<WorkCase>& b) { return a.mobjCase == b.get(); }
  friend bool operator==(const CaseLink& a, std::nullptr_t) { return a.mobjCase == nullptr; }

 private:
  friend class CaseMark;

  void Release() {
    WorkCase* const workCase = std::exchange(mobjCase, nullptr);
    if (workCase && --workCase->mTies.Links == 0) const auto last = std::move(workCase->mTies.Keeper);
  }
  void Report() const;

  static inline const std::shared_ptr<WorkCase> kNone;

  WorkCase* mobjCase = nullptr;
  const Token* mobjToken = nullptr;
};

/// Reads and assigns like a bool. The mark of a token tells the token's place of every assignment.
class CaseMark {
 public:
  CaseMark() = default;
  CaseMark(const CaseMark& pobjOther) : mblnOn(pobjOther.mblnOn) {}
  CaseMark& operator=(const CaseMark& pobjOther) { return *this = pobjOther.mblnOn; }
  CaseMark& operator=(bool pblnOn);
  ~CaseMark() = default;
  operator bool() const { return mblnOn; }

 private:
  friend struct CaseFields;
  friend class TokenIndex;
  friend class TokenRules;
  explicit CaseMark(const Token* /*pobjToken*/) : mblnOfToken(true) {}

  bool mblnOn = false;
  bool mblnOfToken = false;
};

/// What a token knows of its case. A base class, so that the mark finds its token without a pointer.
struct CaseFields {
  explicit CaseFields(const Token* pobjToken) : WorkCase(pobjToken), mblnCaseEnabled(pobjToken) {}

  CaseLink WorkCase;         ///< null for an anonymous token
  CaseMark mblnCaseEnabled;  ///< what Token::CaseEnabled reads and sets
};

}  // namespace vantrel

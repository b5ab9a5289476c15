// A token's tie to its case.
#pragma once

#include <cstdint>
#include <memory>

namespace vantrel {

class WorkCase;

/// Reads and assigns like a std::shared_ptr<WorkCase>. Counts the assignments of the process, so that whoever sorted tokens
/// by their cases can see that they have to be sorted again.
class CaseLink {
 public:
  CaseLink() = default;
  CaseLink(const CaseLink&) = default;
  CaseLink& operator=(const CaseLink& pobjOther) {
    if (this != &pobjOther) *this = pobjOther.mobjCase;
    return *this;
  }
  CaseLink& operator=(const std::shared_ptr<WorkCase>& pobjCase) {
    mobjCase = pobjCase;
    ++sChanges;
    return *this;
  }
  ~CaseLink() = default;

  /// The first assignment of a token that lies nowhere yet; not counted.
  void Begin(const std::shared_ptr<WorkCase>& pobjCase) { mobjCase = pobjCase; }

  operator const std::shared_ptr<WorkCase>&() const { return mobjCase; }
  explicit operator bool() const { return mobjCase != nullptr; }
  WorkCase* get() const { return mobjCase.get(); }
  WorkCase* operator->() const { return mobjCase.get(); }
  WorkCase& operator*() const { return *mobjCase; }

  friend bool operator==(const CaseLink& a, const CaseLink& b) { return a.mobjCase == b.mobjCase; }
  friend bool operator==(const CaseLink& a, const std::shared_ptr<WorkCase>& b) { return a.mobjCase == b; }
  friend bool operator==(const CaseLink& a, std::nullptr_t) { return a.mobjCase == nullptr; }

  static std::uint64_t Changes() { return sChanges; }
  /// For what else makes a sorting stale.
  static void CountChange() { ++sChanges; }

 private:
  static inline std::uint64_t sChanges = 0;
  std::shared_ptr<WorkCase> mobjCase;
};

}  // namespace vantrel

// What failed in work over a database.
#pragma once

#include <vector>

#include "util/Error.h"

namespace vantrel {

/// The failures of one operation in their order. They did not end it: what came after them was done all the same.
class Report {
 public:
  void Add(const Error& pobjFailure) { mcolFailures.push_back(pobjFailure); }
  bool IsClean() const { return mcolFailures.empty(); }
  const std::vector<Error>& Failures() const { return mcolFailures; }
  /// The first failure says more than what it led to.
  void ThrowFirst() const {
    if (!IsClean()) throw Error(mcolFailures.front());
  }

 private:
  std::vector<Error> mcolFailures;
};

}  // namespace vantrel

// Values as the text that a server reads and writes.
#pragma once

#include <string>
#include <vector>

#include "database/Session.h"
#include "util/Variant.h"

struct pg_result;

namespace vantrel {

/// Parameters in the form that libpq wants. The server infers their types.
class PostgresParameters {
 public:
  /// The longest list that the protocol can carry.
  static constexpr std::size_t kMostParameters = 65'535;

  /// Throws Error vntErrStatement for a text that contains a NUL character, which the server cannot keep, and for too many values.
  explicit PostgresParameters(const std::vector<Variant>& pcolValues);

  int Count() const { return static_cast<int>(mPointers.size()); }
  const char* const* Pointers() const { return mPointers.data(); }

 private:
  std::vector<std::string> mTexts;
  std::vector<const char*> mPointers;
};

/// All rows of a result.
EngineRows ReadRows(const pg_result* pobjResult);

}  // namespace vantrel

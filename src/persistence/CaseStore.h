// Writes cases and tokens as rows.
#pragma once

#include <cstdint>
#include <memory>

#include "model/Workflow.h"
#include "persistence/CaseTokens.h"
#include "persistence/DatabaseAccess.h"

namespace vantrel {

/// Used inside a write transaction. The caller keeps the marks of the objects given; this keeps those of others.
class CaseStore {
 public:
  explicit CaseStore(DatabaseAccess& pobjAccess) : mobjAccess(pobjAccess) {}

  /// The result of the statement; empty when none was needed.
  Variant SaveWorkcase(WorkCase& pobjWorkcase);
  /// Writes the new and changed tokens that share the token's case and workflow, with their values. The result of the last
  /// statement on a token; empty when none was needed.
  Variant SaveToken(SavedMarks& pobjMarks, const Token& pobjToken);

 private:
  Variant SaveRow(Token& pobjToken);
  std::int32_t RunOnServer(const SqlText& pobjSql);

  DatabaseAccess& mobjAccess;
  CaseTokens mcolCaseTokens;
};

}  // namespace vantrel

// Reads stored cases and tokens into their workflow.
#pragma once

#include <cstdint>
#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

#include "model/Workflow.h"
#include "persistence/DatabaseAccess.h"

namespace vantrel {

/// Fills one workflow that has no tokens. Takes time in proportion to rows and objects.
class CaseReading {
 public:
  CaseReading(DatabaseAccess& pobjAccess, Workflow& pobjWorkflow);

  /// Reads cases, tokens and values; the tokens are in no place yet.
  void Read();
  /// Puts unconsumed tokens into their places. The workflow must be gobjWorkflow.
  void PutBack();
  std::vector<std::shared_ptr<WorkCase>> TakeCases() { return std::move(mcolCases); }

 private:
  void ReadCases();
  void ReadTokens();
  void ReadToken(const Recordset& pobjRow);
  void ReadValues();
  Token* FindToken(std::int32_t plngId) const;
  bool LiesInPlace(const Token& pobjToken) const;

  DatabaseAccess& mobjAccess;
  Workflow& mobjWorkflow;
  std::vector<std::shared_ptr<WorkCase>> mcolCases;
  std::vector<std::pair<std::int32_t, std::shared_ptr<Token>>> mcolTokens;  // by ascending id
  std::unordered_map<std::int32_t, std::shared_ptr<WorkCase>> mcolCaseOf;
  std::unordered_map<std::int32_t, Place*> mcolPlaceOf;
  std::unordered_map<std::int32_t, Transition*> mcolTransitionOf;
  std::unordered_map<std::int32_t, std::shared_ptr<PropertyRecord>> mcolDefinitionOf;
};

}  // namespace vantrel

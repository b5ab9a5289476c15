// The tokens of a workflow by their cases.
#pragma once

#include <cstdint>
#include <memory>
#include <unordered_map>
#include <vector>

#include "model/Workflow.h"

namespace vantrel {

/// Finds the tokens of a case without a walk over all tokens of the workflow, of which a long-running net has millions. Knows one workflow
/// at a time. Looks at the tokens added since the last question, or at all again when tokens were removed or changed their cases. 12
/// bytes a token.
class CaseTokens {
 public:
  /// The tokens of the workflow with that case, or those without case, in the collection's order.
  std::vector<std::shared_ptr<Token>> Of(Workflow& pobjWorkflow, const WorkCase* pobjCase);

 private:
  static constexpr std::uint32_t kNone = 0xFFFFFFFF;
  struct Group {
    std::uint32_t First, Last;
  };

  void Follow(Workflow& pobjWorkflow);
  bool OnlyGrew(const Workflow& pobjWorkflow) const;
  void Forget();
  void Add(Token* pobjToken);

  Ref<Workflow> mobjWorkflow;
  std::unordered_map<const WorkCase*, Group> mcolGroups;
  // One for each token, in the collection's order. The tokens live until something is removed from the collection.
  std::vector<Token*> mcolTokens;
  std::vector<std::uint32_t> mcolNext;  // the next token of the same case
  std::int64_t mlngLastRank = -1;
  std::uint64_t mlngTokenChanges = 0;
  std::uint64_t mlngCaseChanges = 0;
};

}  // namespace vantrel

#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "model/Workflow.h"

namespace vantrel {

/// The ids of a document that is being written. Each is unique and an XML name of ASCII letters, which every version of XML accepts. An
/// object keeps its HiddenTag, the id that it was read with, if possible; else it gets its key, or its key with a number.
class ExportIds {
 public:
  /// A new id for something other than an object of a workflow.
  std::string Make(std::string_view pstrWanted, std::string_view pstrOtherwise);

  /// Makes the ids of a workflow's places, transitions and arcs.
  void Add(const Workflow& pobjWorkflow);
  /// Empty for an object of no added workflow.
  const std::string& Of(const Object* pobjObject) const;

 private:
  std::unordered_set<std::string> mTaken;
  std::unordered_map<std::string, int> mNumbers;  // last number tried after an id
  std::unordered_map<const Object*, std::string> mIds;
};

}  // namespace vantrel

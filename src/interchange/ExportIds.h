#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "model/Workflow.h"

namespace vantrel {

/// The ids of a document that is being written: each an XML name (of ASCII letters, so that every version of XML takes it) and there once.
/// An object keeps the id that it came with, its HiddenTag, where it can; else its key, or its key with a number, serves.
class ExportIds {
 public:
  /// An id of its own for something that is no object of a workflow.
  std::string Make(std::string_view pstrWanted, std::string_view pstrOtherwise);

  /// Makes the ids of a workflow's places, transitions and arcs.
  void Add(const Workflow& pobjWorkflow);
  /// Empty for an object that none of the added workflows has.
  const std::string& Of(const Object* pobjObject) const;

 private:
  std::unordered_set<std::string> mTaken;
  std::unordered_map<std::string, int> mNumbers;  // last number tried behind an id
  std::unordered_map<const Object*, std::string> mIds;
};

}  // namespace vantrel

// Names for objects that come from a file.
#pragma once

#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace vantrel {

/// The name that a file has for an object.
struct GivenName {
  std::string Text;
  bool IsFinal = false;  ///< stays whatever the others are called
};

/// Makes the names of one kind of object unique. Every name that the file gives keeps to the first object that has it, after
/// the final ones; an object without name gets its key as name (the kind's word and its number), or the next free one where that is taken;
/// one whose name is taken gets that name and the next free number.
class UniqueNames {
 public:
  UniqueNames(const std::string& pstrWord, const std::vector<GivenName>& pcolGiven);

  /// The name for the next object, in the order of the given names.
  const std::string& Next() { return mcolNames[mlngNext++]; }

 private:
  std::string FreeName(const std::string& pstrPrefix);

  std::unordered_set<std::string> mcolTaken;
  std::unordered_map<std::string, int> mcolNumbers;  // last number tried behind a prefix
  std::vector<std::string> mcolNames;
  std::size_t mlngNext = 0;
};

}  // namespace vantrel

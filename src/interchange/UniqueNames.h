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
  bool IsFinal = false;  ///< kept even if others have the same name
};

/// Makes the names of one kind of object unique. Final names are kept first; then the first object with a name keeps it, and later ones get
/// that name with the next free number. An object without a name gets its key (the kind's word and its number), or the next free one.
class UniqueNames {
 public:
  UniqueNames(const std::string& pstrWord, const std::vector<GivenName>& pcolGiven);

  /// The name for the next object, in the order of the given names.
  const std::string& Next() { return mcolNames[mlngNext++]; }

 private:
  std::string FreeName(const std::string& pstrPrefix);

  std::unordered_set<std::string> mcolTaken;
  std::unordered_map<std::string, int> mcolNumbers;  // last number tried after a prefix
  std::vector<std::string> mcolNames;
  std::size_t mlngNext = 0;
};

}  // namespace vantrel

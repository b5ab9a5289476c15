#include "interchange/UniqueNames.h"

namespace vantrel {

UniqueNames::UniqueNames(const std::string& pstrWord, const std::vector<GivenName>& pcolGiven) {
  for (const GivenName& given : pcolGiven) {
    mcolNames.push_back(given.Text);
    if (given.IsFinal) mcolTaken.insert(given.Text);
  }
  std::vector<std::size_t> nameless;
  for (std::size_t i = 0; i < mcolNames.size(); ++i) {
    if (pcolGiven[i].IsFinal) continue;
    if (mcolNames[i].empty() || !mcolTaken.insert(mcolNames[i]).second) nameless.push_back(i);
  }
  for (const std::size_t i : nameless) {
    const bool empty = mcolNames[i].empty();
    std::string key = empty ? pstrWord + std::to_string(i + 1) : std::string();
    mcolNames[i] = empty && mcolTaken.insert(key).second ? std::move(key) : FreeName(empty ? pstrWord : mcolNames[i]);
  }
}

std::string UniqueNames::FreeName(const std::string& pstrPrefix) {
  int& number = mcolNumbers[pstrPrefix];
  std::string name;
  do {
    name = pstrPrefix + std::to_string(++number);
  } while (!mcolTaken.insert(name).second);
  return name;
}

}  // namespace vantrel

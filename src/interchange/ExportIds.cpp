#include "interchange/ExportIds.h"

#include <algorithm>

namespace vantrel {

namespace {

bool IsLetter(char pstrCharacter) {
  return (pstrCharacter >= 'a' && pstrCharacter <= 'z') || (pstrCharacter >= 'A' && pstrCharacter <= 'Z') || pstrCharacter == '_';
}

bool IsName(std::string_view pstrText) {
  const auto continues = [](char character) {
    return IsLetter(character) || (character >= '0' && character <= '9') || character == '-' || character == '.';
  };
  return !pstrText.empty() && IsLetter(pstrText.front()) && std::all_of(pstrText.begin(), pstrText.end(), continues);
}

}  // namespace

std::string ExportIds::Make(std::string_view pstrWanted, std::string_view pstrOtherwise) {
  if (IsName(pstrWanted) && mTaken.emplace(pstrWanted).second) return std::string(pstrWanted);
  std::string id(IsName(pstrOtherwise) ? pstrOtherwise : "id");
  if (mTaken.insert(id).second) return id;
  int& number = mNumbers[id];
  std::string numbered;
  do {
    numbered = id + '_' + std::to_string(++number);
  } while (!mTaken.insert(numbered).second);
  return numbered;
}

void ExportIds::Add(const Workflow& pobjWorkflow) {
  for (const auto& place : pobjWorkflow.Places) mIds.emplace(place.get(), Make(place->HiddenTag, place->Key));
  for (const auto& transition : pobjWorkflow.Transitions) mIds.emplace(transition.get(), Make(transition->HiddenTag, transition->Key));
  for (const auto& arc : pobjWorkflow.Arcs) mIds.emplace(arc.get(), Make(arc->HiddenTag, arc->Key));
}

const std::string& ExportIds::Of(const Object* pobjObject) const {
  static const std::string none;
  const auto found = mIds.find(pobjObject);
  return found == mIds.end() ? none : found->second;
}

}  // namespace vantrel

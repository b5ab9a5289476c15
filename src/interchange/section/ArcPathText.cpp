#include "interchange/section/ArcPathText.h"

#include "interchange/PnmlPixels.h"
#include "interchange/section/SectionText.h"
#include "model/ArcChain.h"
#include "model/Place.h"
#include "model/Transition.h"
#include "model/Vector.h"

namespace vantrel {

namespace {

bool Meets(const Vector& pobjBefore, const Vector& pobjBehind) {
  return pobjBefore.X2() == pobjBehind.X1() && pobjBefore.Y2() == pobjBehind.Y1() && IsExactInPixels(pobjBefore.X2(), kOfPoint) &&
         IsExactInPixels(pobjBefore.Y2(), kOfPoint);
}

}  // namespace

PathSegment UsualRun(const Node& pobjSource, const Node& pobjTarget) {
  return {pobjSource.Left() + kNodeSize, pobjSource.Top() + kNodeSize / 2, pobjTarget.Left(), pobjTarget.Top() + kNodeSize / 2};
}

bool IsUsualPath(const Arc& pobjArc) {
  const auto chain = ChainOf(pobjArc);
  if (chain.empty()) return true;
  const Node& place = *pobjArc.Place;
  const Node& transition = *pobjArc.Transition;
  const bool inward = pobjArc.ArcDirection == vntInArc;
  const PathSegment run = inward ? UsualRun(place, transition) : UsualRun(transition, place);
  const Vector& first = *chain.front();
  const Vector& last = *chain.back();
  if (first.X1() != run.X1 || first.Y1() != run.Y1 || last.X2() != run.X2 || last.Y2() != run.Y2) return false;
  for (std::size_t i = 1; i < chain.size(); ++i) {
    if (!Meets(*chain[i - 1], *chain[i])) return false;
  }
  return true;
}

std::string ArcPathText(const Arc& pobjArc) {
  std::string text;
  for (const Vector* segment : ChainOf(pobjArc)) {
    for (const float twips : {segment->X1(), segment->Y1(), segment->X2(), segment->Y2()}) {
      if (!text.empty()) text += ' ';
      text += ToSectionText(twips);
    }
  }
  return text;
}

std::optional<std::vector<PathSegment>> ReadArcPath(std::string_view pstrText) {
  std::vector<float> numbers;
  while (!pstrText.empty()) {
    const std::size_t end = std::min(pstrText.find(' '), pstrText.size());
    const auto number = FromSectionText<float>(pstrText.substr(0, end));
    if (!number) return std::nullopt;
    numbers.push_back(*number);
    pstrText.remove_prefix(std::min(end + 1, pstrText.size()));
  }
  if (numbers.empty() || numbers.size() % 4 != 0) return std::nullopt;
  std::vector<PathSegment> path;
  for (std::size_t i = 0; i < numbers.size(); i += 4) path.push_back({numbers[i], numbers[i + 1], numbers[i + 2], numbers[i + 3]});
  return path;
}

}  // namespace vantrel

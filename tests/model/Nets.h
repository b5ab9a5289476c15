#pragma once

#include <memory>
#include <string>

#include "model/DesignerState.h"
#include "model/Workflow.h"
#include "util/Lookup.h"

namespace vantrel::test {

inline std::shared_ptr<Place> AddPlace(Workflow& pobjNet, const std::string& pstrName = "P") { return pobjNet.NewPlace(pstrName); }

inline std::shared_ptr<Transition> AddTransition(Workflow& pobjNet, const std::string& pstrName = "T") {
  return pobjNet.NewTransition(pstrName);
}

/// An arc along which tokens go from the first object to the second.
inline std::shared_ptr<Arc> Connect(const std::shared_ptr<Place>& pobjPlace, const std::shared_ptr<Transition>& pobjTransition) {
  return pobjPlace->Workflow->CreateArc(pobjPlace, pobjTransition, vntInArc);
}
inline std::shared_ptr<Arc> Connect(const std::shared_ptr<Transition>& pobjTransition, const std::shared_ptr<Place>& pobjPlace) {
  return pobjPlace->Workflow->CreateArc(pobjPlace, pobjTransition, vntOutArc);
}

/// A new token, put into the place.
inline std::shared_ptr<Token> PutToken(Place& pobjPlace, const std::shared_ptr<WorkCase>& pobjCase = nullptr) {
  auto token = pobjPlace.Workflow->CreateToken(&pobjPlace, nullptr, pobjCase);
  pobjPlace.AddToken(token);
  return token;
}

inline std::shared_ptr<WorkCase> NewCase(const std::string& pstrKey) {
  auto workCase = std::make_shared<WorkCase>();
  workCase->Key = workCase->Name = pstrKey;
  return workCase;
}

/// Gives the object the chart elements that a control would give it, all hidden.
inline void GiveElements(Node& pobjNode) {
  pobjNode.Image = gobjVantrel->NewImage();
  pobjNode.CaptionLabel = gobjVantrel->NewLabel();
  pobjNode.InConnector = gobjVantrel->NewImage();
  pobjNode.OutConnector = gobjVantrel->NewImage();
  if (auto* place = dynamic_cast<Place*>(&pobjNode)) place->CountLabel = gobjVantrel->NewCountLabel();
}
inline void GiveElements(Arc& pobjArc) {
  pobjArc.CaptionLabel = gobjVantrel->NewLabel();
  pobjArc.WeightLabel = gobjVantrel->NewLabel();
  for (Vector* segment : pobjArc.Segments()) segment->LineControl = gobjVantrel->NewLine();
}

}  // namespace vantrel::test

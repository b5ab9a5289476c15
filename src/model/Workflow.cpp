#include "model/Workflow.h"

#include <algorithm>
#include <unordered_set>

#include "model/DesignerCall.h"
#include "model/PropertyBuilder.h"
#include "model/game/FiringNext.h"
#include "model/game/StraightFiring.h"
#include "util/BlockPool.h"
#include "util/Lookup.h"

namespace vantrel {

namespace {

std::shared_ptr<PropertyCollection> CopyByName(const PropertyCollection& pcolDefinitions) {
  auto properties = std::make_shared<PropertyCollection>();
  for (const auto& record : pcolDefinitions) {
    const auto copy = record->Copy();
    copy->Id = 0;  // the definition's; a value gets its own id when it is stored
    properties->Add(copy, copy->Name);
  }
  return properties;
}

template <class N>
std::shared_ptr<N> AddNode(Workflow& pobjWorkflow, Collection<N>& pcolNodes, const std::string& pstrName) {
  auto node = std::make_shared<N>(pobjWorkflow);
  node->Key = NextKey(pcolNodes, pcolNodes.KeyWord());
  node->AssignName(pstrName.empty() ? NextName(pcolNodes, pcolNodes.KeyWord()) : pstrName);
  pcolNodes.Add(node, node->Key);
  return node;
}

}  // namespace

Workflow::~Workflow() {
  for (Collection<Arc>::Cursor arcs(Arcs); Arc* arc = arcs.Next();) arc->KeepPath();
}

void Workflow::Dirty(bool pblnDirty) {
  mblnDirty = pblnDirty;
  Designer().Host->Dirty(*this, pblnDirty);
}

DesignerHost& Workflow::Chart() const {
  DesignerHost& host = *Designer().Host;
  return host.Workflow() == this ? host : DesignerHostRef::BuiltIn();
}

void Workflow::Visible(bool pblnOn) {
  for (const auto& transition : Transitions) {
    transition->Visible(pblnOn);
    transition->Draw();
  }
  for (const auto& place : Places) {
    place->Visible(pblnOn);
    place->Draw();
  }
  mblnVisible = pblnOn;
}

std::shared_ptr<Token> Workflow::CreateToken(const Ref<vantrel::Place>& pobjPlace, const Ref<Transition>& pobjCreateTransition,
                                             const std::shared_ptr<WorkCase>& pobjWorkcase) {
  return MakeToken(*pobjPlace, pobjCreateTransition.get(), pobjWorkcase, Date::Now());
}

std::shared_ptr<Token> Workflow::MakeToken(vantrel::Place& pobjPlace, Transition* pobjCreateTransition,
                                           const std::shared_ptr<WorkCase>& pobjWorkcase, Date pdtmCreated) {
  auto token = std::allocate_shared<Token>(PoolAllocator<Token>(), pdtmCreated);
  const std::int32_t number = NextKeyNumber(Tokens);
  token->Key = token->Name = KeyField<Token>::OfNumber(number);
  token->Place = &pobjPlace;
  if (pobjCreateTransition) token->CreateTransition = pobjCreateTransition;
  if (pobjWorkcase) token->WorkCase.Begin(pobjWorkcase);
  if (const auto& definitions = pobjPlace.TokenProperties) {
    token->mblnEmptyProperties = definitions->IsEmpty();
    if (!definitions->IsEmpty()) token->CustomProperties(CopyByName(*definitions));
  }
  Tokens.AddNumbered(token, number);
  return token;
}

void Workflow::z_StartCase(const std::shared_ptr<WorkCase>& pobjCase) {
  const auto keeper = shared_from_this();  // a listener may release the workflow
  for (const auto& place : Places) {
    if (!place->InArcs.IsEmpty()) continue;
    place->AddToken(CreateToken(place, nullptr, pobjCase));
  }
}

void Workflow::FireNext(const std::shared_ptr<Transition>& pobjTransition) {
  if (!pobjTransition && StraightFiring::FireNext(*this)) return;
  const DesignerCall call(this);
  TokenGame::Run<FiringNext>(shared_from_this(), pobjTransition);
}

void Workflow::TokenAdded(const std::shared_ptr<vantrel::Place>& pobjPlace, const std::shared_ptr<Token>& pobjToken) {
  OnTokenAdded.Raise(pobjPlace, pobjToken);
}

std::shared_ptr<vantrel::Place> Workflow::NewPlace(const std::string& pstrName) { return AddNode(*this, Places, pstrName); }

std::shared_ptr<Transition> Workflow::NewTransition(const std::string& pstrName) { return AddNode(*this, Transitions, pstrName); }

std::shared_ptr<Notation> Workflow::NewNotation() {
  auto note = std::make_shared<Notation>();
  note->Workflow = this;
  note->Key = NextKey(Notations, Notations.KeyWord());
  Notations.Add(note, note->Key);
  return note;
}

std::shared_ptr<Arc> Workflow::CreateArc(const std::shared_ptr<vantrel::Place>& pobjPlace,
                                         const std::shared_ptr<Transition>& pobjTransition, ArcDirectionConstant pintDirection) {
  if (!pobjPlace || !pobjTransition) throw Error(vntErrObjectNotSet);
  auto arc = std::make_shared<Arc>();
  arc->Workflow = this;
  arc->Place = pobjPlace;
  arc->Transition = pobjTransition;
  arc->ArcDirection = pintDirection;
  arc->Key = NextKey(Arcs, "Arc");
  Arcs.Add(arc, arc->Key);
  arc->AddSegment();
  if (pintDirection == vntInArc) {
    pobjTransition->InArcs.Add(arc, arc->Key);
    pobjPlace->OutArcs.Add(arc, arc->Key);
  } else if (pintDirection == vntOutArc) {
    pobjTransition->OutArcs.Add(arc, arc->Key);
    pobjPlace->InArcs.Add(arc, arc->Key);
  }
  return arc;
}

void Workflow::z_RemoveArc(const std::shared_ptr<Arc>& pobjArc) {
  if (!pobjArc) throw Error(vntErrObjectNotSet);
  if (Arcs.Find(pobjArc->Key) != pobjArc) throw Error(vntErrInvalidCall);
  pobjArc->KeepPath();
  const auto elbows = pobjArc->BendPoints();
  for (const Elbow* elbow : elbows) Elbows.Remove(elbow->Key);
  const auto segments = pobjArc->Segments();
  for (const Vector* segment : segments) Vectors.Remove(segment->Key);
  Arcs.Remove(pobjArc->Key);
}

bool Workflow::Embeds(const Workflow& pobjOther) const {
  std::vector<const Workflow*> waiting = {this};
  std::unordered_set<const Workflow*> seen;
  while (!waiting.empty()) {
    const Workflow* workflow = waiting.back();
    waiting.pop_back();
    if (workflow == &pobjOther) return true;
    if (!seen.insert(workflow).second) continue;
    for (Collection<Transition>::Cursor cursor(workflow->Transitions); const Transition* transition = cursor.Next();) {
      if (const auto inner = transition->EmbeddedWorkflow()) waiting.push_back(inner.get());
    }
  }
  return false;
}

void Workflow::AddObserver(Transition& pobjTransition) { mcolObservers.emplace_back(&pobjTransition); }

void Workflow::RemoveObserver(const Transition& pobjTransition) {
  std::erase_if(mcolObservers, [&](const auto& observer) { return !observer || observer == &pobjTransition; });
}

SharedProperties Workflow::GetProperties() {
  const auto nameOf = [](const Ref<vantrel::Place>& place) { return place ? place->Name() : std::string(); };
  PropertyBuilder records;
  auto& start = records.Add("StartPlace", vntPropertyText, "Name of the starting place", nameOf(StartPlace));
  auto& end = records.Add("EndPlace", vntPropertyText, "Name of the ending place", nameOf(mobjEndPlace));
  for (const auto& place : Places) {
    // Places that share a name (SetProperties does not check) share one option.
    if (place->InArcs.IsEmpty() && !start.Options.Contains(place->Name())) start.AddOption(place->Name(), 0);
    if (place->OutArcs.IsEmpty() && !end.Options.Contains(place->Name())) end.AddOption(place->Name(), 0);
  }
  const PropertyBuilder::Options yesNo = {{"True", true}, {"False", false}};
  records.Add("CaseTracking", vntPropertyYesNo, "Determines whether case history is enabled.", CaseTracking, yesNo);
  records.Add("KeepHistory", vntPropertyYesNo, "Determines whether a detailed case hisory is saved.", KeepHistory, yesNo);
  return records.Done();
}

void Workflow::Store(const std::string& pstrPropName, const Variant& pvarValue) {
  if (pstrPropName == "StartPlace") {
    StartPlace = FindByName(Places, pvarValue.ToText());
  } else if (pstrPropName == "EndPlace") {
    mobjEndPlace = FindByName(Places, pvarValue.ToText());
  } else if (pstrPropName == "CaseTracking") {
    CaseTracking = pvarValue.ToBoolean();
  } else if (pstrPropName == "KeepHistory") {
    KeepHistory = pvarValue.ToBoolean();
  }
}

void Workflow::SetProperty(const std::string& pstrPropName, const Variant& pvarValue) {
  if (Guarded([&] { Store(pstrPropName, pvarValue); })) Dirty(true);
}

}  // namespace vantrel

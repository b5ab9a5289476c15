// A workflow net with everything that belongs to it.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "model/Arc.h"
#include "model/DesignerState.h"
#include "model/Elbow.h"
#include "model/Enumerations.h"
#include "model/Notation.h"
#include "model/Place.h"
#include "model/Token.h"
#include "model/Transition.h"
#include "model/Vector.h"
#include "model/WorkCase.h"
#include "util/Collection.h"
#include "util/Color.h"
#include "util/Event.h"

namespace vantrel {

/// Owns all objects of one net, by their keys, holds the firing stack and raises the events of the token game. Always held by shared_ptr.
/// For one thread, with all that it owns. May run as the subflow of a transition of another workflow.
class Workflow final : public ModelObject, public std::enable_shared_from_this<Workflow> {
 public:
  Workflow() = default;
  ~Workflow() override;

  std::int32_t DivisionId = 0;  ///< the host's grouping
  std::int32_t RecId = 0;
  std::string Key;
  Variant GUID;  ///< stored with the workflow
  Collection<vantrel::Place> Places;
  Collection<Transition> Transitions;
  Collection<Arc> Arcs;
  Collection<Vector> Vectors;
  Collection<Elbow> Elbows;
  Collection<Notation> Notations;
  Collection<Token> Tokens;  ///< every token made here, consumed ones included, in order of creation
  Ref<vantrel::Place> StartPlace;
  Collection<Transition> FiringStack;  ///< enabled transitions in the order in which they became enabled
  Date DateEffective;
  std::string Tag;
  bool IsRead = false, Loaded = false;  ///< the host's
  bool CaseTracking = false;            ///< firings work on the tokens of one case
  bool KeepHistory = false;             ///< tokens stay in the end place
  bool ShowGuards = false, ShowWeights = false;
  RunStyleConstant RunStyle = vntSilent;
  bool LockControls = false;
  std::int16_t Status = 0;            ///< the host's
  std::optional<Color> ChartColor;    ///< background that the program's window and files keep; controls do not read it
  Ref<Transition> SubflowTransition;  ///< set by a host: the transition that this workflow delivers for when a case ends

  /// A token was added to a place of this workflow.
  Event<const std::shared_ptr<vantrel::Place>&, const std::shared_ptr<Token>&> OnTokenAdded;
  /// A transition of this workflow is firing: its tokens are chosen and nothing has moved yet.
  Event<const std::shared_ptr<Transition>&> OnFiring;
  /// A token reached the end place, and SubflowTransition is not set.
  Event<const std::shared_ptr<Token>&> OnCaseFinished;

  std::string Class() const override { return "VNTR.Workflow.1"; }
  std::string Caption() const { return {}; }
  std::string ImageKey() const { return "Workflow"; }

  /// Where cases finish; the workflow watches that place.
  const Ref<vantrel::Place>& EndPlace() const { return mobjEndPlace; }
  void EndPlace(const Ref<vantrel::Place>& pobjPlace) { mobjEndPlace = pobjPlace; }

  bool Dirty() const { return mblnDirty; }
  /// Tells the control, even if the value is unchanged.
  void Dirty(bool pblnDirty);
  bool Visible() const { return mblnVisible; }
  /// Shows or hides and redraws all transitions, then all places.
  void Visible(bool pblnOn);

  /// Makes a token for a place, with copies of the place's token properties, and registers it in Tokens. Does not put it into the
  /// place. The workflow shares it with the caller.
  std::shared_ptr<Token> CreateToken(const Ref<vantrel::Place>& pobjPlace, const Ref<Transition>& pobjCreateTransition = nullptr,
                                     const std::shared_ptr<WorkCase>& pobjWorkcase = nullptr);
  /// Puts a token of the case into every place without input arcs. Throws what Place::AddToken throws.
  void z_StartCase(const std::shared_ptr<WorkCase>& pobjCase);
  /// Fires the given transition, or the first one on the stack, with no case given; in step-test mode asks first. Nothing
  /// on the stack, a transition that is not on it and an empty input place end it quietly; any other Error is shown in a
  /// message box. Never throws Error.
  void FireNext(const std::shared_ptr<Transition>& pobjTransition = nullptr);
  /// Raises OnTokenAdded.
  void TokenAdded(const std::shared_ptr<vantrel::Place>& pobjPlace, const std::shared_ptr<Token>& pobjToken);

  /// Make an object of this workflow under the next free key and register it. Without a name, a place or transition takes the next
  /// free one, which looks through all names; a given name is not compared with the others. Drawing it, binding it to chart
  /// elements and marking the workflow dirty are the caller's tasks. Throw Error 6 when the largest
  /// number of their keys is the largest 32-bit integer.
  std::shared_ptr<vantrel::Place> NewPlace(const std::string& pstrName = {});
  std::shared_ptr<Transition> NewTransition(const std::string& pstrName = {});
  std::shared_ptr<Notation> NewNotation();
  /// Removes an object with everything that depends on it: a place or transition with its arcs, an arc with its segments and bend
  /// points, a segment with its arc. Where a bend point was, the path becomes straight. Unloads chart elements. Takes time in proportion
  /// to what it removes. Returns all removed objects; does not mark the workflow dirty. Throws Error 91 for null, and Error 5, with
  /// nothing removed, when the workflow does not have the object.
  std::vector<std::shared_ptr<ChartObject>> Remove(const std::shared_ptr<ChartObject>& pobjObject);
  /// True when this very object is in the workflow's collection of its kind.
  bool Has(const ChartObject& pobjObject) const;

  /// Makes an arc with its first segment and links it to both ends. The caller draws it. Throws Error 91 for null, and Error 457
  /// when a key set by hand is in the way.
  std::shared_ptr<Arc> CreateArc(const std::shared_ptr<vantrel::Place>& pobjPlace, const std::shared_ptr<Transition>& pobjTransition,
                                 ArcDirectionConstant pintDirection);
  /// Takes the arc with its segments and bend points out of the workflow; its ends still list it. Error 91 for null, Error 5 when the
  /// workflow does not have it.
  void z_RemoveArc(const std::shared_ptr<Arc>& pobjArc);

  /// The state of the control that shows this workflow, or the current one.
  DesignerState& Designer() const { return mobjShownBy ? *mobjShownBy : DesignerState::Current(); }
  bool IsShown() const { return mobjShownBy != nullptr; }
  /// Sets the control that shows the workflow; null for none. The state must outlive the workflow or be reset before it dies.
  void ShownBy(DesignerState* pobjState) { mobjShownBy = pobjState; }
  /// Gives elements to this workflow's objects; gives none when the current control shows another workflow.
  DesignerHost& Chart() const;
  /// The workflow whose settings count for this one: itself when it is shown, otherwise gobjWorkflow, which may embed it.
  const Workflow& Leading() const {
    const auto* current = mobjShownBy ? nullptr : DesignerState::Current().Workflow.get();
    return current ? *current : *this;
  }

  /// The number of changes by hand of cases and marks of tokens, which tells whether tokens sorted by case are still sorted.
  std::uint64_t CaseChanges() const { return mlngCaseChanges; }
  void CountCaseChange() { ++mlngCaseChanges; }

  /// True when the other workflow is this one or is embedded in it at any depth.
  bool Embeds(const Workflow& pobjOther) const;

  SharedProperties GetProperties() override;
  void SetProperty(const std::string& pstrPropName, const Variant& pvarValue) override;

 protected:
  std::shared_ptr<const void> KeepAlive() const override { return weak_from_this().lock(); }

 private:
  friend class CaseEnd;
  friend class StraightFiring;
  friend class Transition;

  // CreateToken without a look at the clock.
  std::shared_ptr<Token> MakeToken(vantrel::Place& pobjPlace, Transition* pobjCreateTransition,
                                   const std::shared_ptr<WorkCase>& pobjWorkcase, Date pdtmCreated);
  void AddObserver(Transition& pobjTransition);
  void RemoveObserver(const Transition& pobjTransition);
  void Store(const std::string& pstrPropName, const Variant& pvarValue);

  Ref<vantrel::Place> mobjEndPlace;
  std::vector<Ref<Transition>> mcolObservers;  // transitions that run this workflow as their subflow
  DesignerState* mobjShownBy = nullptr;
  std::uint64_t mlngCaseChanges = 0;
  bool mblnDirty = false;
  bool mblnVisible = false;
};

/// The state of the control that shows an object's workflow, or the current one.
inline DesignerState& DesignerOf(const Ref<Workflow>& pobjWorkflow) {
  const Workflow* const workflow = pobjWorkflow.get();
  return workflow ? workflow->Designer() : DesignerState::Current();
}

}  // namespace vantrel

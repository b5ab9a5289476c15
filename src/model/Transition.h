// A transition of the net.
#pragma once

#include <list>
#include <memory>
#include <string>
#include <vector>

#include "model/Arc.h"
#include "model/Node.h"
#include "model/Place.h"
#include "util/Event.h"

namespace vantrel {

class Firing;
class Reservation;
class SubflowRun;

/// Consumes a token from each input place and produces tokens by its output type. May embed another workflow, which it
/// then runs as a subflow.
class Transition final : public Node {
 public:
  /// A transition as a control makes it: workflow, position and connector sides come from the designer state.
  Transition();
  /// What Workflow::NewTransition makes.
  explicit Transition(vantrel::Workflow& pobjWorkflow);
  /// Takes its elements off the chart.
  ~Transition() override;

  std::int32_t RecId = 0;
  std::int32_t SubflowId = 0;                 ///< database id of the embedded workflow
  std::shared_ptr<PropertyCollection> Roles;  ///< roles allowed to fire the transition; shared with clones; may be null
  Ref<vantrel::Image> RolesImage;
  Ref<BoxElement> RolesList;
  std::string ObjectClassName, ObjectName;  ///< of the embedded object
  std::string Action;                       ///< command text for the host, see vntProgrammed
  double Duration = 0, DurationStdDev = 0;
  std::int32_t ComputationLevel = 0;
  bool Dirty = false;  ///< changed since the last save

  /// The control raises its own RunCommand with the action when a programmed transition fires; a host may raise this one.
  Event<const std::string&, const std::shared_ptr<Transition>&> OnRunCommand;

  std::string Class() const override { return "VNTR.Transition.1"; }
  ChartKind Kind() const override { return ChartKind::Transition; }

  using Node::Name;
  /// Without a workflow stores any name. In one, an empty name becomes the next free one, and a name that a transition
  /// already has, its own included, is refused (message box).
  void Name(const std::string& pstrName);
  using Node::InputPosition;
  void InputPosition(std::int16_t pintPosition) override;
  using Node::Visible;
  void Visible(bool pblnOn) override;

  bool Enabled() const { return mblnEnabled; }
  /// Redraws, enters or leaves the firing stack, and fires an automatic transition at once, even if it was enabled before. Throws what
  /// that firing throws.
  void Enabled(bool pblnEnabled);
  /// Fires with no case given.
  void PullTrigger();
  /// Consumes and produces by trigger, output type and case tracking. Automatic transitions that this enables fire before it returns.
  /// Throws Error 5, with nothing changed, when an input place is empty (case tracking off), and Error 28 when automatic transitions
  /// would fire without end.
  void Fire(const std::shared_ptr<WorkCase>& pobjWorkCase = nullptr);

  TriggerTypes TriggerType() const { return mTriggerType; }
  void TriggerType(TriggerTypes pType) { mTriggerType = pType; }
  OutputTypes OutputType() const { return mOutputType; }
  void OutputType(OutputTypes pType) { mOutputType = pType; }

  /// The embedded object: one of the host's, or a workflow to run as subflow. Shared with its other owners.
  const std::shared_ptr<vantrel::Object>& Object() const { return mobjObject; }
  /// The embedded object when it is a workflow, otherwise null.
  std::shared_ptr<vantrel::Workflow> EmbeddedWorkflow() const;
  /// Throws Error 5 for this transition's own workflow and for one that embeds it at any depth.
  void Object(const std::shared_ptr<vantrel::Object>& pobjObject);
  /// Forgets the firings whose subflow has not delivered yet and gives back their tokens, which may enable others. For a reset and a
  /// removal.
  void CancelRuns();
  /// The workflow whose finished cases make this transition deliver its output; set by Fire.
  const std::shared_ptr<vantrel::Workflow>& Subflow() const { return mobjSubflow; }
  void Subflow(const std::shared_ptr<vantrel::Workflow>& pobjSubflow);

  /// Nothing while invisible.
  void Draw() override;

  SharedProperties GetProperties() override;
  /// Name, caption, types and connector sides go straight into the fields, without check, redraw or mark.
  void SetProperties(const std::shared_ptr<PropertyCollection>& pcolProperties) override;
  /// Shows a message box for an unknown name, and marks the transition dirty all the same.
  void SetProperty(const std::string& pstrPropName, const Variant& pvarValue) override;

  /// Copies the current row of the Transition table straight into the fields, then reads the workflow that SubflowId names: by
  /// the control's VNTRDB, or by the reader that is reading now. Throws Error for columns that cannot be read, Error 91 when
  /// there is no reader for that workflow, and what reading it throws.
  void AssignValues(const Recordset& pobjRow);

  /// A share in this transition.
  std::shared_ptr<Transition> Share() { return ShareOf(*this); }
  /// A transition of the same look, types, action and embedded object, marked dirty; the caller names and places it.
  /// Throws Error 5 when that would put a workflow into itself.
  std::shared_ptr<Transition> Clone() const;

 private:
  friend class Enabling;
  friend class Firing;
  friend class FiringNext;
  friend class Reservation;
  friend class StraightFiring;
  friend class SubflowRun;
  friend class TokenGame;

  // An enabling that failed only because a firing had chosen tokens; asked again when they stay after all.
  struct HeldUp {
    std::shared_ptr<WorkCase> Case;  // of the token that arrived
    bool ByDeparture;                // not an arrival but a departure asked
    bool operator==(const HeldUp&) const = default;
  };

  void ReadSubflow();
  void MarkDirty() override { Dirty = true; }
  void DrawRoles();
  void Store(const std::string& pstrPropName, const Variant& pvarValue);
  // Does everything that setting Enabled does, except firing. True when the transition has to fire now.
  bool SwitchEnabled(bool pblnEnabled);
  // True when every input place passes. Begins where the last question ended: a join of many branches is asked for each token that
  // arrives, and usually the same few inputs hold it up.
  template <class Passes>
  bool AllInputs(Passes&& pPasses) {
    return AllInArcs([&](const Arc& pobjArc) { return pPasses(*pobjArc.Place); });
  }
  template <class Passes>
  bool AllInArcs(Passes&& pPasses);

  std::shared_ptr<vantrel::Object> mobjObject;
  std::shared_ptr<vantrel::Workflow> mobjSubflow;
  std::list<std::shared_ptr<SubflowRun>> mcolRuns;  // firings whose subflow has not delivered yet, oldest first
  std::vector<HeldUp> mcolHeldUp;
  Reservation* mobjReservations = nullptr;  // the newest of its firings' and runs' tokens
  std::int64_t mHeldUpAt = 0;               // rank of the input arc that failed the last question of AllInputs
  std::int64_t mlngStackRank = -1;          // where it lay on the firing stack last
  Firing* mobjUnderWay = nullptr;           // the innermost of its firings that have chosen
  std::int32_t mFiringsUnderWay = 0;        // that have not delivered
  OutputTypes mOutputType = vntBroadcast;
  TriggerTypes mTriggerType = vntUser;
  bool mblnEnabled = false;
};

template <class Passes>
bool Transition::AllInArcs(Passes&& pPasses) {
  std::int64_t heldUpAt = InArcs.FirstThatFails(pPasses, mHeldUpAt);
  if (heldUpAt < 0) heldUpAt = InArcs.FirstThatFails(pPasses, 0, mHeldUpAt);
  if (heldUpAt >= 0) mHeldUpAt = heldUpAt;
  return heldUpAt < 0;
}

}  // namespace vantrel

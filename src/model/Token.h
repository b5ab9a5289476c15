// A token of the net.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "model/CaseLink.h"
#include "model/Enumerations.h"
#include "model/Forward.h"
#include "model/ModelObject.h"
#include "util/Date.h"
#include "util/RareText.h"
#include "util/Ref.h"

namespace vantrel {

class SubflowRun;

/// Lies in one place, may belong to a case, and remembers who made and who consumed it. Owned by its workflow and by the
/// place that it lies in. A running net holds millions: its size is watched in bench/.
class Token final : public ModelObject, public CaseFields {
 public:
  /// Dated now.
  Token() : Token(Date::Now()) {}
  explicit Token(Date pdtmCreated) : CaseFields(this), DateCreated(pdtmCreated) {}
  ~Token() override;

  KeyField<Token> Key;                ///< in the workflow's Tokens and the place's Tokens; "Token" and a number
  KeyField<Token> Name;               ///< equal to Key when nobody gave another
  Ref<vantrel::Place> Place;          ///< where it lies
  Ref<Transition> CreateTransition;   ///< nothing for start tokens
  Ref<Transition> ConsumeTransition;  ///< nothing while it is not consumed
  Date DateCreated;
  Date DateConsumed;        ///< the zero date while it is not consumed
  RareText Tag, HiddenTag;  ///< free; Tag goes on to the tokens that a subflow produces
  Variant NominalValue;
  std::shared_ptr<vantrel::Object> Object;  ///< linked object of the host
  std::int32_t RecId = 0;
  std::int32_t CreateUserId = 0, ConsumeUserId = 0;
  TokenStatusConstant Status = txQueued;
  bool Dirty = false;  ///< changed since the last save

  std::string Class() const override { return "VNTR.Token.1"; }
  std::string NameText() const override { return Name; }

  /// The token's own property values; null until a creator gives it any.
  const std::shared_ptr<PropertyCollection>& CustomProperties() const;
  void CustomProperties(const std::shared_ptr<PropertyCollection>& pcolProperties);
  /// Whether there is any value; unlike the question for the collection it never makes one.
  bool HasCustomProperties() const;
  bool CaseEnabled() const { return mblnCaseEnabled; }
  /// True also marks the place that the token lies in; false leaves the place as it is.
  void CaseEnabled(bool pblnOn);

  /// The CustomProperties themselves, not copies.
  std::shared_ptr<PropertyCollection> GetProperties() override { return CustomProperties(); }
  void SetProperties(const std::shared_ptr<PropertyCollection>& pcolProperties) override { CustomProperties(pcolProperties); }
  /// The run of a subflow that the token takes part in; nothing outside subflows, expired when that run has delivered.
  const Ref<SubflowRun>& Run() const { return mobjRun; }

  /// Sets the value of the first custom property of that name; an unknown name changes nothing. Marks the token dirty.
  void SetProperty(const std::string& pstrPropName, const Variant& pvarValue) override;

 private:
  friend class Firing;
  friend class SubflowDelivery;
  friend class SubflowRun;
  friend class TokenIndex;
  friend class TokenRules;
  friend class Workflow;

  bool mblnTaken = false;                    // chosen by a firing: counts for no other one
  mutable bool mblnEmptyProperties = false;  // given a collection with nothing in it, which is made when somebody asks
  std::uint32_t mlngArrival = 0;             // orders the tokens of a place that has an index
  mutable std::shared_ptr<PropertyCollection> mcolCustomProperties;
  Ref<SubflowRun> mobjRun;  // the subflow run that the token takes part in
};

}  // namespace vantrel

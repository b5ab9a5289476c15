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

/// Is in one place, may belong to a case, and knows the transitions that made and consumed it. Owned by its workflow and by its place.
/// A running net has millions of them: bench/ measures their size.
class Token final : public ModelObject, public CaseFields {
 public:
  /// Dated now.
  Token() : Token(Date::Now()) {}
  explicit Token(Date pdtmCreated) : CaseFields(this), DateCreated(pdtmCreated) {}
  ~Token() override;

  KeyField<Token> Key;                ///< in the workflow's Tokens and the place's Tokens; "Token" and a number
  KeyField<Token> Name;               ///< equal to Key unless another was given
  Ref<vantrel::Place> Place;          ///< where it is
  Ref<Transition> CreateTransition;   ///< null for start tokens
  Ref<Transition> ConsumeTransition;  ///< null until it is consumed
  Date DateCreated;
  Date DateConsumed;        ///< the zero date until it is consumed
  RareText Tag, HiddenTag;  ///< free; Tag goes on to the tokens that a subflow produces
  Variant NominalValue;
  std::shared_ptr<vantrel::Object> Object;  ///< linked object of the host
  std::int32_t RecId = 0;
  std::int32_t CreateUserId = 0, ConsumeUserId = 0;
  TokenStatusConstant Status = txQueued;
  bool Dirty = false;  ///< changed since the last save

  std::string Class() const override { return "VNTR.Token.1"; }
  std::string NameText() const override { return Name; }

  /// The token's own property values; null until it is given any.
  const std::shared_ptr<PropertyCollection>& CustomProperties() const;
  void CustomProperties(const std::shared_ptr<PropertyCollection>& pcolProperties);
  /// True when there is a value. Unlike CustomProperties it makes no collection.
  bool HasCustomProperties() const;
  bool CaseEnabled() const { return mblnCaseEnabled; }
  /// True also marks the token's place; false leaves the place as it is.
  void CaseEnabled(bool pblnOn);

  /// The CustomProperties themselves, not copies.
  SharedProperties GetProperties() override { return CustomProperties(); }
  void SetProperties(const std::shared_ptr<PropertyCollection>& pcolProperties) override { CustomProperties(pcolProperties); }
  /// The subflow's run that the token takes part in; null outside subflows and after that run has delivered.
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
  mutable bool mblnEmptyProperties = false;  // was given an empty collection, which is made when it is read
  std::uint32_t mlngArrival = 0;             // orders the tokens of a place that has an index
  mutable std::unique_ptr<std::shared_ptr<PropertyCollection>> mcolCustomProperties;  // most tokens have none
  Ref<SubflowRun> mobjRun;                                                            // the subflow run that the token takes part in
};

}  // namespace vantrel

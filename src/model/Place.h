// A place of the net.
#pragma once

#include "model/Node.h"
#include "model/Token.h"
#include "util/Event.h"

namespace vantrel {

class TokenIndex;

/// Holds tokens in order of arrival and draws itself as a picture with a caption, a token count and two connectors. Defines the
/// properties of the tokens in it.
class Place final : public Node {
 public:
  /// A place as a control makes it: workflow, position and connector sides come from the designer state.
  Place();
  /// What Workflow::NewPlace makes.
  explicit Place(vantrel::Workflow& pobjWorkflow);
  ~Place() override;

  /// Definitions of the tokens' properties. The place's own collection; null only if a host sets it to null.
  std::shared_ptr<PropertyCollection> TokenProperties;
  Ref<Label> CountLabel;  ///< shows the token count
  float TokenValue = 0;   ///< stored number
  SelectionTypes SelectionType = vntSelectionTypeFIFO;

  /// Raised by AddToken when this place is its workflow's end place, after the workflow itself has seen the token.
  Event<const std::shared_ptr<Token>&> OnCaseFinished;

  std::string Class() const override { return "VNTR.Place.1"; }
  ChartKind Kind() const override { return ChartKind::Place; }

  const std::shared_ptr<vantrel::Object>& Object() const { return mobjObject; }
  void Object(const std::shared_ptr<vantrel::Object>& pobjObject) { mobjObject = pobjObject; }
  std::int32_t RecId() const { return mRecId; }
  void RecId(std::int32_t plngRecId) { mRecId = plngRecId; }
  bool Dirty() const { return mblnDirty; }
  void Dirty(bool pblnDirty) { mblnDirty = pblnDirty; }

  float TokenCount() const { return mTokenCount; }
  /// Stores the count, and shows it if the place is visible and the mode is not run mode.
  void TokenCount(float psngCount);
  /// The tokens in this place, keyed by Token::Key, in order of arrival. AddToken and RemoveToken move tokens by the rules of the
  /// game; the collection itself has no rules.
  Collection<Token>& Tokens() { return mcolTokens; }
  const Collection<Token>& Tokens() const { return mcolTokens; }

  /// Puts the token at the end of Tokens, with a new key if it has none, and enables the transitions that it completes; automatic
  /// ones fire before this returns. Throws Error 457 when the key is taken, Error 28 when automatic transitions would fire without
  /// end, and what an automatic firing throws.
  void AddToken(const std::shared_ptr<Token>& pobjToken);
  /// Puts a stored token back into its place. Like AddToken, but automatic transitions wait on the firing stack and no event is
  /// raised. Throws Error 457 when the key is taken.
  void PutBack(const std::shared_ptr<Token>& pobjToken);
  /// Takes the token out (for a token without a key, the first one) and enables or disables the transitions that the place feeds.
  /// Throws Error 5 when it is not in this place, and what AddToken throws.
  void RemoveToken(const std::shared_ptr<Token>& pobjToken);

  using Node::Name;
  /// Refuses a name that a place of the workflow already has, its own included (message box), and keeps the old one.
  void Name(const std::string& pstrName);
  using Node::Visible;
  /// Shows or hides image, caption and the workflow's arcs whose Place this is; draws when showing. Without an image only the stored
  /// value changes.
  void Visible(bool pblnOn) override;
  /// True when a case that waits here can go on; the image shows it.
  bool CaseEnabled() const { return mblnCaseEnabled; }
  void CaseEnabled(bool pblnOn);

  /// Does nothing while invisible, without a workflow, or in run mode.
  void Draw() override;

  SharedProperties GetProperties() override;
  /// Name, caption and connector sides go straight into the fields, without check, redraw or mark.
  void SetProperties(const std::shared_ptr<PropertyCollection>& pcolProperties) override;
  void SetProperty(const std::string& pstrPropName, const Variant& pvarValue) override;

  /// A share in this place.
  std::shared_ptr<Place> Share() { return ShareOf(*this); }
  /// A place of the same look and with copies of the token property definitions; the caller names and places it.
  std::shared_ptr<Place> Clone() const;

 private:
  friend class CaseLink;
  friend class PlaceOfArc;
  friend class TokenRules;

  // A token was given another case or mark by hand.
  void TokensChanged();
  void MarkDirty() override { mblnDirty = true; }
  void DrawCount();
  void Store(const std::string& pstrPropName, const Variant& pvarValue);

  std::vector<Arc*> mcolArcs;  // every living arc whose Place this is, in no order
  Collection<Token> mcolTokens;
  // What TokenRules knows of the tokens, and after how many changes of the collection.
  mutable std::unique_ptr<TokenIndex> mobjIndex;  // only while there are many tokens
  mutable std::uint64_t mlngKnownChanges = 0;
  mutable std::int32_t mlngTaken = 0;  // tokens chosen by firings
  std::shared_ptr<vantrel::Object> mobjObject;
  float mTokenCount = 0;
  std::int32_t mRecId = 0;
  bool mblnDirty = false;
  bool mblnCaseEnabled = false;
};

}  // namespace vantrel

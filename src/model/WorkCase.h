// One run of a workflow.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "model/PropertyCollection.h"
#include "util/Date.h"
#include "util/Object.h"

namespace vantrel {

/// With case tracking on, the tokens of a case move together. Owned by its tokens and by every list of cases that has it.
class WorkCase final : public Object {
 public:
  std::string Class() const override { return "VNTR.WorkCase.1"; }
  std::string NameText() const override { return Name; }

  std::int32_t RecId = 0;
  std::int32_t OrderItemId = 0;  ///< the host's order item that the case belongs to
  std::string Key;               ///< names the case when a firing lists its candidates
  std::string Name;
  std::string Tag, HiddenTag;
  std::string TypeCode;  ///< the host's kind of case
  Date DateCreated, DateClosed;
  bool Dirty = false;
  std::shared_ptr<PropertyCollection> UserProperties;  ///< the host's; may be null

 private:
  friend class CaseLink;
  // The tokens that belong to the case keep it alive together. A copy of the case has no tokens yet.
  struct Ties {
    Ties() = default;
    Ties(const Ties&) {}
    Ties& operator=(const Ties&) { return *this; }  // NOLINT(bugprone-unhandled-self-assignment): copies nothing
    ~Ties() = default;

    std::shared_ptr<WorkCase> Keeper;  // set while there are links
    std::int64_t Links = 0;
  };
  Ties mTies;
};

}  // namespace vantrel

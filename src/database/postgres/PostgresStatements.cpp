#include "database/postgres/PostgresStatements.h"

namespace vantrel {

namespace {

std::string NameOf(std::size_t plngSlot) { return "statement" + std::to_string(plngSlot); }

}  // namespace

void PostgresStatements::Queue(PostgresLink& pobjLink, const std::string& pstrText, const PostgresParameters& pobjParameters) {
  mIsPreparing = false;
  const auto found = mSlotOfText.find(pstrText);
  if (found != mSlotOfText.end()) {
    pobjLink.QueuePrepared(NameOf(found->second), pobjParameters);
    return;
  }
  QueuePreparation(pobjLink, pstrText);
  pobjLink.QueuePrepared(NameOf(mSlot), pobjParameters);
}

void PostgresStatements::QueuePreparation(PostgresLink& pobjLink, const std::string& pstrText) {
  mSlot = mNextSlot;
  mNextSlot = (mNextSlot + 1) % kPlaces;
  Slot& slot = mSlots[mSlot];
  mSlotOfText.erase(slot.Text);
  slot.Text = pstrText;
  if (slot.IsOnServer) pobjLink.Queue("DEALLOCATE " + NameOf(mSlot));
  mCleared = pobjLink.QueuedCount();
  pobjLink.Prepare(NameOf(mSlot), pstrText);
  mFilled = pobjLink.QueuedCount();
  mIsPreparing = true;
}

void PostgresStatements::Landed(std::size_t plngDone) {
  if (!mIsPreparing) return;
  mIsPreparing = false;
  Slot& slot = mSlots[mSlot];
  if (plngDone >= mFilled) {
    slot.IsOnServer = true;
    mSlotOfText.emplace(slot.Text, mSlot);
    return;
  }
  if (plngDone >= mCleared) slot.IsOnServer = false;
  slot.Text.clear();
}

bool PostgresStatements::Forget(const std::string& pstrText) { return mSlotOfText.erase(pstrText) != 0; }

}  // namespace vantrel

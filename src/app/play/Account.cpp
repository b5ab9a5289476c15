#include "app/play/Account.h"

namespace vantrel {

bool Account::IsFinished() const {
  return Stopped != StopReason::Error && DifferentCasesFinished >= CasesTakenUp.value_or(0) + CasesStarted;
}

}  // namespace vantrel

#include "app/play/Account.h"

namespace vantrel {

bool Account::IsFinished() const { return Stopped != StopReason::Error && DifferentCasesFinished >= CasesStarted; }

}  // namespace vantrel

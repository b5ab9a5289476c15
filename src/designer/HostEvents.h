// The events of controls on their way to the hosts.
#pragma once

#include <functional>
#include <memory>

#include "designer/Vantrel.h"

namespace vantrel {

/// Tells the control's host as soon as no call of a control is under way: when the outermost one ends, after what was told before. Outside
/// of calls that is at once. A control that has gone tells nothing more.
void TellHost(Vantrel& pobjControl, std::function<void(Vantrel&)> pTell);

/// Raises an event of the control in that way. The values are kept until then.
template <class... Args, class... Values>
void RaiseLater(Vantrel& pobjControl, Event<Args...> Vantrel::*pEvent, const Values&... pValues) {
  if (!(pobjControl.*pEvent).HasListeners()) return;
  TellHost(pobjControl, [pEvent, pValues...](Vantrel& control) { (control.*pEvent).Raise(pValues...); });
}

/// The same for an object; null stands for the control itself.
void RaiseForObject(Vantrel& pobjControl, Event<ModelObject&> Vantrel::*pEvent, const std::shared_ptr<ModelObject>& pobjObject);

/// Shows a message box in that way: nothing of the window system runs in the middle of an operation.
void SayLater(Vantrel& pobjControl, const char* pstrText);

/// Counts as a call while it lives. At the end of the outermost one, tells what waits. A listener's call is an outermost one again: it
/// tells what still waits before it returns, so nothing is late because a listener runs an event loop. What a listener throws keeps no
/// other listener from being told; the first such thing is then thrown to who made the call, unless the call itself failed.
class HostEvents {
 public:
  HostEvents();
  ~HostEvents() noexcept(false);
  HostEvents(const HostEvents&) = delete;
  HostEvents& operator=(const HostEvents&) = delete;

 private:
  int mintExceptions;
};

/// Stands round a menu or dialog that an operation opens: while it runs an event loop, no call counts as being under way. Tells first what
/// waits. The control may be gone afterwards.
class HostTurn {
 public:
  HostTurn();
  ~HostTurn();
  HostTurn(const HostTurn&) = delete;
  HostTurn& operator=(const HostTurn&) = delete;

 private:
  int mintCalls;
};

}  // namespace vantrel

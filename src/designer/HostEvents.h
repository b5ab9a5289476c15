// Delivers the events of controls to their hosts.
#pragma once

#include <functional>
#include <memory>

#include "designer/Vantrel.h"

namespace vantrel {

/// Delivers an event to the control's host when the outermost call of a control ends, in order; outside of calls at once. A control that is
/// gone delivers nothing.
void TellHost(Vantrel& pobjControl, std::function<void(Vantrel&)> pTell);

/// Raises an event of the control in this way. Keeps the values until then.
template <class... Args, class... Values>
void RaiseLater(Vantrel& pobjControl, Event<Args...> Vantrel::*pEvent, const Values&... pValues) {
  if (!(pobjControl.*pEvent).HasListeners()) return;
  TellHost(pobjControl, [pEvent, pValues...](Vantrel& control) { (control.*pEvent).Raise(pValues...); });
}

/// The same for an object; null stands for the control itself.
void RaiseForObject(Vantrel& pobjControl, Event<ModelObject&> Vantrel::*pEvent, const std::shared_ptr<ModelObject>& pobjObject);

/// Shows a message box in this way, so that no event loop runs in the middle of an operation.
void SayLater(Vantrel& pobjControl, const char* pstrText);

/// Counts as a call while it lives. The end of the outermost one delivers the waiting events. A call by a listener is an outermost one
/// again and delivers what still waits before it returns, so that nothing is delayed by a listener's event loop. An exception of a
/// listener does not stop the delivery; the first one is then thrown to the caller, unless the call itself failed.
class HostEvents {
 public:
  HostEvents();
  ~HostEvents() noexcept(false);
  HostEvents(const HostEvents&) = delete;
  HostEvents& operator=(const HostEvents&) = delete;

 private:
  int mintExceptions;
};

/// Used round a menu or dialog that an operation opens: no call counts as being in progress while that runs an event loop. Delivers the
/// waiting events first. Tests false once the control is gone: a listener, the menu or the dialog may have destroyed it.
class HostTurn {
 public:
  explicit HostTurn(Vantrel& pobjControl);
  ~HostTurn();
  explicit operator bool() const { return static_cast<bool>(mobjControl); }
  HostTurn(const HostTurn&) = delete;
  HostTurn& operator=(const HostTurn&) = delete;

 private:
  Ref<Vantrel> mobjControl;
  int mintCalls;
};

}  // namespace vantrel

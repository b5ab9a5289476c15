#include "designer/HostEvents.h"

#include <deque>
#include <exception>
#include <utility>

#include "util/MsgBox.h"

namespace vantrel {

namespace {

struct Waiting {
  Ref<Vantrel> Control;
  std::function<void(Vantrel&)> Tell;
};

int gintCallsUnderWay = 0;

std::deque<Waiting>& Queue() {
  static std::deque<Waiting> queue;
  return queue;
}

// The first exception of a listener, or null.
std::exception_ptr TellAll() {
  std::exception_ptr first;
  while (!Queue().empty()) {
    const Waiting next = std::move(Queue().front());
    Queue().pop_front();
    try {
      if (next.Control) next.Tell(*next.Control);
    } catch (...) {
      if (!first) first = std::current_exception();
    }
  }
  return first;
}

}  // namespace

void TellHost(Vantrel& pobjControl, std::function<void(Vantrel&)> pTell) {
  const HostEvents call;
  Queue().push_back({&pobjControl, std::move(pTell)});
}

void RaiseForObject(Vantrel& pobjControl, Event<ModelObject&> Vantrel::*pEvent, const std::shared_ptr<ModelObject>& pobjObject) {
  if (!(pobjControl.*pEvent).HasListeners()) return;
  TellHost(pobjControl, [pEvent, pobjObject](Vantrel& control) { (control.*pEvent).Raise(pobjObject ? *pobjObject : control); });
}

void SayLater(Vantrel& pobjControl, const char* pstrText) {
  TellHost(pobjControl, [pstrText](Vantrel&) { MsgBox(pstrText); });
}

HostEvents::HostEvents() : mintExceptions(std::uncaught_exceptions()) { ++gintCallsUnderWay; }

// NOLINTNEXTLINE(bugprone-exception-escape): the caller gets what a listener throws; declared so
HostEvents::~HostEvents() noexcept(false) {
  if (--gintCallsUnderWay > 0) return;
  const auto thrown = TellAll();
  if (thrown && std::uncaught_exceptions() == mintExceptions) std::rethrow_exception(thrown);
}

HostTurn::HostTurn(Vantrel& pobjControl) : mobjControl(&pobjControl), mintCalls(gintCallsUnderWay) {
  gintCallsUnderWay = 0;
  const auto thrown = TellAll();
  if (!thrown) return;
  gintCallsUnderWay = mintCalls;
  std::rethrow_exception(thrown);
}

HostTurn::~HostTurn() { gintCallsUnderWay = mintCalls; }

}  // namespace vantrel

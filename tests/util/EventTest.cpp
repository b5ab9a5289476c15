#include "util/Event.h"

#include <string>

#include <gtest/gtest.h>

namespace vantrel {

namespace {

TEST(Event, CallsInOrderOfConnectionUntilTheSubscriptionEnds) {
  Event<int> event;
  std::string heard;
  const auto first = event.Connect([&](int value) { heard += "a" + std::to_string(value); });
  auto second = event.Connect([&](int value) { heard += "b" + std::to_string(value); });
  event.Raise(1);
  second = event.Connect([&](int value) { heard += "c" + std::to_string(value); });
  event.Raise(2);
  second.Disconnect();
  event.Raise(3);
  EXPECT_EQ(heard, "a1b1a2c2a3");
}

TEST(Event, ListenerDisconnectedMeanwhileIsNotCalledAndOneConnectedMeanwhileWaits) {
  Event<> event;
  std::string heard;
  Subscription doomed, late;
  const auto first = event.Connect([&] {
    heard += "1";
    doomed.Disconnect();
    if (heard == "1") late = event.Connect([&] { heard += "3"; });
  });
  doomed = event.Connect([&] { heard += "2"; });
  event.Raise();
  EXPECT_EQ(heard, "1");
  event.Raise();
  EXPECT_EQ(heard, "113");
}

TEST(Event, ListenerMayRaiseItAgainAndDropItself) {
  Event<int> event;
  std::string heard;
  Subscription self;
  const std::string captured = "still here";
  self = event.Connect([&event, &heard, &self, captured](int depth) {
    if (depth == 0) return self.Disconnect();
    event.Raise(depth - 1);
    heard += std::to_string(depth) + captured.substr(0, 1);
  });
  event.Raise(2);
  event.Raise(1);
  EXPECT_EQ(heard, "1s2s");
}

TEST(Event, EventMayDieWhileItIsRaisedAndBeforeItsSubscriptions) {
  auto event = std::make_unique<Event<>>();
  int calls = 0;
  const auto first = event->Connect([&] { event.reset(); });
  const auto second = event->Connect([&] { ++calls; });
  event->Raise();
  EXPECT_EQ(calls, 1);
}

}  // namespace

}  // namespace vantrel

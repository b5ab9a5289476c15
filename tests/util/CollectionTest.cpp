#include "util/Collection.h"

#include <algorithm>
#include <functional>
#include <list>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "util/ErrorOf.h"
#include "util/Lookup.h"

namespace vantrel {

namespace {

struct Thing {
  std::string Key;
  std::int64_t Serial = 0;
  std::function<void()> AtEnd;
  ~Thing() {
    if (AtEnd) AtEnd();
  }
};

}  // namespace

template <>
struct KeyWordOf<Thing> {
  static constexpr std::string_view Value = "Thing";
};

namespace {

using test::ErrorOf;
using Things = Collection<Thing>;

std::shared_ptr<Thing> Add(Things& pcolThings, const std::string& pstrKey, std::int64_t plngSerial = 0) {
  auto thing = std::make_shared<Thing>();
  thing->Key = pstrKey;
  thing->Serial = plngSerial;
  pcolThings.Add(thing, pstrKey);
  return thing;
}

std::string KeysOf(const Things& pcolThings) {
  std::string keys;
  for (const auto& thing : pcolThings) keys += thing->Key + " ";
  return keys;
}

/// How a random run adds and removes: chances in percent.
struct Mix {
  const char* Name;
  int OddKeys, RandomNumbers, Adding, FirstOnes, LastOnes, Walking;
};

void PrintTo(const Mix& pobjMix, std::ostream* pobjStream) { *pobjStream << pobjMix.Name; }

/// A collection beside a plain list of what it should hold. Serials grow with every addition, so a walker has to visit the
/// first item with a serial above the one that it saw last.
class Twin {
 public:
  explicit Twin(const Mix& pobjMix) : mMix(pobjMix), mRandom(static_cast<unsigned>(pobjMix.Adding * 100 + pobjMix.Walking)) {}

  void Step() {
    if (Chance(mMix.Walking)) Walk();
    if (Chance(mMix.Adding)) {
      AddOne();
    } else if (!mExpected.empty()) {
      RemoveOne();
    }
    Look();
  }

  void CheckAll() {
    ASSERT_EQ(mThings.Count(), static_cast<std::int32_t>(mExpected.size()));
    std::int32_t index = 0;
    auto walked = mThings.begin();
    for (const auto& thing : mExpected) {
      ASSERT_EQ(*walked, thing);
      ++walked;
      ASSERT_EQ(mThings.Item(++index), thing);
      ASSERT_EQ(mThings.KeyOf(index), thing->Key);
      ASSERT_EQ(mThings.Find(thing->Key), thing->Key.empty() ? nullptr : thing);
    }
    ASSERT_TRUE(walked == nullptr);
  }

 private:
  struct Walker {
    Things::Cursor Cursor;
    std::int64_t Seen = 0;
  };

  int Below(int pintLimit) { return std::uniform_int_distribution<>(0, pintLimit - 1)(mRandom); }
  bool Chance(int pintPercent) { return Below(100) < pintPercent; }

  std::string NewKey() {
    if (Chance(mMix.OddKeys)) {
      const std::string number = std::to_string(Below(60));
      const std::string odd[] = {"", "Thing" + number + "b", "Thing00" + number, "thing" + number, number, "Thing-" + number, "Thing"};
      return odd[Below(7)];
    }
    return Chance(mMix.RandomNumbers) ? "Thing" + std::to_string(Below(200)) : NextKey(mThings, "Thing");
  }

  bool Taken(const std::string& pstrKey) const {
    return !pstrKey.empty() && std::any_of(mExpected.begin(), mExpected.end(), [&](const auto& thing) { return thing->Key == pstrKey; });
  }

  void AddOne() {
    const std::string key = NewKey();
    if (Taken(key)) {
      EXPECT_EQ(ErrorOf([&] { Add(mThings, key); }), vntErrDuplicateKey) << key;
    } else {
      mExpected.push_back(Add(mThings, key, ++mSerial));
    }
  }

  void RemoveOne() {
    const int chosen = Below(100);
    const auto size = static_cast<int>(mExpected.size());
    const int at = chosen < mMix.FirstOnes ? 0 : chosen < mMix.FirstOnes + mMix.LastOnes ? size - 1 : Below(size);
    const auto thing = std::next(mExpected.begin(), at);
    if ((*thing)->Key.empty() || Chance(20)) {
      mThings.Remove(at + 1);
    } else {
      mThings.Remove((*thing)->Key);
    }
    mExpected.erase(thing);
  }

  void Walk() {
    if (Chance(20)) mWalkers.push_back({Things::Cursor(mThings)});
    if (Chance(20) && !mWalkers.empty()) mWalkers.pop_front();
    for (Walker& walker : mWalkers) {
      const Thing* const seen = walker.Cursor.Next();
      const auto next = std::find_if(mExpected.begin(), mExpected.end(), [&](const auto& thing) { return thing->Serial > walker.Seen; });
      ASSERT_EQ(seen, next == mExpected.end() ? nullptr : next->get());
      if (seen) walker.Seen = seen->Serial;
    }
  }

  void Look() {
    std::int32_t largest = 0;
    for (const auto& thing : mExpected) largest = std::max(largest, NumberBehind("Thing", thing->Key).value_or(0));
    ASSERT_EQ(NextKey(mThings, "Thing"), "Thing" + std::to_string(largest + 1));
    const std::string key = "Thing" + std::to_string(Below(largest + 2));
    ASSERT_EQ(mThings.Contains(key), Taken(key)) << key;
    if (mExpected.empty()) return;
    ASSERT_EQ(mThings.First(), mExpected.front());
    ASSERT_EQ(mThings.Last(), mExpected.back());
    const int at = Below(static_cast<int>(mExpected.size()));
    ASSERT_EQ(mThings.Item(at + 1), *std::next(mExpected.begin(), at));
  }

  Mix mMix;
  std::mt19937 mRandom;
  Things mThings;
  std::list<std::shared_ptr<Thing>> mExpected;
  std::list<Walker> mWalkers;
  std::int64_t mSerial = 0;
};

class RandomUse : public testing::TestWithParam<Mix> {};

TEST_P(RandomUse, HoldsWhatAPlainListHolds) {
  Twin twin(GetParam());
  for (int step = 0; step < 6000 && !testing::Test::HasFatalFailure(); ++step) {
    twin.Step();
    if (step % 200 == 0) twin.CheckAll();
  }
}

//                                                 odd, random, adding, first, last, walking
INSTANTIATE_TEST_SUITE_P(Collections, RandomUse,
                         testing::Values(Mix{"counted up", 0, 0, 52, 30, 30, 0}, Mix{"queue", 0, 0, 51, 100, 0, 0},
                                         Mix{"queue with a text key now and then", 2, 0, 51, 95, 0, 5},
                                         Mix{"stack under walkers", 0, 0, 51, 0, 100, 40},
                                         Mix{"any order of numbers", 0, 100, 55, 20, 20, 0},
                                         Mix{"any order under walkers", 0, 60, 52, 10, 10, 30}, Mix{"odd keys", 50, 30, 51, 20, 20, 10},
                                         Mix{"mostly empty", 10, 20, 40, 50, 0, 10}));

TEST(Collection, NextKeyCountsOnlyTheWordWithANumber) {
  const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
      {{}, "Thing1"},
      {{"Thing1", "Thing4"}, "Thing5"},
      {{"Thing4", "Thing1"}, "Thing5"},
      {{"Thing0"}, "Thing1"},
      {{"Thing007", "Thing3"}, "Thing8"},
      {{"Other9", "Thing", "Thing2b", "Thing-5", "Thing 6", "Thing+7", "thing8"}, "Thing1"},
      {{"Thing99999999999", "Thing2"}, "Thing3"},
  };
  for (const auto& [keys, next] : cases) {
    Things things;
    for (const auto& key : keys) Add(things, key);
    EXPECT_EQ(NextKey(things, "Thing"), next) << KeysOf(things);
  }
}

TEST(Collection, NextKeyBehindTheLargestIntegerOverflows) {
  Things things;
  Add(things, "Thing2147483647");
  EXPECT_EQ(ErrorOf([&] { NextKey(things, "Thing"); }), vntErrOverflow);
}

TEST(Collection, WhatIsNotThereIsAnInvalidCall) {
  Things things;
  EXPECT_EQ(ErrorOf([&] { things.First(); }), vntErrInvalidCall);
  EXPECT_EQ(ErrorOf([&] { things.Last(); }), vntErrInvalidCall);
  Add(things, "Thing1");
  Add(things, "");
  for (const std::int32_t index : {-1, 0, 3}) EXPECT_EQ(ErrorOf([&] { things.Item(index); }), vntErrInvalidCall) << index;
  for (const char* key : {"", "Thing2", "Thing01", "thing1"}) {
    EXPECT_EQ(ErrorOf([&] { things.Remove(key); }), vntErrInvalidCall) << key;
  }
  EXPECT_EQ(ErrorOf([&] { things.Add(nullptr); }), vntErrInvalidCall);
  EXPECT_EQ(things.Count(), 2);
}

TEST(Collection, ReadsLeaveWhatOtherReadsReturnedWhereItIs) {
  Things things;
  for (int i = 0; i < 8; ++i) Add(things, NextKey(things, "Thing"));
  things.Remove("Thing3");
  things.Remove("Thing6");
  const auto& first = things.First();
  const auto& last = things.Last();
  const auto& fourth = things.Item("Thing4");
  EXPECT_EQ(things.Item(4)->Key, "Thing5");
  EXPECT_EQ(things.KeyOf(5), "Thing7");
  EXPECT_EQ(first->Key + last->Key + fourth->Key, "Thing1Thing8Thing4");
}

TEST(Collection, PositionsAmongHolesAreFoundWhileTheQueueMovesOn) {
  Things things;
  std::list<std::string> keys;
  for (int i = 0; i < 20'000; ++i) {
    Add(things, NextKey(things, "Thing"));
    keys.push_back("Thing" + std::to_string(i + 1));
    if (i < 1000 || i % 97 == 0) continue;
    const int at = i % 5 == 0 ? i % 300 : 0;
    ASSERT_EQ(things.Item(at + 1)->Key, *std::next(keys.begin(), at)) << i;
    things.Remove(at + 1);
    keys.erase(std::next(keys.begin(), at));
  }
}

TEST(Collection, FindsAKeyFieldWhereItFindsItsText) {
  const std::vector<std::string> keys = {"Thing1",          "Thing07", "Thing999999999", "Thing1000000000",
                                         "Thing2147483647", "thing1",  "Thing",          "x"};
  Things things;
  for (const auto& key : keys) Add(things, key);
  for (const auto& key : keys) {
    const KeyField<Thing> field(key);
    KeyField<Thing> copy = field;
    const KeyField<Thing> moved = std::move(copy);
    EXPECT_EQ(things.Find(moved)->Key, key);
    EXPECT_TRUE(moved == key && moved == field && !moved.empty()) << moved;
    EXPECT_EQ(ErrorOf([&] { things.Add(std::make_shared<Thing>(), field); }), vntErrDuplicateKey) << key;
    const auto taken = things.Take(field);
    EXPECT_FALSE(things.Contains(key));
    things.Add(taken, field);
  }
  const KeyField<Thing> none;
  EXPECT_TRUE(none.empty() && !things.Contains(none));
}

TEST(Collection, NumberedItemsBeyondTheShortNumbersAreFoundByText) {
  Things things;
  for (const std::int32_t number : {999'999'999, 1'000'000'000}) things.AddNumbered(std::make_shared<Thing>(), number);
  EXPECT_TRUE(things.Contains("Thing999999999") && things.Contains("Thing1000000000"));
  EXPECT_TRUE(things.Contains(KeyField<Thing>::OfNumber(1'000'000'000)));
  EXPECT_EQ(NextKey(things, "Thing"), "Thing1000000001");
}

TEST(Collection, LoopMayRemoveWhatItLooksAtAndAddWhatItWillSee) {
  Things things;
  for (int i = 0; i < 5; ++i) Add(things, NextKey(things, "Thing"));
  std::string seen;
  for (const auto& thing : things) {
    seen += thing->Key + " ";
    things.Remove(thing->Key);
    if (thing->Key == "Thing2") things.Remove("Thing4");
    if (thing->Key == "Thing3") Add(things, "Thing30");
  }
  EXPECT_EQ(seen, "Thing1 Thing2 Thing3 Thing5 Thing30 ");
  EXPECT_TRUE(things.IsEmpty());
}

TEST(Collection, ItemThatUsesTheCollectionAtItsEndFindsItselfGone) {
  Things things;
  Add(things, "Thing1")->AtEnd = [&] {
    EXPECT_FALSE(things.Contains("Thing1"));
    Add(things, "Thing1");
  };
  things.Remove("Thing1");
  EXPECT_EQ(KeysOf(things), "Thing1 ");
}

}  // namespace

}  // namespace vantrel

#include "util/Lookup.h"

#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace vantrel {

namespace {

struct Named {
  std::string Name, Key;
  std::int32_t RecId = 0;
};

void Fill(Collection<Named>& pcolItems, const std::vector<std::string>& pcolNames) {
  for (const auto& name : pcolNames) {
    auto item = std::make_shared<Named>();
    item->Name = name;
    item->Key = "Named" + std::to_string(pcolItems.Count() + 1);
    item->RecId = pcolItems.Count() % 2;
    pcolItems.Add(item, item->Key);
  }
}

TEST(NextName, IsThePrefixOrOneMoreThanTheLargestNumberBehindIt) {
  const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
      {{}, "Place"},
      {{"Other"}, "Place"},
      {{"Place", "Other"}, "Place1"},
      {{"Place", "Place2", "Placement"}, "Place3"},
      {{"Place2b", "Place10"}, "Place11"},
      {{"place7", "MyPlace8"}, "Place"},
      {{"Place2.5"}, "Place3"},
      {{"Place-9"}, "Place"},
      {{"Place3", "Place20230101120000", "Place2147483648", "Place-2147483649", "Place1e300"}, "Place4"},
  };
  for (const auto& [names, next] : cases) {
    Collection<Named> items;
    Fill(items, names);
    EXPECT_EQ(NextName(items, "Place"), next) << testing::PrintToString(names);
  }
}

TEST(Lookup, FirstMatchWinsAndCaseCounts) {
  Collection<Named> items;
  Fill(items, {"a", "b", "b", "B"});
  EXPECT_EQ(FindByName(items, "b"), items.Item(2));
  EXPECT_EQ(FindByName(items, "A"), nullptr);
  EXPECT_EQ(FindByRecId(items, 1), items.Item(2));
  EXPECT_EQ(FindByRecId(items, 9), nullptr);
  EXPECT_FALSE(IsNameFree(items, "B"));
  EXPECT_FALSE(KeyExists(items, "named1"));
}

TEST(IsBetween, TakesTheBoundsInEitherOrderAndIncludesThem) {
  for (const auto& [low, high] : {std::pair<Variant, Variant>{1, 10}, {10.0, std::int16_t{1}}}) {
    EXPECT_TRUE(IsBetween(5, low, high));
    EXPECT_TRUE(IsBetween(10, low, high));
    EXPECT_TRUE(IsBetween(1.0, low, high));
    EXPECT_FALSE(IsBetween(11, low, high));
    EXPECT_FALSE(IsBetween(0.999, low, high));
  }
  EXPECT_TRUE(IsBetween("m", "z", "a"));
}

TEST(IsBetween, BoundWithoutOrderIncludesNothingButItsEqual) {
  const Variant nan(std::nan(""));
  for (const Variant& none : {Variant(Variant::Null), nan}) {
    EXPECT_TRUE(IsBetween(5, 5, none) && IsBetween(5, none, 5));
    EXPECT_FALSE(IsBetween(5, 1, none) || IsBetween(5, none, 10) || IsBetween(none, 1, 10) || IsBetween(5, none, none));
  }
}

struct KeyedThing : Object {
  std::string Key;
  std::string Class() const override { return "KeyedThing"; }
};

TEST(NextKey, LooksAtTheKeysOfItemsAddedWithoutOne) {
  Collection<KeyedThing> things;
  for (const char* key : {"Thing2", "Thing7", "Thing20230101120000"}) {
    things.Add(std::make_shared<KeyedThing>(), key == std::string("Thing2") ? key : "");
    things.Last()->Key = key;
  }
  EXPECT_EQ(NextKey(things, "Thing"), "Thing8");
  EXPECT_TRUE(KeyExists(things, "Thing7") && KeyExists(things, "Thing2"));
  EXPECT_FALSE(KeyExists(things, "Thing8"));
}

TEST(StripQualifier, KeepsTheFirstPartBehindTheFirstDot) {
  const std::vector<std::pair<const char*, const char*>> cases = {{"VNTR.Place.1", "Place"},
                                                                  {"Arc.Guard", "Guard"},
                                                                  {"3.5", "3.5"},
                                                                  {"Place", "Place"},
                                                                  {"a.b.c", "b"},
                                                                  {"x.1.2", "x.1.2"},
                                                                  {"a.", ""},
                                                                  {".b", "b"},
                                                                  {"", ""}};
  for (const auto& [text, stripped] : cases) EXPECT_EQ(StripQualifier(text), stripped) << text;
}

}  // namespace

}  // namespace vantrel

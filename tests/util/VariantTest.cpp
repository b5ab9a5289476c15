#include "util/Variant.h"

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace vantrel {

namespace {

class Linked final : public Object {
 public:
  std::string Class() const override { return "Test.Linked"; }
};

/// The result of a conversion, or "!" and the number of its Error.
template <class Convert>
std::string Outcome(Convert&& pConvert) {
  try {
    return Variant(pConvert()).ToText();
  } catch (const Error& error) {
    return "!" + std::to_string(error.Number);
  }
}

struct Conversion {
  Variant From;
  const char *Text, *Int16, *Int32, *Double, *Boolean;
};

TEST(VariantConversion, GivesTheValueOrTheErrorOfItsKind) {
  const std::vector<Conversion> conversions = {
      {{}, "", "0", "0", "0", "False"},
      {Variant::Null, "!13", "!13", "!13", "!13", "!13"},
      {true, "True", "-1", "-1", "-1", "True"},
      {std::int16_t{-7}, "-7", "-7", "-7", "-7", "True"},
      {70000, "70000", "!6", "70000", "70000", "True"},
      {2.5, "2.5", "2", "2", "2.5", "True"},
      {3.5, "3.5", "4", "4", "3.5", "True"},
      {-0.4, "-0.4", "0", "0", "-0.4", "True"},
      {32767.5, "32767.5", "!6", "32768", "32767.5", "True"},
      {2147483648.0, "2147483648", "!6", "!6", "2147483648", "True"},
      {100000.0, "100000", "!6", "100000", "100000", "True"},
      {0.1F, "0.1", "0", "0", "0.10000000149011612", "True"},
      {" 12 ", " 12 ", "12", "12", "12", "True"},
      {"-1.5e3", "-1.5e3", "-1500", "-1500", "-1500", "True"},
      {"tRUE", "tRUE", "!13", "!13", "!13", "True"},
      {" False", " False", "!13", "!13", "!13", "False"},
      {"0", "0", "0", "0", "0", "False"},
      {"", "", "!13", "!13", "!13", "!13"},
      {"nan", "nan", "!13", "!13", "!13", "!13"},
      {"12 apples", "12 apples", "!13", "!13", "!13", "!13"},
      {"1,5", "1,5", "!13", "!13", "!13", "!13"},
      {std::make_shared<Linked>(), "!13", "!13", "!13", "!13", "!13"},
  };
  for (std::size_t i = 0; i < conversions.size(); ++i) {
    const Conversion& row = conversions[i];
    SCOPED_TRACE("conversion " + std::to_string(i) + " expecting text " + row.Text);
    EXPECT_EQ(Outcome([&] { return row.From.ToText(); }), row.Text);
    EXPECT_EQ(Outcome([&] { return row.From.ToInt16(); }), row.Int16);
    EXPECT_EQ(Outcome([&] { return row.From.ToInt32(); }), row.Int32);
    EXPECT_EQ(Outcome([&] { return row.From.ToDouble(); }), row.Double);
    EXPECT_EQ(Outcome([&] { return row.From.ToBoolean(); }), row.Boolean);
  }
}

TEST(VariantConversion, ObjectComesOutOnlyAsWhatItIs) {
  const auto object = std::make_shared<Linked>();
  EXPECT_EQ(Variant(object).ToObjectOf<Linked>(), object);
  EXPECT_EQ(Variant().ToObject(), nullptr);
  EXPECT_EQ(Outcome([] { return Variant(5).ToObject() != nullptr; }), "!13");
  EXPECT_EQ(Outcome([] { return Variant().ToObjectOf<Linked>() != nullptr; }), "!13");
}

TEST(Variant, EqualOnlyInKindAndValue) {
  const std::vector<Variant> values = {
      {}, Variant::Null, false, std::int16_t{0}, 0, 0.0, "", "0", Date(), std::make_shared<Linked>(), std::make_shared<Linked>()};
  for (std::size_t i = 0; i < values.size(); ++i) {
    for (std::size_t j = 0; j < values.size(); ++j) EXPECT_EQ(values[i] == values[j], i == j) << i << " " << j;
  }
}

TEST(Variant, CopyKeepsItsTextWhenTheOriginalChanges) {
  std::vector<Variant> values = {"a text that no short form holds", 5};
  const std::vector<Variant> copies = values;
  for (Variant& value : values) value = values[1];
  EXPECT_EQ(copies[0].ToText(), "a text that no short form holds");
  EXPECT_EQ(values[0].ToInt32(), 5);
}

TEST(Variant, OrdersNumbersByValueAndTextsByBytes) {
  const std::vector<std::pair<Variant, Variant>> ascending = {{9, 10.5}, {"10", "9"}, {99, "1"}, {Variant(), "a"}, {true, 0}};
  for (const auto& [low, high] : ascending) {
    EXPECT_TRUE(Compare(low, high) < 0) << low.ToText() << " " << high.ToText();
    EXPECT_TRUE(Compare(high, low) > 0) << low.ToText() << " " << high.ToText();
  }
  const std::vector<std::pair<Variant, Variant>> equal = {{"", Variant()}, {-1, true}, {std::int16_t{2}, 2.0}};
  for (const auto& [a, b] : equal) EXPECT_TRUE(Compare(a, b) == 0) << b.ToText();
  EXPECT_EQ(Outcome([] { return Compare(Variant(Variant::Null), 1) < 0; }), "!13");
}

TEST(Date, TextFollowsTheCalendarOnBothSidesOfTheZeroDate) {
  const std::vector<std::pair<double, const char*>> dates = {
      {0, "1899-12-30 00:00:00"}, {36584.75, "2000-02-28 18:00:00"}, {36585.999994, "2000-02-29 23:59:59"}, {-0.5, "1899-12-29 12:00:00"}};
  for (const auto& [days, text] : dates) EXPECT_EQ(Date::FromDays(days).ToText(), text);
}

TEST(Date, HasATextAtBothEndsOfItsRange) {
  using Limits = std::numeric_limits<std::int64_t>;
  EXPECT_EQ(Date::FromMilliseconds(Limits::max()).ToText(), "292278924-08-15 07:12:55");
  EXPECT_EQ(Date::FromMilliseconds(Limits::min()).ToText(), "-292275125-05-14 16:47:04");
  EXPECT_EQ(Date::FromDays(-694'324).ToText(), "-0001-01-01 00:00:00");
  EXPECT_EQ(Date::FromDays(2'958'466).ToText(), "10000-01-01 00:00:00");
  for (const double days : {1e20, -1e20, 1.1e11, std::nan(""), HUGE_VAL}) {
    EXPECT_EQ(Outcome([&] { return Variant(days).ToDate().IsZero(); }), "!6") << days;
  }
}

}  // namespace

}  // namespace vantrel

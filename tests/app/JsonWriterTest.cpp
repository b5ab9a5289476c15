#include "app/JsonWriter.h"

#include <limits>

#include <gtest/gtest.h>

namespace vantrel {

namespace {

TEST(JsonWriter, AnyTextBecomesAValidString) {
  const struct {
    std::string Text, Written;
  } cases[] = {
      {"plain \xC3\xA9 \xE2\x82\xAC \xF0\x9F\x98\x80", "\"plain \xC3\xA9 \xE2\x82\xAC \xF0\x9F\x98\x80\""},
      {"quote \" back\\slash", R"("quote \" back\\slash")"},
      {std::string("\0\n\x1F", 3), R"("\u0000\u000a\u001f")"},
      {"latin \xE9 1", "\"latin \xEF\xBF\xBD 1\""},
      {"cut \xE2\x82", "\"cut \xEF\xBF\xBD\xEF\xBF\xBD\""},
      {"overlong \xC0\xAF", "\"overlong \xEF\xBF\xBD\xEF\xBF\xBD\""},
      {"surrogate \xED\xA0\x80", "\"surrogate \xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\""},
      {"beyond \xF4\x90\x80\x80", "\"beyond \xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\""},
  };
  for (const auto& item : cases) EXPECT_EQ(JsonWriter().Text(item.Text).Written(), item.Written);
}

TEST(JsonWriter, NestedAndEmptyPartsAreDividedByCommasOnce) {
  JsonWriter json;
  json.Open('{').Key("a").Open('[').Close(']').Key("b").Open('{').Key("c").Number(-1).Close('}');
  json.Key("d").Open('[').Text("x").Null().Close(']').Close('}');
  EXPECT_EQ(json.Written(), R"({"a": [], "b": {"c": -1}, "d": ["x", null]})");
}

TEST(JsonWriter, DecimalsAreTheShortestThatReadBackTheSame) {
  JsonWriter json;
  json.Open('[').Decimal(0.1F).Decimal(0.1).Decimal(1e30F).Decimal(-3.0F).Decimal(std::numeric_limits<double>::infinity()).Close(']');
  EXPECT_EQ(json.Written(), "[0.1, 0.1, 1e+30, -3, null]");
}

}  // namespace

}  // namespace vantrel

#include "app/Json.h"

#include <limits>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace vantrel {

namespace {

TEST(Json, DecimalsReadBackTheSameAndWholeNumbersHaveNoPoint) {
  EXPECT_EQ(OneLine({Decimal(0.1F), Decimal(0.1), Decimal(-3.0F), Decimal(1e30F), Decimal(std::numeric_limits<double>::infinity()),
                     Decimal(std::numeric_limits<float>::quiet_NaN())}),
            "[0.1,0.1,-3,1e+30,null,null]");
}

TEST(Json, BytesThatAreNotUtf8AreReplaced) {
  EXPECT_EQ(OneLine("latin \xE9 1, overlong \xC0\xAF, euro \xE2\x82\xAC"), "\"latin \uFFFD 1, overlong \uFFFD\uFFFD, euro \u20AC\"");
}

}  // namespace

}  // namespace vantrel
